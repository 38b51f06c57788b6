#pragma once

#include <fx.h>

namespace FXExt {

/// FOX's list, which also shows that it has the focus while there is no item to show it on. It has no metaclass of its
/// own and passes for what it is.
class FXFocusList : public FX::FXList {
 public:
  using FX::FXList::FXList;

  long handle(FX::FXObject* sender, FX::FXSelector sel, void* ptr) override;

 private:
  void drawFocus_(FX::FXEvent* event);
};

}  // namespace FXExt
