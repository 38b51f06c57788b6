// Several hosts on one database.

#include <iostream>
#include <sstream>

#include "tests/support/FileConnection.h"
#include "tests/trust/HostProcess.h"
#include "tests/trust/ProcessTest.h"

namespace {

std::vector<long> numbersOf(const ChildProcess& process) {
  std::istringstream text(process.getOutput());
  std::vector<long> numbers;
  for (long number = 0; text >> number;) numbers.push_back(number);
  return numbers;
}

class ManyAtOnceTest : public ProcessTest {
 protected:
  std::string text(const std::string& sql) const {
    const auto rows = FileConnection(database).rows(sql);
    return rows.empty() ? "" : rows[0][0];
  }

  void run(int seconds) {
    const std::string time = std::to_string(seconds);
    std::vector<std::unique_ptr<ChildProcess>> all;
    all.push_back(process({"write", time, "A"}));
    all.push_back(process({"write", time, "B"}));
    all.push_back(process({"read", time}));
    for (const auto& one : all) {
      // Whoever is kept waiting gives up after five seconds; more than that is a deadlock.
      one->setTimeout((seconds + 30) * 1000);
      ASSERT_TRUE(one->start());
    }
    for (const auto& one : all) {
      EXPECT_EQ(one->wait(), 0) << one->getErrors();
      EXPECT_FALSE(one->isTimedOut());
      EXPECT_EQ(one->getErrors(), "");
    }
    if (HasFailure()) return;
    judge(numbersOf(*all[0]), numbersOf(*all[1]), numbersOf(*all[2]));
  }

  void judge(const std::vector<long>& a, const std::vector<long>& b, const std::vector<long>& reader) {
    ASSERT_EQ(a.size(), 3u);
    ASSERT_EQ(b.size(), 3u);
    ASSERT_EQ(reader.size(), 2u);
    std::cout << a[0] << " and " << b[0] << " counted, " << a[1] << " and " << b[1]
              << " told that they were overtaken, " << a[2] << " and " << b[2] << " invoices of their own, "
              << reader[0] << " read\n";
    EXPECT_GT(a[0], 0);
    EXPECT_GT(b[0], 0);
    EXPECT_GT(reader[0], 0);
    // It began at 1, and nobody's step is lost.
    EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=1"), std::to_string(1 + a[0] + b[0]));
    EXPECT_EQ(text("select count(distinct value) from t_invoiceitemdata where t_invoiceitem_1=1"), "1");
    EXPECT_EQ(text("select count(*) from t_invoiceitemdata where t_invoiceitem_1=1"), "61");
    EXPECT_EQ(text("select count(*) from t_invoice where number glob '[AB]/*'"), std::to_string(a[2] + b[2]));
    // Each with a note and two rows of three.
    EXPECT_EQ(text("select count(*) from t_invoiceitemdata where t_invoiceitem_1<>1"),
              std::to_string(7 * (a[2] + b[2])));
    EXPECT_EQ(text("pragma journal_mode"), "wal");
    expectUndamaged();
  }
};

using LongManyAtOnceTest = ManyAtOnceTest;

}  // namespace

TEST_F(ManyAtOnceTest, noUpdateIsLostWithoutAMessage) {
  run(4);
}

TEST_F(LongManyAtOnceTest, noUpdateIsLostWithoutAMessageInAMinute) {
  run(60);
}

TEST_F(ManyAtOnceTest, aCopyMadeMeanwhileIsOfOneMoment) {
  const std::unique_ptr<ChildProcess> writer = process({"write", "3", "A"});
  ASSERT_TRUE(writer->start());
  int copies = 0;
  HostProcess host;
  ASSERT_TRUE(host.open(database, HostProcess::Use::Read));
  for (; copies < 20 && !HasFailure(); ++copies) {
    const std::string copy = directory.path("copy" + std::to_string(copies));
    ASSERT_TRUE(host.handle().backupTo(copy.c_str())) << host.takeError();
    FileConnection connection(copy);
    EXPECT_EQ(connection.rows("pragma integrity_check")[0][0], "ok");
    EXPECT_EQ(connection.rows("pragma journal_mode")[0][0], "delete");
    EXPECT_EQ(connection.rows("select count(distinct value) from t_invoiceitemdata where t_invoiceitem_1=1")[0][0],
              "1");
  }
  EXPECT_EQ(writer->wait(), 0) << writer->getErrors();
}
