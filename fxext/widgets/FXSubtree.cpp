#include "fxext/widgets/FXSubtree.h"

namespace FXExt {

using namespace FX;

namespace {

// A frame only holds others; the remaining composites look after their parts themselves.
bool isFrame(const FXWindow* window) {
  return window->isMemberOf(FXMETACLASS(FXHorizontalFrame)) || window->isMemberOf(FXMETACLASS(FXVerticalFrame)) ||
         window->isMemberOf(FXMETACLASS(FXMatrix));
}

template <typename Operation>
void forDescendants(const FXComposite* composite, Operation operation) {
  for (FXWindow* child = composite->getFirst(); child; child = child->getNext()) {
    if (isFrame(child)) {
      forDescendants(static_cast<FXComposite*>(child), operation);
    } else {
      operation(child);
    }
  }
}

}  // namespace

void enableDescendants(FXComposite* composite) {
  forDescendants(composite, [](FXWindow* widget) { widget->enable(); });
}

void disableDescendants(FXComposite* composite) {
  forDescendants(composite, [](FXWindow* widget) { widget->disable(); });
}

}  // namespace FXExt
