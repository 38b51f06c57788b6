#pragma once

#include <string>
#include <vector>

struct sqlite3;

/// A plain connection of the engine to a database file, beside the handle under test: to look behind it, to prepare
/// files that it is to meet, and to stand in its way as another program would.
class FileConnection {
 public:
  /// Opens the file, creating it when it is missing.
  explicit FileConnection(const std::string& path);
  FileConnection(const FileConnection&) = delete;
  FileConnection& operator=(const FileConnection&) = delete;
  ~FileConnection();

  /// Runs a script of any number of statements and expects that it succeeds.
  void exec(const std::string& script);

  /// The values of a query as text, "NULL" for SQL NULL.
  std::vector<std::vector<std::string>> rows(const std::string& sql);
  /// The values of a query as SQL literals, which tell the types apart.
  std::vector<std::vector<std::string>> literals(const std::string& sql);

 private:
  void expectOk(int code, const std::string& what);
  std::vector<std::vector<std::string>> read(const std::string& sql, bool asLiterals);

  sqlite3* connection_ = nullptr;
};
