#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/rules/Rules.h"
#include "tests/support/TemporaryDirectory.h"

using Rules::Violations;

namespace {

const SourceTree& ourTree() {
  static const SourceTree tree(SOURCE_FOLDER);
  return tree;
}

/// A tree of one file.
SourceTree treeOf(const std::string& path, const std::string& text) {
  const TemporaryDirectory root;
  std::filesystem::create_directories(std::filesystem::path(root.path(path)).parent_path());
  root.write(path, text);
  return SourceTree(root.path());
}

Violations layering(const std::string& path, const std::string& include) {
  return Rules::layering(treeOf(path, "#pragma once\n#include " + include + "\n"));
}

std::string header(const std::string& name) {
  return "\"" + name + "\"";
}

}  // namespace

TEST(SourceTreeTest, readsOurSources) {
  EXPECT_GT(ourTree().files().size(), 100u);
  for (const char* folder : {"fxext", "host", "itemdata", "model", "plugin"}) {
    EXPECT_TRUE(std::any_of(ourTree().files().begin(), ourTree().files().end(), [folder](const SourceFile& file) {
      return file.isIn(folder);
    })) << folder;
  }
}

TEST(SourceTreeTest, tellsCodeFromCommentsAndTexts) {
  const SourceFile file = parseSource("a.cpp",
                                      "// throw 1\n"
                                      "/* throw\n 2 */ int a = 1'000; // it's\n"
                                      "const char* b = \"throw \\\" 3\"; char c = '\"';\n"
                                      "const char* d = R\"x(throw \")\" 4)x\"; int e;\n");
  EXPECT_EQ(file.code.find("throw"), std::string::npos) << file.code;
  EXPECT_NE(file.code.find("int a = 1'000;"), std::string::npos);
  EXPECT_NE(file.code.find("char c = ' ';"), std::string::npos);
  EXPECT_NE(file.code.find("int e;"), std::string::npos);
  EXPECT_EQ(file.place(file.code.find("int e;")), "a.cpp:5");
}

TEST(SourceTreeTest, readsIncludesThatAreNotCommentedOut) {
  const SourceFile file = parseSource(
      "a.cpp", "#include <fx.h>\n//#include \"a\"\n  # include \"host/b.h\"  // why\n/*\n#include \"c\"\n*/\n");
  ASSERT_EQ(file.includes.size(), 2u);
  EXPECT_TRUE(file.includes[0].inBrackets);
  EXPECT_EQ(file.includes[0].name, "fx.h");
  EXPECT_FALSE(file.includes[1].inBrackets);
  EXPECT_EQ(file.includes[1].name, "host/b.h");
  EXPECT_EQ(file.includes[1].line, 3);
}

TEST(LayeringRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::layering(ourTree()), Violations());
}

TEST(LayeringRuleTest, letsEachFolderIncludeWhatIsBeneathItAndNothingElse) {
  const std::vector<std::string> folders = {"fxext/values", "fxext/widgets", "host", "model", "itemdata",
                                            "ui",           "plugin",        "app"};
  const std::vector<std::string> allowed = {
      "10000000",  // fxext/values
      "11000000",  // fxext/widgets
      "10100000",  // host
      "00110000",  // model
      "11101000",  // itemdata
      "11101100",  // ui
      "11111110",  // plugin
      "10100001"   // app
  };
  for (size_t from = 0; from < folders.size(); ++from) {
    for (size_t to = 0; to < folders.size(); ++to) {
      const Violations violations = layering(folders[from] + "/a.h", header(folders[to] + "/b.h"));
      EXPECT_EQ(violations.empty(), allowed[from][to] == '1') << folders[from] << " -> " << folders[to];
    }
    EXPECT_FALSE(layering(folders[from] + "/a.h", header("b.h")).empty()) << folders[from];
    EXPECT_FALSE(layering(folders[from] + "/a.h", header("tests/support/b.h")).empty()) << folders[from];
  }
}

