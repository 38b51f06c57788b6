// Arguments of any kind: one per line.

#include <string>
#include <vector>

#include "app/Command.h"
#include "app/CommandLine.h"
#include "fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  FuzzInput input(data, size);
  std::vector<std::string> words = {"brontel-host"};
  while (!input.empty() && words.size() < 20) words.push_back(input.until('\n'));
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  Brontel::App::CommandLine line;
  const bool parsed = line.parse(static_cast<int>(words.size()), arguments.data());
  require(parsed == line.getError().empty(), "an error, or none");
  if (parsed && line.getCommand() != nullptr) {
    const bool informs = line.wantsHelp() || line.wantsVersion();
    require(informs || line.getArguments().size() == line.getCommand()->arguments, "as many arguments as it takes");
  }
  require(!Brontel::App::helpText().empty(), "a help text");
  return 0;
}
