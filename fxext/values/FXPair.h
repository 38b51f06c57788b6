#pragma once

#include <utility>

#include <fx.h>

namespace FXExt {

/// Two values in one object, so that FOX's object lists can hold them. It has no metaclass of its own.
template <class A, class B>
class FXPair : public FX::FXObject {
 public:
  A first;
  B second;

  FXPair(A a, B b) : first(std::move(a)), second(std::move(b)) {}
};

}  // namespace FXExt
