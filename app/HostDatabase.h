#pragma once

#include <sys/types.h>

#include <fx.h>

#include "app/ErrorCollector.h"
#include "host/database/MorvaneDatabase.h"

namespace Brontel::App {

/// The database of a run of the program: opened only when it is one that this program can use.
class HostDatabase {
 public:
  enum class Use {
    IfPresent,  ///< works without a database too; one that is there is opened for reading
    Read,       ///< a file that may not be written is fine
    Write,
    Create  ///< a missing or incomplete one is made, with its folder
  };

  HostDatabase() { handle_.setErrorSink(&errors_); }
  HostDatabase(const HostDatabase&) = delete;
  HostDatabase& operator=(const HostDatabase&) = delete;

  /// False with an error for the person. A file that is refused stays as it is.
  bool open(const FX::FXString& path, Use use);
  const FX::FXString& getError() const { return error_; }

  MorvaneDatabase& handle() { return handle_; }
  /// As the person gave it.
  const FX::FXString& getPath() const { return path_; }
  ErrorCollector& errors() { return errors_; }

  /// What the first database error means to the person.
  FX::FXString describeError() const;

  /// How far Create has brought it: what a finished initialisation has to say.
  enum class Change { None, Extended, Created };
  Change getChange();
  /// Notes in the file that all tables are there. False on failure.
  bool markComplete();

 private:
  bool checkFile(mode_t mode);
  bool checkContent(Use use);
  bool checkVersion(Use use);
  bool prepareTables(Use use);
  bool refuse(const FX::FXString& pattern);
  bool refuseForErrors();

  ErrorCollector errors_;
  MorvaneDatabase handle_;  // tells errors_, so it goes first
  FX::FXString path_;
  FX::FXString error_;
  bool wasEmpty_ = false;
  int schemaBefore_ = 0;
  int versionBefore_ = 0;
};

}  // namespace Brontel::App