TEST(LayeringRuleTest, keepsOtherLibrariesWhereTheyAreWrapped) {
  EXPECT_EQ(layering("host/ui/a.cpp", "<sqlite3.h>"),
            Violations{"host/ui/a.cpp:2: only host/database includes <sqlite3.h>"});
  EXPECT_EQ(layering("host/database/a.cpp", "<sqlite3.h>"), Violations());
  EXPECT_FALSE(layering("plugin/a.cpp", "<libxml/tree.h>").empty());
  EXPECT_TRUE(layering("host/xml/a.cpp", "<libxml/tree.h>").empty());
  EXPECT_FALSE(layering("app/a.cpp", "<dlfcn.h>").empty());
  EXPECT_FALSE(layering("fxext/widgets/a.h", "<libintl.h>").empty());
  for (const char* fine : {"<fx.h>", "<fxkeys.h>", "<vector>"}) {
    EXPECT_TRUE(layering("fxext/widgets/a.h", fine).empty());
  }
}

TEST(ExceptionRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::exceptions(ourTree()), Violations());
}

TEST(ExceptionRuleTest, seesAThrow) {
  for (const char* folder : {"app", "fxext/values", "host/xml", "itemdata", "model", "plugin", "ui"}) {
    const std::string path = std::string(folder) + "/a.cpp";
    EXPECT_EQ(Rules::exceptions(treeOf(path, "void f() {\n  throw 1;\n}\n")), Violations{path + ":2: throws"});
  }
  EXPECT_EQ(Rules::exceptions(treeOf("host/a.h", "// throw\nvoid throwaway() noexcept;\n")), Violations());
}

TEST(ThreadRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::threads(ourTree()), Violations());
}

TEST(ThreadRuleTest, seesThreadsAndLocks) {
  for (const char* text : {"std::thread t;", "std::jthread t;", "std::mutex m;", "std::recursive_mutex m;",
                           "std::lock_guard g(m);", "std::unique_lock g(m);", "FXThread* t;", "FX::FXMutex m;",
                           "pthread_create(a);", "std::async(f);", "std::atomic<int> a;"}) {
    for (const char* path : {"fxext/widgets/a.cpp", "itemdata/a.h", "model/a.h", "plugin/a.h", "ui/a.h"}) {
      EXPECT_EQ(Rules::threads(treeOf(path, text)).size(), 1u) << text;
    }
    EXPECT_TRUE(Rules::threads(treeOf("host/a.cpp", text)).empty());
  }
  EXPECT_EQ(Rules::threads(treeOf("ui/a.cpp", "#include <mutex>\n")), Violations{"ui/a.cpp:1: <mutex>"});
}

TEST(StreamRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::streams(ourTree()), Violations());
}

TEST(StreamRuleTest, seesTheInclude) {
  EXPECT_EQ(Rules::streams(treeOf("itemdata/a.cpp", "\n#include <iostream>\n")),
            Violations{"itemdata/a.cpp:2: <iostream>"});
  EXPECT_EQ(Rules::streams(treeOf("fxext/widgets/a.h", "#include <iostream>\n")).size(), 1u);
  EXPECT_EQ(Rules::streams(treeOf("fxext/widgets/gallery/a.cpp", "#include <iostream>\n")), Violations());
  EXPECT_EQ(Rules::streams(treeOf("app/a.cpp", "#include <iostream>\n")), Violations());
}

TEST(HandleQueryRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::handleQueries(ourTree()), Violations());
}

TEST(HandleQueryRuleTest, seesASecondOneAndOneElsewhere) {
  const char* const one = "int a = db->queryInt(\"x\", 1, -1);\n";
  EXPECT_EQ(Rules::handleQueries(treeOf("model/a.cpp", one)), Violations());
  EXPECT_EQ(Rules::handleQueries(treeOf("model/a.cpp", std::string(one) + one)),
            Violations{"model/a.cpp:2: asks the handle"});
  EXPECT_EQ(Rules::handleQueries(treeOf("ui/a.cpp", one)),
            (Violations{"ui/a.cpp:1: asks the handle", "model: does not ask the handle"}));
  // A statement's own query is another matter.
  EXPECT_EQ(Rules::handleQueries(treeOf("ui/a.cpp", "statement.queryInt(0);\n")),
            Violations{"model: does not ask the handle"});
}

TEST(ExecutionRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::executions(ourTree()), Violations());
}

