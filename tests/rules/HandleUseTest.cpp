#include <filesystem>

#include <gtest/gtest.h>

#include "tests/rules/HandleUse.h"
#include "tests/support/TemporaryDirectory.h"

using Rules::Violations;

namespace {

/// Of a tree of one file.
Violations violations(const std::string& path, const std::string& text) {
  const TemporaryDirectory root;
  std::filesystem::create_directory(std::filesystem::path(root.path(path)).parent_path());
  root.write(path, text);
  return Rules::handleUse(SourceTree(root.path()));
}

}  // namespace

TEST(HandleUseRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::handleUse(SourceTree(SOURCE_FOLDER)), Violations());
}

TEST(HandleUseRuleTest, seesWhatIsTheHosts) {
  for (const std::string call : {"db->run(\"x\");", "db.run ( sql, {});", "db->open(path, mode);", "db->close();",
                                 "db->setForeignKeys(true);", "db->setErrorSink(nullptr);"}) {
    for (const char* folder : {"itemdata", "model", "plugin", "ui"}) {
      EXPECT_EQ(violations(std::string(folder) + "/a.cpp", call).size(), 1u) << call;
    }
    EXPECT_EQ(violations("host/a.cpp", call), Violations());
  }
  EXPECT_EQ(violations("ui/a.cpp", "\ndb->close();\n"), Violations{"ui/a.cpp:2: close"});
}

TEST(HandleUseRuleTest, leavesTheRestAlone) {
  for (const char* call :
       {"SettingsRun(a, b).run();", "db->queryInt(sql, 1, -1);", "db->nextId(table);", "void open(int);",
        "dialog.close;", "// db->run(sql);", "const char* a = \"db->close()\";"}) {
    EXPECT_EQ(violations("ui/a.cpp", call), Violations()) << call;
  }
}
