#pragma once

#include <string>
#include <vector>

/// A text in a source file, neighbouring literals joined as the compiler does.
struct SourceText {
  std::string place;  ///< "path:line"
  std::string text;
};

/// All texts in quotes of a source; comments, included names and single characters are none.
std::vector<SourceText> findTexts(const std::string& path, const std::string& code);
