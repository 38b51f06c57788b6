#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What a fuzzer hands in, taken piece by piece. When nothing is left it gives zeros and empty texts.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

  bool empty() const { return rest_.empty(); }

  std::uint8_t byte() {
    if (rest_.empty()) return 0;
    const auto first = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return first;
  }

  /// 0 to limit - 1.
  int below(int limit) { return byte() % limit; }

  long long number() {
    std::uint64_t bits = 0;
    for (int i = 0; i < 8; ++i) bits = bits << 8 | byte();
    return static_cast<long long>(bits);
  }

  /// What stands before the next occurrence of the mark, which is taken out too; all that is left when there is none.
  std::string until(char mark) {
    const size_t end = rest_.find(mark);
    std::string text(rest_.substr(0, end));
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return text;
  }

  std::string rest() { return std::string(rest_); }

 private:
  std::string_view rest_;
};

/// Ends the program, as a crash does, when something does not hold.
void require(bool condition, const char* what);
