#include <memory>
#include <type_traits>

#include <fxkeys.h>

#include "host/message/Message.h"
#include "plugin/InvoiceCheck.h"
#include "plugin/RepairItemDataMessageEvent.h"
#include "tests/plugin/FormFixture.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"

using Brontel::InvoiceItem;
using Brontel::Message;
using Brontel::MessageEvent;
using namespace Brontel::Plugin::ItemData;

static_assert(std::is_base_of_v<MessageEvent, RepairItemDataMessageEvent>);
static_assert(std::is_same_v<decltype(std::declval<RepairItemDataMessageEvent>().execute(nullptr, 0)), void>);

class RepairItemDataMessageEventTest : public FormFixture {
 protected:
  explicit RepairItemDataMessageEventTest(MorvaneDatabase* database = nullptr) : FormFixture(database) {}

  /// Closes the dialog that comes.
  void answerWith(void (*end)(FX::FXWindow&)) {
    user.whenModal([end](FX::FXWindow& modal) { end(modal); });
  }
  Texts check() {
    Messages messages;
    InvoiceCheck(&container).checkInvoice(form, &invoice, messages, "X");
    return messages.summary();
  }
};

TEST_F(RepairItemDataMessageEventTest, knowsItsKindParentAndItem) {
  const RepairItemDataMessageEvent event(form, &item);
  EXPECT_EQ(event.getKind(), 2);
  EXPECT_EQ(event.getParent(), form);
  EXPECT_EQ(event.getItem(), &item);
}

TEST_F(RepairItemDataMessageEventTest, goesWithItsMessageButLeavesTheItem) {
  auto message =
      std::make_unique<Message>("C", 1, "text", "title", nullptr, new RepairItemDataMessageEvent(form, &item), nullptr);
  EXPECT_NE(message->getRepairEvent(), nullptr);
  message.reset();
  EXPECT_STREQ(item.getName().text(), "0");
}

TEST_F(RepairItemDataMessageEventTest, opensTheDialogOfTheItemOverTheForm) {
  show();
  user.whenModal([this](FX::FXWindow& modal) {
    auto& dialog = dynamic_cast<ItemDataDialog&>(modal);
    EXPECT_EQ(dialog.getOwner(), form);
    EXPECT_STREQ(dialog.getTitle().text(), "0 egyéb tételadatai");
    EXPECT_EQ(form->proposals, 0);
    accept(modal);
  });
  RepairItemDataMessageEvent(form, &item).execute(nullptr, 0);
  EXPECT_EQ(user.scriptsLeft(), 0u);
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(RepairItemDataMessageEventTest, theFormChecksAgainAlsoAfterCancelling) {
  show();
  answerWith(cancel);
  RepairItemDataMessageEvent(form, &item).execute(nullptr, 0);
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(RepairItemDataMessageEventTest, theDialogGoesLast) {
  show();
  size_t whenProposed = 0;
  form->whenProposed = [&] { whenProposed = dialogs().size(); };
  answerWith(accept);
  RepairItemDataMessageEvent(form, &item).execute(nullptr, 0);
  EXPECT_EQ(whenProposed, 1u);
  EXPECT_EQ(dialogs().size(), 0u);
}

TEST_F(RepairItemDataMessageEventTest, canBeRepeated) {
  show();
  RepairItemDataMessageEvent event(form, &item);
  answerWith(accept);
  event.execute(nullptr, 0);
  answerWith(cancel);
  event.execute(nullptr, 99);
  EXPECT_EQ(user.scriptsLeft(), 0u);
  EXPECT_EQ(form->proposals, 2);
}

TEST_F(RepairItemDataMessageEventTest, mayBeDeletedByTheCheckThatItProposes) {
  show();
  auto* event = new RepairItemDataMessageEvent(form, &item);
  auto message = std::make_unique<Message>("C", 1, "text", "title", nullptr, event, nullptr);
  form->whenProposed = [&message] { message.reset(); };
  answerWith(accept);
  event->execute(message.get(), 0);
  EXPECT_EQ(message, nullptr);
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(RepairItemDataMessageEventTest, mayBeDeletedWhileTheDialogRuns) {
  show();
  auto* event = new RepairItemDataMessageEvent(form, &item);
  auto message = std::make_unique<Message>("C", 1, "text", "title", nullptr, event, nullptr);
  user.whenModal([&message](FX::FXWindow& modal) {
    message.reset();
    accept(modal);
  });
  event->execute(message.get(), 0);
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(RepairItemDataMessageEventTest, leavesALineThatIsGoneInPeace) {
  show();
  auto* lost = new InvoiceItem;
  invoice.appendItem(lost);
  RepairItemDataMessageEvent event(form, lost);
  invoice.removeItem(1);
  event.execute(nullptr, 0);
  EXPECT_EQ(form->proposals, 1);
  form->invoice = nullptr;
  event.execute(nullptr, 0);
  EXPECT_EQ(form->proposals, 2);
}

TEST_F(RepairItemDataMessageEventTest, needsAWindowOnTheScreen) {
  RepairItemDataMessageEvent(nullptr, &item).execute(nullptr, 0);
  RepairItemDataMessageEvent(form, &item).execute(nullptr, 0);
  EXPECT_EQ(dialogs().size(), 0u);
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(RepairItemDataMessageEventTest, worksOverAWindowThatIsNoForm) {
  auto* foreign = new FX::FXMainWindow(app.get(), "no form", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 200, 100);
  show();
  foreign->show(FX::PLACEMENT_DEFAULT);
  answerWith(accept);
  RepairItemDataMessageEvent(foreign, &item).execute(nullptr, 0);
  EXPECT_EQ(user.scriptsLeft(), 0u);
  EXPECT_EQ(form->proposals, 0);
}

TEST_F(RepairItemDataMessageEventTest, whatHasBeenMendedIsReportedNoMore) {
  show();
  // As a wrong quantity and an empty mandatory cell arise: a row typed in, and not completed.
  ItemDataList& list = *ItemDataList::of(&item);
  item.setGoods(Brontel::GOODS_PRODUCT, 1);
  addRow(list, 1, "3", "", "kék");
  EXPECT_EQ(check(), (Texts{"less", "must Megjegyzés", "may Sarzs"}));
  user.whenModal([this](FX::FXWindow& modal) {
    // The note, then the quantity, then the batch.
    user.type("M");
    user.key(FX::KEY_Return);
    user.type("S1");
    user.key(FX::KEY_Tab, {FX::KEY_Shift_L});
    user.type("5");
    user.key(FX::KEY_Return);
    accept(modal);
  });
  RepairItemDataMessageEvent(form, &item).execute(nullptr, 0);
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék"}));
  EXPECT_EQ(check(), Texts());
}

TEST(RepairSavingTest, nothingRunsOnTheDatabase) {
  struct Fixture : RepairItemDataMessageEventTest {
    explicit Fixture(MorvaneDatabase* handle) : RepairItemDataMessageEventTest(handle) {}
    void TestBody() override {
      show();
      answerWith(accept);
      RepairItemDataMessageEvent(form, &item).execute(nullptr, 0);
    }
  };
  TestDatabase database;
  const RecordingObserver recorder(database.handle());
  Fixture(database.get()).TestBody();
  EXPECT_EQ(recorder.texts(), std::vector<std::string>());
}
