// Decimal numbers beside plain 64-bit fixed point of equal scale, and beside a library of wide decimals.

#include <benchmark/benchmark.h>
#include <boost/multiprecision/cpp_dec_float.hpp>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/Bench.h"
#include "bench/Workload.h"
#include "fxext/values/FXDecimal.h"

namespace {

using Boost = boost::multiprecision::cpp_dec_float_50;
using FXExt::FXDecimal;

constexpr int kNumbers = 1000;
constexpr long long kScale = 10000;

std::vector<std::string> texts() {
  std::vector<std::string> made;
  made.reserve(kNumbers);
  for (int i = 0; i < kNumbers; ++i) {
    made.push_back(std::to_string(i * 7919 % 100000) + "." + std::to_string(1000 + i * 31 % 9000));
  }
  return made;
}

/// Fixed point as somebody in a hurry would write it: no check, no exponent, always four places.
struct Fixed {
  long long value = 0;

  static Fixed parse(const std::string& text) {
    const char* at = text.c_str();
    const bool negative = *at == '-';
    if (negative) ++at;
    long long value = 0;
    while ('0' <= *at && *at <= '9') value = value * 10 + (*at++ - '0');
    int places = 4;
    if (*at == '.') {
      ++at;
      for (; places > 0 && '0' <= *at && *at <= '9'; --places) value = value * 10 + (*at++ - '0');
    }
    for (; places > 0; --places) value *= 10;
    return {negative ? -value : value};
  }

