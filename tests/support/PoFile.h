#pragma once

#include <string>
#include <vector>

/// A text of a catalogue or of a template, whose translations are empty.
struct PoEntry {
  std::string text;
  std::string plural;                     ///< empty for a text without number
  std::vector<std::string> translations;  ///< one, or one for each number that the language tells apart
};

/// The texts of a .po or .pot file, without the head. A test failure, and no texts, when it cannot be read.
std::vector<PoEntry> readPoFile(const std::string& path);