TEST(ExecutionRuleTest, seesOtherFlagsAndPlacements) {
  for (const char* right : {"s.execute(&loader, 1);", "s->execute(nullptr, 1);", "s.execute(f(a, b), 1);",
                            "dialog.execute(PLACEMENT_CURSOR);", "dialog->execute(FX::PLACEMENT_CURSOR);"}) {
    EXPECT_EQ(Rules::executions(treeOf("plugin/a.cpp", right)), Violations()) << right;
  }
  EXPECT_EQ(Rules::executions(treeOf("plugin/a.cpp", "s.execute(&loader, 0);")),
            Violations{"plugin/a.cpp:1: the flag is 0"});
  for (const char* wrong :
       {"s->execute(\n  nullptr,\n  flag);", "dialog.execute(FX::PLACEMENT_OWNER);", "dialog.execute();"}) {
    EXPECT_EQ(Rules::executions(treeOf("ui/a.cpp", wrong)).size(), 1u) << wrong;
  }
}

TEST(TimerRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::timers(ourTree()), Violations());
}

TEST(TimerRuleTest, seesTimersAndChores) {
  EXPECT_EQ(Rules::timers(treeOf("fxext/widgets/FXComboBox.cpp", "app->addTimeout(this, 1, 2);")), Violations());
  EXPECT_EQ(Rules::timers(treeOf("ui/a.cpp", "app->addTimeout(this, 1, 2);")), Violations{"ui/a.cpp:1: a timer"});
  EXPECT_EQ(Rules::timers(treeOf("fxext/widgets/FXComboBox.cpp", "app->addChore(this, 1);")),
            Violations{"fxext/widgets/FXComboBox.cpp:1: a chore"});
}

TEST(SilenceRuleTest, holdsForOurSources) {
  EXPECT_EQ(Rules::silence(ourTree()), Violations());
}

TEST(SilenceRuleTest, seesMessageBoxesAndOutput) {
  for (const char* text : {"FXMessageBox::error(w);", "std::cerr << 1;", "std::printf(a);", "fxwarning(a);"}) {
    EXPECT_EQ(Rules::silence(treeOf("itemdata/a.cpp", text)), Violations{"itemdata/a.cpp:1: speaks"}) << text;
    EXPECT_EQ(Rules::silence(treeOf("ui/a.cpp", text)), Violations());
  }
}

TEST(SilencedCheckRuleTest, holdsForAllOurSources) {
  const SourceTree everything(SOURCE_FOLDER,
                              {"app", "bench", "fuzz", "fxext", "host", "itemdata", "model", "plugin", "tests", "ui"});
  EXPECT_GT(everything.files().size(), ourTree().files().size());
  EXPECT_EQ(Rules::silencedChecks(everything), Violations());
}

TEST(SilencedCheckRuleTest, wantsANameAndAReason) {
  for (const char* fine :
       {"f();  // NOLINT(cert-env33-c): nothing in it comes from outside",
        "// The interface has it so.\n// NOLINTNEXTLINE(a)",
        "// NOLINTBEGIN(a,b): another library's names\n// NOLINTEND(a,b)", "const char* text = \"NOLINT\";",
        "// cppcheck-suppress danglingLifetime ; main outlives it", "// lint is said nothing of"}) {
    EXPECT_EQ(Rules::silencedChecks(treeOf("ui/a.cpp", fine)), Violations()) << fine;
  }
  for (const char* unexplained : {"f();  // NOLINT(cert-env33-c)", "f();  // NOLINT(cert-env33-c): ",
                                  "int i;\n// NOLINTNEXTLINE(a)", "// NOLINTNEXTLINE(a): why\n// NOLINTNEXTLINE(b)",
                                  "// NOLINTBEGIN(a)", "// cppcheck-suppress danglingLifetime"}) {
    const Violations violations = Rules::silencedChecks(treeOf("ui/a.cpp", unexplained));
    ASSERT_EQ(violations.size(), 1u) << unexplained;
    EXPECT_NE(violations[0].find("without a reason"), std::string::npos) << violations[0];
  }
  for (const char* unnamed : {"// NOLINT", "// NOLINT: why", "// NOLINTNEXTLINE(*): why", "// NOLINT(cert-*): why"}) {
    EXPECT_EQ(Rules::silencedChecks(treeOf("ui/a.cpp", unnamed)), Violations{"ui/a.cpp:1: silences any check"})
        << unnamed;
  }
}
