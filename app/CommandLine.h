#pragma once

#include <string>
#include <vector>

#include <fx.h>

namespace Brontel::App {

struct Command;

/// What the program was asked for.
class CommandLine {
 public:
  /// Reads the arguments as main gets them. False with an error for the person when they make no sense.
  bool parse(int argc, char* const argv[]);
  const FX::FXString& getError() const { return error_; }

  bool wantsHelp() const { return help_; }
  bool wantsVersion() const { return version_; }
  /// Null when none was given.
  const Command* getCommand() const { return command_; }
  /// The command's arguments, as many as it takes.
  const std::vector<FX::FXString>& getArguments() const { return arguments_; }

  /// Empty for the default.
  const FX::FXString& getDatabase() const { return database_; }
  const FX::FXString& getPlugins() const { return plugins_; }
  /// Where an export or a PDF goes; empty for the standard output.
  const FX::FXString& getOutputFile() const { return outputFile_; }
  bool wantsSample() const { return sample_; }

 private:
  bool parseOptions(int argc, char* const argv[]);
  bool takeOption(int option, char* const argv[]);
  bool takeValue(FX::FXString& value, const char* option);
  bool takeCommand(int count, char* const words[]);
  bool checkUse();
  bool refuse(const FX::FXString& error);

  bool help_ = false;
  bool version_ = false;
  bool sample_ = false;
  const Command* command_ = nullptr;
  std::vector<FX::FXString> arguments_;
  FX::FXString database_;
  FX::FXString plugins_;
  FX::FXString outputFile_;
  FX::FXString error_;
};

/// The program's help, translated.
std::string helpText();

}  // namespace Brontel::App
