#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include <gtest/gtest.h>
#include <libintl.h>

#include "tests/support/ChildProcess.h"
#include "tests/support/CollectingErrorSink.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/TestApplication.h"
#include "tests/support/TestDatabase.h"
#include "tests/support/Unprivileged.h"

// What the other tests stand on.

using Brontel::Database::BoundValue;

TEST(TestEnvironmentTest, eachTestHasAHomeOfItsOwnAndAPlainLocale) {
  EXPECT_TRUE(std::filesystem::is_directory(getenv("HOME")));
  EXPECT_NE(std::string(getenv("HOME")).find("brontel-test-"), std::string::npos);
  EXPECT_EQ(std::string(getenv("XDG_DATA_HOME")), std::string(getenv("HOME")) + "/XDG_DATA_HOME");
  EXPECT_EQ(getenv("LANGUAGE"), nullptr);
  EXPECT_EQ(getenv("DISPLAY"), nullptr);
  EXPECT_STREQ(setlocale(LC_CTYPE, nullptr), "C.UTF-8");
  EXPECT_STREQ(setlocale(LC_MESSAGES, nullptr), "C_HU.UTF-8");
}

TEST(TemporaryDirectoryTest, goesWithEverythingInIt) {
  std::string path;
  {
    const TemporaryDirectory directory;
    path = directory.path();
    EXPECT_EQ(readFile(directory.write("a", "text")), "text");
    std::filesystem::create_directories(directory.path("closed/inner"));
    std::filesystem::permissions(directory.path("closed"), std::filesystem::perms::none);
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TestDatabaseTest, showsWhatIsStoredWithItsTypes) {
  TestDatabase database;
  database.exec("create table t (t_id integer primary key, a text, b integer)");
  database.exec("insert into t (a, b) values ('7', 7), (null, -1), ('', null)");
  EXPECT_EQ(database.text("select count(*) from t"), "3");
  EXPECT_EQ(database.text("select a from t where b=-1"), "NULL");
  EXPECT_EQ(database.text("select a from t where b=100"), "");
  EXPECT_EQ(database.rows("select a, b from t order by t_id"),
            (std::vector<std::vector<std::string>>{{"7", "7"}, {"NULL", "-1"}, {"", "NULL"}}));
  EXPECT_EQ(database.dump(),
            "table t: CREATE TABLE t (t_id integer primary key, a text, b integer)\n"
            "  1  '7'  7\n  2  NULL  -1\n  3  ''  NULL\n");
}

TEST(TestDatabaseTest, doesNotShowWhatIsNotCommitted) {
  TestDatabase database;
  database.exec("create table t (a)");
  database.exec("begin");
  database.exec("insert into t values (1)");
  EXPECT_EQ(database.text("select count(*) from t"), "0");
  database.exec("commit");
  EXPECT_EQ(database.text("select count(*) from t"), "1");
}

TEST(RecordingObserverTest, recordsTextsAndValuesUntilItGoes) {
  TestDatabase database;
  {
    RecordingObserver recorder(database.handle());
    EXPECT_TRUE(database->run("select %a, %b", {BoundValue{"a", false, 5, {}}, BoundValue{"b", true, 0, "x"}}));
    EXPECT_TRUE(database->run("select 1"));
    EXPECT_EQ(recorder.texts(), (std::vector<std::string>{"select %a, %b [a=5, b='x']", "select 1"}));
    EXPECT_EQ(recorder.records()[0].value("b"), "'x'");
    EXPECT_EQ(recorder.records()[0].value("c"), "");
    EXPECT_EQ(recorder.count("select"), 2);
  }
  EXPECT_TRUE(database->run("select 2"));
}

TEST(FaultObserverTest, failsTheGivenStatementOnceOrFromThenOn) {
  TestDatabase database;
  {
    FaultObserver fault(database.handle(), 2);
    EXPECT_TRUE(database->run("select 1"));
    EXPECT_FALSE(database->run("select 1"));
    EXPECT_TRUE(database->run("select 1"));
    EXPECT_EQ(fault.count(), 3);
    EXPECT_EQ(fault.faults(), 1);
  }
  FaultObserver fault(database.handle(), 2, FaultObserver::Mode::FromThenOn);
  EXPECT_TRUE(database->run("select 1"));
  EXPECT_FALSE(database->run("select 1"));
  EXPECT_FALSE(database->run("select 1"));
}

TEST(CollectingErrorSinkTest, keepsEveryFailure) {
  TestDatabase database;
  const CollectingErrorSink sink(database.handle());
  EXPECT_FALSE(database->run("nonsense"));
  EXPECT_FALSE(database->run("select * from missing"));
  ASSERT_EQ(sink.errors().size(), 2u);
  EXPECT_STREQ(sink.errors()[0].statement.text(), "nonsense");
}

TEST(ChildProcessTest, keepsOutputsAndExitCodeAndSetsTheEnvironment) {
  setenv("BRONTEL_TEST_GONE", "here", 1);
  ChildProcess child({"sh", "-c", "echo \"$BRONTEL_TEST_VALUE|$BRONTEL_TEST_GONE\"; cat; echo problem >&2; exit 3"});
  child.setEnvironment("BRONTEL_TEST_VALUE", "a b");
  child.removeEnvironment("BRONTEL_TEST_GONE");
  EXPECT_EQ(child.run(), 3);
  EXPECT_EQ(child.getOutput(), "a b|\n");
  EXPECT_EQ(child.getErrors(), "problem\n");
  EXPECT_EQ(child.getSignal(), 0);
  EXPECT_FALSE(child.isTimedOut());
}

TEST(ChildProcessTest, endsWhatTakesTooLong) {
  ChildProcess child({"sleep", "60"});
  child.setTimeout(100);
  EXPECT_EQ(child.run(), -1);
  EXPECT_TRUE(child.isTimedOut());
  EXPECT_EQ(child.getSignal(), SIGKILL);
}

TEST(ChildProcessTest, canBeKilledMeanwhileAndTellsOfAMissingProgram) {
  ChildProcess child({"sleep", "60"});
  ASSERT_TRUE(child.start());
  child.kill(SIGTERM);
  EXPECT_EQ(child.wait(), -1);
  EXPECT_EQ(child.getSignal(), SIGTERM);
  EXPECT_EQ(ChildProcess({"/no/such/program"}).run(), 127);
  EXPECT_EQ(ChildProcess({}).run(), -1);
}

TEST(ChildProcessTest, isIdleOnceItsWorkIsDone) {
  const TemporaryDirectory directory;
  const std::string done = directory.path("done");
  ChildProcess child({"sh", "-c", "i=0; while [ $i -lt 50000 ]; do i=$((i+1)); done; : > \"$0\"; exec sleep 60", done});
  ASSERT_TRUE(child.start());
  EXPECT_TRUE(child.waitUntilIdle());
  EXPECT_EQ(access(done.c_str(), F_OK), 0);
}

TEST(ChildProcessTest, takesLargeOutputsOnBothPipes) {
  ChildProcess child({"sh", "-c", "head -c 300000 /dev/zero; head -c 300000 /dev/zero >&2"});
  EXPECT_EQ(child.run(), 0);
  EXPECT_EQ(child.getOutput().size(), 300000u);
  EXPECT_EQ(child.getErrors().size(), 300000u);
}

TEST(MessageCatalogTest, isFoundByGettext) {
  const TemporaryDirectory directory;
  MessageCatalog catalog;
  catalog.add("Tétel\t\"a\\b\"\n", "Item\t\"a\\b\"\n");
  ASSERT_TRUE(catalog.install(directory.path(), "en", "some-domain"));
  setenv("LANGUAGE", "en", 1);
  bindtextdomain("some-domain", directory.path().c_str());
  bind_textdomain_codeset("some-domain", "UTF-8");
  EXPECT_STREQ(dgettext("some-domain", "Tétel\t\"a\\b\"\n"), "Item\t\"a\\b\"\n");
  unsetenv("LANGUAGE");
}

TEST(UnprivilegedTest, cannotWriteWhatIsNotItsOwn) {
  const TemporaryDirectory directory;
  directory.share();
  std::filesystem::permissions(directory.path(), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove);
  {
    const Unprivileged nobody;
    EXPECT_EQ(access(directory.path().c_str(), R_OK), 0);
    EXPECT_EQ(eaccess(directory.path().c_str(), W_OK), -1);
    EXPECT_EQ(errno, EACCES);
  }
}

TEST(TestApplicationTest, runsOnADisplayOfItsOwn) {
  std::string name;
  {
    TestApplication application;
    name = application.display().name();
    EXPECT_EQ(name, getenv("DISPLAY"));
    auto* window = new FX::FXMainWindow(application.get(), "test", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 200, 100);
    application.create();
    window->show(FX::PLACEMENT_SCREEN);
    EXPECT_TRUE(application.waitUntil([window] { return window->shown() && window->getWidth() == 200; }));
    EXPECT_TRUE(window->id() != 0);
  }
  EXPECT_EQ(getenv("DISPLAY"), nullptr);
  TestApplication second;
  EXPECT_TRUE(second->isInitialized());
}
