#include "fxext/values/FXStringIterator.h"

#include <algorithm>

namespace FXExt {

FXStringIterator::FXStringIterator(const FX::FXString& s, char separator, int start)
    : str(&s), sep(separator), begin(start), end(0), pos(0), length(s.length()) {
  end = start == length + 1 ? start : fieldEnd_(start);
}

FX::FXString FXStringIterator::get() const {
  // FXString clamps a negative position in the same way, but the length of a field that starts far below 0 overflows.
  const int first = std::max(begin, 0);
  return str->mid(first, end - first);
}

int FXStringIterator::next() {
  if (end == length) {
    end = length + 1;
  } else {
    begin = end + 1;
    end = fieldEnd_(begin);
  }
  pos++;
  return end;
}

FXStringIterator& FXStringIterator::operator++() {
  next();
  return *this;
}

// NOLINTNEXTLINE(cert-dcl21-cpp): there is no old state to give back, since both are the same iterator
FXStringIterator& FXStringIterator::operator++(int) {
  next();
  return *this;
}

int FXStringIterator::fieldEnd_(int from) const {
  const int found = str->find(sep, from);
  return found < 0 ? length : found;
}

}  // namespace FXExt
