#pragma once

namespace Brontel {
class Invoice;
}

namespace Brontel::App {

class Session;

/// Lets the plug-ins check the invoice and prints a line per message: level, code and text. True when one of them has
/// to be dealt with.
bool printCheck(Session& session, Invoice& invoice);

}  // namespace Brontel::App
