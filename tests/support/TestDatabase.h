#pragma once

#include <string>
#include <vector>

#include "host/database/MorvaneDatabase.h"
#include "tests/support/TemporaryDirectory.h"

/// A real database in a folder of its own, with the handle under test open on it.
///
/// text, rows and dump read through a connection of their own: they tell what is stored in the file, whatever the
/// handle believes, and no observer or injected fault meets them. What an open transaction has not committed they do
/// not see.
class TestDatabase {
 public:
  /// Creates an empty database. The handle's file is path().
  TestDatabase();

  MorvaneDatabase& handle() { return handle_; }
  MorvaneDatabase* operator->() { return &handle_; }
  MorvaneDatabase* get() { return &handle_; }
  const TemporaryDirectory& directory() const { return directory_; }
  std::string path() const { return directory_.path("test.db"); }

  /// Runs one statement through the handle and expects that it succeeds.
  void exec(const std::string& sql);

  /// The first value of a query; "NULL" for SQL NULL, empty without a row.
  std::string text(const std::string& sql) const;
  /// All values of a query; "NULL" for SQL NULL.
  std::vector<std::vector<std::string>> rows(const std::string& sql) const;
  /// Everything that the database holds: the schema's texts and all rows of all tables, values with their types.
  std::string dump() const;

  /// The same for any file.
  static std::string textOf(const std::string& path, const std::string& sql);
  static std::vector<std::vector<std::string>> rowsOf(const std::string& path, const std::string& sql);
  static std::string dumpOf(const std::string& path);

 private:
  TemporaryDirectory directory_;
  MorvaneDatabase handle_;
};
