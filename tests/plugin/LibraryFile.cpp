#include "tests/plugin/LibraryFile.h"

#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"

using Texts = std::vector<std::string>;
using Names = std::set<std::string>;

Names LibraryFile::exports() const {
  return symbols({"-D", "-C", "--defined-only"});
}

Names LibraryFile::imports() const {
  return symbols({"-D", "-C", "--undefined-only"});
}

Names LibraryFile::definitions() const {
  return symbols({"--defined-only"});
}

Names LibraryFile::uniqueSymbols() const {
  Names names = symbols({"--defined-only"}, "u");
  names.merge(symbols({"-D", "--defined-only"}, "u"));
  return names;
}

Names LibraryFile::neededLibraries() const {
  Names names;
  for (const std::string& line : read({"readelf", "-W", "-d", path_})) {
    const size_t begin = line.find("Shared library: [");
    if (begin != std::string::npos) names.insert(line.substr(begin + 17, line.find(']', begin) - begin - 17));
  }
  return names;
}

size_t LibraryFile::countInitialisers() const {
  // "  [19] .init_array  INIT_ARRAY  000000000004d9a0 04c9a0 000028 08  WA  0   0  8"
  for (const std::string& line : read({"readelf", "-W", "-S", path_})) {
    std::istringstream fields(line.substr(std::min(line.find(']') + 1, line.size())));
    std::string name, type, address, offset, size;
    fields >> name >> type >> address >> offset >> size;
    if (name == ".init_array") return std::stoul(size, nullptr, 16) / sizeof(void*);
  }
  return 0;
}

Texts LibraryFile::read(Texts command) const {
  ChildProcess tool(std::move(command));
  EXPECT_EQ(tool.run(), 0) << tool.getErrors();
  std::istringstream output(tool.getOutput());
  Texts lines;
  for (std::string line; std::getline(output, line);) lines.push_back(line);
  return lines;
}

Names LibraryFile::symbols(Texts options, const std::string& types) const {
  options.insert(options.begin(), "nm");
  options.push_back(path_);
  Names names;
  // "0000000000012345 T name", "                 U name"
  constexpr size_t kType = 17;
  for (const std::string& line : read(std::move(options))) {
    if (line.size() <= kType + 2) continue;
    if (types.empty() || types.find(line[kType]) != std::string::npos) names.insert(line.substr(kType + 2));
  }
  return names;
}
