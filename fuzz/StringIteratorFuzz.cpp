// The fields of a string, put together again, are the string.

#include <string>

#include "fuzz/FuzzInput.h"
#include "fxext/values/FXStringIterator.h"

using FX::FXString;
using FXExt::FXStringIterator;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  FuzzInput input(data, size);
  const char separator = static_cast<char>(input.byte());
  // Before the text, in it, or behind it.
  const int start = static_cast<int>(input.byte()) - 128;
  const std::string bytes = input.rest();
  const FXString text(bytes.data(), static_cast<FX::FXint>(bytes.size()));
  std::string whole;
  int fields = 0;
  for (FXStringIterator it(text, separator, 0); it.hasNext(); ++it) {
    const FXString field = it.get();
    require(it.getPos() == fields, "the field's number");
    const std::string piece(field.text(), static_cast<size_t>(field.length()));
    require(piece.find(separator) == std::string::npos, "no separator inside a field");
    if (fields++ > 0) whole += separator;
    whole += piece;
    require(fields <= static_cast<int>(bytes.size()) + 1, "an end");
  }
  require(whole == bytes, "the whole string");
  // Any start is allowed.
  int steps = 0;
  for (FXStringIterator it(text, separator, start); it.hasNext(); it.next()) {
    it.get();
    require(++steps <= static_cast<int>(bytes.size()) + 2, "an end from there");
  }
  return 0;
}
