#include "tests/po/SourceTexts.h"

#include <algorithm>
#include <cctype>

namespace {

/// Reads a source from its beginning to its end.
class Reader {
 public:
  Reader(const std::string& path, const std::string& code) : path_(path), code_(code) {}

  std::vector<SourceText> read() {
    while (at_ < code_.size()) step();
    return texts_;
  }

 private:
  void step() {
    if (code_.compare(at_, 2, "//") == 0 || code_[at_] == '#') {
      skipTo("\n", 0);
    } else if (code_.compare(at_, 2, "/*") == 0) {
      skipTo("*/", 2);
    } else if (code_[at_] == '\'') {
      skipCharacter();
    } else if (code_[at_] == '"') {
      readText();
    } else {
      if (std::isspace(static_cast<unsigned char>(code_[at_])) == 0) isJoined_ = false;
      ++at_;
    }
  }

  void skipTo(const char* sign, size_t length) {
    at_ = std::min(code_.find(sign, at_), code_.size() - length) + length;
  }

  // 'a', '\'' and the ' of 1'000.
  void skipCharacter() {
    isJoined_ = false;
    const size_t length = code_[at_ + 1] == '\\' ? 4 : 3;
    at_ += code_.compare(at_ + length - 1, 1, "'") == 0 ? length : 1;
  }

  void readText() {
    const auto line = std::count(code_.begin(), code_.begin() + static_cast<std::ptrdiff_t>(at_), '\n') + 1;
    if (!isJoined_) texts_.push_back({path_ + ":" + std::to_string(line), ""});
    std::string& text = texts_.back().text;
    for (++at_; at_ < code_.size() && code_[at_] != '"'; ++at_) {
      if (code_[at_] == '\\') {
        const char escaped = code_[++at_];
        text += escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
      } else {
        text += code_[at_];
      }
    }
    ++at_;
    isJoined_ = true;
  }

  std::string path_;
  const std::string& code_;
  size_t at_ = 0;
  bool isJoined_ = false;
  std::vector<SourceText> texts_;
};

}  // namespace

std::vector<SourceText> findTexts(const std::string& path, const std::string& code) {
  return Reader(path, code).read();
}
