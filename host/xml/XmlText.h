#pragma once

#include <string>

#include <fx.h>

namespace XMLBuilder {

/// The text with every character that XML 1.0 forbids, and every byte that is no UTF-8, replaced by U+FFFD: a barcode
/// scanner's control characters must not make an export unreadable.
std::string cleanText(const FX::FXString& text);

/// The same as an object, which takes no copy where nothing has to be replaced. It borrows the text.
class CleanText {
 public:
  explicit CleanText(const FX::FXString& text);
  CleanText(const CleanText&) = delete;
  CleanText& operator=(const CleanText&) = delete;

  const unsigned char* bytes() const { return reinterpret_cast<const unsigned char*>(text_); }
  bool isEmpty() const { return *text_ == '\0'; }

 private:
  std::string cleaned_;
  const char* text_;
};

}  // namespace XMLBuilder
