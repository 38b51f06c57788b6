#pragma once

#include <fx.h>

namespace FXExt {

/// Enable or disable every widget inside a composite, frames excepted. FOX itself stops at the composite.
void enableDescendants(FX::FXComposite* composite);
void disableDescendants(FX::FXComposite* composite);

}  // namespace FXExt
