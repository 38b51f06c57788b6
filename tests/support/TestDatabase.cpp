#include "tests/support/TestDatabase.h"

#include <gtest/gtest.h>

#include "tests/support/FileConnection.h"

using Rows = std::vector<std::vector<std::string>>;

TestDatabase::TestDatabase() {
  EXPECT_TRUE(handle_.open(path().c_str(), MorvaneDatabase::OpenMode::Create)) << handle_.getLastError().message.text();
}

void TestDatabase::exec(const std::string& sql) {
  EXPECT_TRUE(handle_.run(sql.c_str())) << sql << ": " << handle_.getLastError().message.text();
}

std::string TestDatabase::text(const std::string& sql) const {
  return textOf(path(), sql);
}

Rows TestDatabase::rows(const std::string& sql) const {
  return rowsOf(path(), sql);
}

std::string TestDatabase::dump() const {
  return dumpOf(path());
}

std::string TestDatabase::textOf(const std::string& path, const std::string& sql) {
  const Rows all = rowsOf(path, sql);
  return all.empty() ? std::string() : all.front().front();
}

Rows TestDatabase::rowsOf(const std::string& path, const std::string& sql) {
  return FileConnection(path).rows(sql);
}

std::string TestDatabase::dumpOf(const std::string& path) {
  FileConnection connection(path);
  std::string dump;
  for (const auto& entry :
       connection.rows("select name, type, ifnull(sql,'') from sqlite_master order by type, name")) {
    dump += entry[1] + " " + entry[0] + ": " + entry[2] + "\n";
    if (entry[1] != "table") continue;
    for (const auto& row : connection.literals("select * from \"" + entry[0] + "\" order by rowid")) {
      for (const std::string& value : row) dump += "  " + value;
      dump += "\n";
    }
  }
  return dump;
}