  std::string print() const {
    char text[32];
    const long long size = std::llabs(value);
    const int length =
        std::snprintf(text, sizeof text, "%s%lld.%04lld", value < 0 ? "-" : "", size / kScale, size % kScale);
    return std::string(text, static_cast<size_t>(length));
  }
};

FXDecimal parseOurs(const std::string& text) {
  return FXDecimal(FX::FXString(text.c_str()), 4);
}

Fixed parseFixed(const std::string& text) {
  return Fixed::parse(text);
}

Boost parseBoost(const std::string& text) {
  return Boost(text);
}

template <class NUMBER>
std::vector<NUMBER> numbers(NUMBER (*parse)(const std::string&)) {
  std::vector<NUMBER> made;
  for (const std::string& text : texts()) made.push_back(parse(text));
  return made;
}

void parseOursAll(benchmark::State& state) {
  std::vector<FX::FXString> strings;
  for (const std::string& text : texts()) strings.emplace_back(text.c_str());
  for (auto _ : state) {
    for (const FX::FXString& text : strings) benchmark::DoNotOptimize(FXDecimal(text, 4));
  }
}

void parseFixedAll(benchmark::State& state) {
  const std::vector<std::string> strings = texts();
  for (auto _ : state) {
    for (const std::string& text : strings) benchmark::DoNotOptimize(Fixed::parse(text));
  }
}

void parseBoostAll(benchmark::State& state) {
  const std::vector<std::string> strings = texts();
  for (auto _ : state) {
    for (const std::string& text : strings) benchmark::DoNotOptimize(Boost(text));
  }
}

void addOurs(benchmark::State& state) {
  const auto values = numbers(parseOurs);
  for (auto _ : state) {
    FXDecimal sum(0, 0, 4);
    for (const FXDecimal& value : values) sum += value;
    benchmark::DoNotOptimize(sum);
  }
}

void addFixed(benchmark::State& state) {
  const auto values = numbers(parseFixed);
  for (auto _ : state) {
    long long sum = 0;
    for (const Fixed& value : values) {
      sum += value.value;
      benchmark::DoNotOptimize(sum);
    }
  }
}

void addBoost(benchmark::State& state) {
  const auto values = numbers(parseBoost);
  for (auto _ : state) {
    Boost sum = 0;
    for (const Boost& value : values) sum += value;
    benchmark::DoNotOptimize(sum);
  }
}

template <class NUMBER>
int countLess(const std::vector<NUMBER>& values) {
  int less = 0;
  for (size_t i = 1; i < values.size(); ++i) less += values[i - 1] < values[i] ? 1 : 0;
  return less;
}

void compareOurs(benchmark::State& state) {
  const auto values = numbers(parseOurs);
  for (auto _ : state) benchmark::DoNotOptimize(countLess(values));
}

void compareFixed(benchmark::State& state) {
  const auto values = numbers(parseFixed);
  for (auto _ : state) {
    int less = 0;
    for (size_t i = 1; i < values.size(); ++i) {
      less += values[i - 1].value < values[i].value ? 1 : 0;
      benchmark::DoNotOptimize(less);
    }
  }
}

void compareBoost(benchmark::State& state) {
  const auto values = numbers(parseBoost);
  for (auto _ : state) benchmark::DoNotOptimize(countLess(values));
}

void printOurs(benchmark::State& state) {
  const auto values = numbers(parseOurs);
  for (auto _ : state) {
    for (const FXDecimal& value : values) benchmark::DoNotOptimize(value.toString());
  }
}

void printFixed(benchmark::State& state) {
  const auto values = numbers(parseFixed);
  for (auto _ : state) {
    for (const Fixed& value : values) benchmark::DoNotOptimize(value.print());
  }
}

void printBoost(benchmark::State& state) {
  const auto values = numbers(parseBoost);
  for (auto _ : state) {
    for (const Boost& value : values) benchmark::DoNotOptimize(value.str(0, std::ios_base::fixed));
  }
}

std::unique_ptr<Workload> workload;

void sumOurs(benchmark::State& state) {
  const auto invoice = workload->makeInvoice(sizeOf(state));
  const auto& list = Workload::listOf(*invoice);
  for (auto _ : state) benchmark::DoNotOptimize(list.getSumQuantity());
}

struct Cell {
  int variable;
  std::string value;
};

/// The same cells as the list has, of which every fourth is a quantity.
std::vector<Cell> cellsOf(int rows) {
  std::vector<Cell> cells;
  cells.reserve(static_cast<size_t>(rows) * Workload::kCellsInARow);
  for (int i = 0; i < rows * Workload::kCellsInARow; ++i) {
    cells.push_back({i % Workload::kCellsInARow == 0 ? -1 : 10 + i % Workload::kCellsInARow, "1"});
  }
  return cells;
}

void sumFixed(benchmark::State& state) {
  const std::vector<Cell> cells = cellsOf(sizeOf(state));
  for (auto _ : state) {
    long long sum = 0;
    for (const Cell& cell : cells) {
      if (cell.variable == -1) sum += Fixed::parse(cell.value).value;
    }
    benchmark::DoNotOptimize(sum);
  }
}

void sumBoost(benchmark::State& state) {
  const std::vector<Cell> cells = cellsOf(sizeOf(state));
  for (auto _ : state) {
    Boost sum = 0;
    for (const Cell& cell : cells) {
      if (cell.variable == -1) sum += Boost(cell.value);
    }
    benchmark::DoNotOptimize(sum);
  }
}

void measureOnce(const char* name, void (*function)(benchmark::State&)) {
  benchmark::RegisterBenchmark(name, function)->Arg(kNumbers)->Unit(benchmark::kMicrosecond);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  measureOnce("decimal, parse:ours", parseOursAll);
  measureOnce("decimal, parse:plain", parseFixedAll);
  measureOnce("decimal, parse:boost", parseBoostAll);
  measureOnce("decimal, add:ours", addOurs);
  measureOnce("decimal, add:plain", addFixed);
  measureOnce("decimal, add:boost", addBoost);
  measureOnce("decimal, compare:ours", compareOurs);
  measureOnce("decimal, compare:plain", compareFixed);
  measureOnce("decimal, compare:boost", compareBoost);
  measureOnce("decimal, print:ours", printOurs);
  measureOnce("decimal, print:plain", printFixed);
  measureOnce("decimal, print:boost", printBoost);
  measure("sum of quantities:ours", sumOurs);
  measure("sum of quantities:plain", sumFixed);
  measure("sum of quantities:boost", sumBoost);
  {
    Brontel::Morvane app;
    workload = std::make_unique<Workload>(app);
    benchmark::RunSpecifiedBenchmarks();
    workload.reset();
  }
  return 0;
}
