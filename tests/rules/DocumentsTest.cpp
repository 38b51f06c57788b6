#include <filesystem>

#include <gtest/gtest.h>

#include "tests/rules/Documents.h"
#include "tests/support/TemporaryDirectory.h"

using Rules::Violations;

namespace {

Violations violationsOf(const std::string& text) {
  const TemporaryDirectory root;
  std::filesystem::create_directory(root.path("host"));
  root.write("host/Table.h",
             "class Other;\nclass Table : public Base {\n  void show();\n  int count() const { return 1; }\n};\n"
             "// class Gone { void hide(); };\n");
  root.write("host/Table.cpp", "void Table::show() {}\n");
  root.write("page.md", text);
  return Rules::documents(SourceTree(root.path()), root.path(), {"page.md"});
}

}  // namespace

TEST(DocumentRuleTest, holdsForOurPages) {
  const std::vector<std::string> pages{"CONTRIBUTING.md", "README.md", "docs/architecture.md", "docs/reliability.md"};
  for (const std::string& page : pages) EXPECT_FALSE(readFile(SOURCE_FOLDER "/" + page).empty()) << page;
  const SourceTree tree(SOURCE_FOLDER, {"app", "fxext", "host", "itemdata", "model", "plugin", "tests/support", "ui"});
  EXPECT_EQ(Rules::documents(tree, SOURCE_FOLDER, pages), Violations());
}

TEST(DocumentRuleTest, architectureNamesWhatAValuePassesThrough) {
  const std::string page = readFile(std::string(SOURCE_FOLDER) + "/docs/architecture.md");
  for (const char* operation : {"`ItemDataEntryTableItem::setText`", "`ItemDataEntry::save`", "`ItemDataList::check`",
                                "`ItemDataList::getPrintableText`", "`ItemDataList::toXml`"}) {
    EXPECT_NE(page.find(operation), std::string::npos) << operation;
  }
}

TEST(DocumentRuleTest, findsWhatIsThere) {
  EXPECT_EQ(
      violationsOf(
          "`Table::show` and `Table::count` in `host/` and `host/Table.h`; `ls -l`, `Table`, `a/b`, `std::move`."),
      Violations());
}

TEST(DocumentRuleTest, seesWhatIsNot) {
  for (const char* name : {"Table::hide", "Gone::hide", "Other::show", "host/Table.hpp", "itemdata/"}) {
    EXPECT_EQ(violationsOf(std::string("Not `") + name + "`."),
              Violations{std::string("page.md: there is no ") + name});
  }
}
