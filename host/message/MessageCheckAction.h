#pragma once

namespace Brontel {

/// A place that the message interface keeps for the host's own checks. Plug-ins pass null.
class MessageCheckAction;

}  // namespace Brontel
