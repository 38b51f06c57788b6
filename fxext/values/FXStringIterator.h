#pragma once

#include <fx.h>

namespace FXExt {

/// Walks the fields of a string that one character separates, without copying the string:
///
///     for (FXStringIterator it(text, ',', 0); it.hasNext(); ++it) use(it.get());
///
/// The string must outlive the iterator and stay unchanged meanwhile, so it must have a name: a temporary is gone
/// before the first field is read. An empty string is one empty field, and so is what follows a separator at the end.
class FXStringIterator {
 public:
  const FX::FXString* str;  ///< The string walked; not owned.
  char sep;                 ///< The separator.
  int begin;                ///< Position of the current field's first character.
  int end;                  ///< Position just past the current field; length + 1 once the walk is over.
  int pos;                  ///< Number of the current field, from 0.
  int length;               ///< The string's length in bytes.

  /// Starts at the byte `start`. A start outside the string is allowed and reads nothing outside it.
  FXStringIterator(const FX::FXString& s, char separator, int start);

  /// True before the first advance, even past the end of the string; then while there is a field to get.
  bool hasNext() const { return pos == 0 || end <= length; }
  /// The current field, untrimmed.
  FX::FXString get() const;
  /// Advances to the next field and returns the new end. To be called only while hasNext() holds.
  int next();
  FXStringIterator& operator++();
  /// Returns the advanced iterator too, not a copy of the old state.
  // NOLINTNEXTLINE(cert-dcl21-cpp)
  FXStringIterator& operator++(int);
  /// Number of the current field, from 0.
  int getPos() const { return pos; }

 private:
  int fieldEnd_(int from) const;
};

}  // namespace FXExt
