#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "host/message/ListOfMessage.h"
#include "host/ui/DBForm.h"
#include "tests/host/message/CountingEvent.h"
#include "tests/support/TestApplication.h"

using Brontel::DBForm;
using Brontel::Message;

namespace {

class TestForm : public DBForm {
 public:
  TestForm(FX::FXApp* app, int& checks) : DBForm(app, "form"), checks_(checks) {}

  std::function<void()> onCheck;

 protected:
  void checkAll() override {
    ++checks_;
    if (onCheck) onCheck();
  }

 private:
  int& checks_;
};

class DBFormTest : public ::testing::Test {
 protected:
  TestApplication application;
  int checks = 0;
};

}  // namespace

TEST_F(DBFormTest, checksOnceAndNotBeforeTheApplicationIsIdle) {
  TestForm form(application.get(), checks);
  for (int i = 0; i < 5; ++i) form.proposeCheckAll();
  EXPECT_EQ(checks, 0);
  EXPECT_TRUE(application.waitUntil([this] { return checks > 0; }));
  application.processEvents();
  EXPECT_EQ(checks, 1);
  form.proposeCheckAll();
  EXPECT_TRUE(application.waitUntil([this] { return checks > 1; }));
  application.processEvents();
  EXPECT_EQ(checks, 2);
}

TEST_F(DBFormTest, canBeAskedAgainByACheck) {
  TestForm form(application.get(), checks);
  form.onCheck = [&] {
    if (checks < 3) form.proposeCheckAll();
  };
  form.proposeCheckAll();
  EXPECT_TRUE(application.waitUntil([this] { return checks == 3; }));
}

TEST_F(DBFormTest, checksNothingAfterItsEnd) {
  {
    TestForm form(application.get(), checks);
    form.proposeCheckAll();
  }
  application.processEvents();
  application.processEvents();
  EXPECT_EQ(checks, 0);
}

TEST_F(DBFormTest, letsAnEventOfAMessageEndBeforeTheMessageGoes) {
  TestForm form(application.get(), checks);
  int living = 0;
  int livingAfterProposal = 0;
  std::unique_ptr<Message> message;
  form.onCheck = [&] { message.reset(); };
  message = std::make_unique<Message>("", 0, "", "",
                                      new CountingEvent(living,
                                                        [&] {
                                                          form.proposeCheckAll();
                                                          livingAfterProposal = living;
                                                        }),
                                      nullptr, nullptr);
  message->getEvent()->execute(message.get(), 0);
  EXPECT_EQ(livingAfterProposal, 1);
  ASSERT_NE(message, nullptr);
  EXPECT_TRUE(application.waitUntil([&] { return message == nullptr; }));
  EXPECT_EQ(living, 0);
}

TEST_F(DBFormTest, isAWindow) {
  TestForm form(application.get(), checks);
  FX::FXWindow* window = &form;
  EXPECT_TRUE(window->isMemberOf(&DBForm::metaClass));
  EXPECT_STREQ(form.getTitle().text(), "form");
}
