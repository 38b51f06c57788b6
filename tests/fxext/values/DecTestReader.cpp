#include "tests/fxext/values/DecTestReader.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace {

struct Token {
  std::string text;
  bool quoted = false;

  bool isArrow() const { return !quoted && text == "->"; }
  bool isComment() const { return !quoted && text.starts_with("--"); }
};

std::string lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool isSpace(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

// A token in quotes of either kind ends at the next such quote; the same quote twice stands for itself.
Token quotedToken(const std::string& line, std::size_t& at) {
  const char quote = line[at++];
  Token token{"", true};
  for (; at < line.size(); at++) {
    if (line[at] == quote) {
      at++;
      if (at >= line.size() || line[at] != quote) break;
    }
    token.text += line[at];
  }
  return token;
}

std::vector<Token> tokensOf(const std::string& line) {
  std::vector<Token> tokens;
  for (std::size_t at = 0; at < line.size();) {
    if (isSpace(line[at])) {
      at++;
    } else if (line[at] == '\'' || line[at] == '"') {
      tokens.push_back(quotedToken(line, at));
    } else {
      Token token;
      while (at < line.size() && !isSpace(line[at])) token.text += line[at++];
      if (token.isComment()) break;
      tokens.push_back(std::move(token));
    }
  }
  return tokens;
}

}  // namespace

bool DecTestCase::has(const std::string& condition) const {
  return std::find(conditions.begin(), conditions.end(), condition) != conditions.end();
}

bool DecTestReader::next(DecTestCase& read) {
  for (std::string line; std::getline(in_, line);) {
    const std::vector<Token> tokens = tokensOf(line);
    if (tokens.size() == 2 && lower(tokens[0].text) == "rounding:") rounding_ = lower(tokens[1].text);
    const auto arrow = std::find_if(tokens.begin(), tokens.end(), [](const Token& t) { return t.isArrow(); });
    // An identifier, an operation and an operand at least stand before the arrow, and the result behind it.
    if (arrow == tokens.end() || arrow - tokens.begin() < 3 || tokens.end() - arrow < 2) continue;
    read = DecTestCase();
    read.id = tokens[0].text;
    read.operation = lower(tokens[1].text);
    for (auto it = tokens.begin() + 2; it != arrow; ++it) read.operands.push_back(it->text);
    read.result = arrow[1].text;
    for (auto it = arrow + 2; it != tokens.end(); ++it) read.conditions.push_back(lower(it->text));
    read.rounding = rounding_;
    return true;
  }
  return false;
}
