#include "tests/rules/SourceTree.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <sstream>

#include "tests/support/TemporaryDirectory.h"

namespace fs = std::filesystem;

namespace {

/// Blanks comments, and texts as well when that is wanted.
class Blanker {
 public:
  Blanker(const std::string& text, bool textsToo) : result_(text), textsToo_(textsToo) {}

  std::string run() {
    while (at_ < result_.size()) {
      if (starts("//")) {
        blank(std::min(result_.find('\n', at_), result_.size()));
      } else if (starts("/*")) {
        skipTo("*/", true);
      } else if (starts("R\"")) {
        const size_t open = result_.find('(', at_);
        skipTo(")" + result_.substr(at_ + 2, open - at_ - 2) + "\"", textsToo_);
      } else if (result_[at_] == '"' || (result_[at_] == '\'' && !isDigitSeparator())) {
        skipQuoted(result_[at_]);
      } else {
        ++at_;
      }
    }
    return result_;
  }

 private:
  bool starts(const char* what) const { return result_.compare(at_, std::char_traits<char>::length(what), what) == 0; }
  bool isDigitSeparator() const { return at_ > 0 && std::isalnum(static_cast<unsigned char>(result_[at_ - 1])) != 0; }

  void blank(size_t end) {
    for (; at_ < end; ++at_) {
      if (result_[at_] != '\n') result_[at_] = ' ';
    }
  }

  void skipTo(const std::string& closing, bool blanked) {
    const size_t found = result_.find(closing, at_ + 2);
    const size_t end = found == std::string::npos ? result_.size() : found + closing.size();
    if (blanked) {
      blank(end);
    } else {
      at_ = end;
    }
  }

  void skipQuoted(char quote) {
    size_t end = at_ + 1;
    while (end < result_.size() && result_[end] != quote && result_[end] != '\n') end += result_[end] == '\\' ? 2 : 1;
    ++at_;
    end = std::min(end, result_.size());
    if (textsToo_) blank(end);
    at_ = end + 1;
  }

  std::string result_;
  size_t at_ = 0;
  bool textsToo_;
};

// Letters, digits, underscores and the double colon between names.
bool isNamePart(const std::string& code, size_t at) {
  const auto c = static_cast<unsigned char>(code[at]);
  if (std::isalnum(c) != 0 || c == '_') return true;
  return c == ':' && (code.compare(at, 2, "::") == 0 || (at > 0 && code[at - 1] == ':'));
}

bool isSource(const fs::path& path) {
  return path.extension() == ".h" || path.extension() == ".cpp";
}

}  // namespace

bool SourceFile::isIn(const std::vector<std::string>& folders) const {
  return std::any_of(folders.begin(), folders.end(), [this](const std::string& folder) { return isIn(folder); });
}

std::vector<SourceFile::Name> SourceFile::names() const {
  std::vector<Name> names;
  for (size_t at = 0; at < code.size();) {
    const size_t begin = at;
    while (at < code.size() && isNamePart(code, at)) ++at;
    if (at == begin) {
      ++at;
      continue;
    }
    const std::string text = code.substr(begin, at - begin);
    const size_t scope = text.rfind("::");
    names.push_back({begin, at, text, scope == std::string::npos ? text : text.substr(scope + 2)});
  }
  return names;
}

std::string SourceFile::place(size_t offset) const {
  const auto end = code.begin() + static_cast<std::ptrdiff_t>(offset);
  return path + ":" + std::to_string(1 + std::count(code.begin(), end, '\n'));
}

SourceFile parseSource(const std::string& path, const std::string& text) {
  const std::string uncommented = Blanker(text, false).run();
  SourceFile file{path, Blanker(text, true).run(), text, {}};
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == uncommented[i] && text[i] != '\n') file.comments[i] = ' ';
  }
  std::istringstream lines(uncommented);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    const size_t hash = line.find_first_not_of(" \t");
    const size_t word = hash == std::string::npos || line[hash] != '#' ? hash : line.find_first_not_of(" \t", hash + 1);
    if (word == hash || word == std::string::npos || line.compare(word, 7, "include") != 0) continue;
    const size_t begin = line.find_first_of("<\"", word);
    if (begin == std::string::npos) continue;
    const size_t end = line.find_first_of(">\"", begin + 1);
    file.includes.push_back({number, line[begin] == '<', line.substr(begin + 1, end - begin - 1)});
  }
  return file;
}

SourceTree::SourceTree(const std::string& root)
    : SourceTree(root, {"app", "fxext", "host", "itemdata", "model", "plugin", "ui"}) {}

SourceTree::SourceTree(const std::string& root, const std::vector<std::string>& folders) {
  for (const std::string& folder : folders) {
    const fs::path top = fs::path(root) / folder;
    if (!fs::is_directory(top)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(top)) {
      if (!entry.is_regular_file() || !isSource(entry.path())) continue;
      files_.push_back(parseSource(fs::relative(entry.path(), root).string(), readFile(entry.path().string())));
    }
  }
  std::sort(files_.begin(), files_.end(), [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
}
