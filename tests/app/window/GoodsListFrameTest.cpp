#include <fxkeys.h>

#include "app/window/GoodsListFrame.h"
#include "app/window/GoodsWindow.h"
#include "app/window/OpenWindow.h"
#include "host/ui/ProductDataWindow.h"
#include "host/ui/ServiceDataWindow.h"
#include "tests/app/window/WindowFixture.h"

using Brontel::GoodsDataWindow;
using Brontel::App::GoodsListFrame;
using Brontel::App::OpenWindow;

namespace {

class GoodsListFrameTest : public WindowFixture {
 protected:
  GoodsListFrameTest() {
    main_ = new FX::FXMainWindow(application.get(), "main", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 700, 400);
  }
  ~GoodsListFrameTest() override {
    for (OpenWindow* window : std::vector<OpenWindow*>(workspace->getWindows())) delete window->getWindow();
    delete main_;
  }

  GoodsListFrame& show(Brontel::GoodsKind kind = Brontel::GOODS_PRODUCT) {
    frame_ = new GoodsListFrame(main_, *workspace, kind);
    main_->create();
    main_->show(FX::PLACEMENT_SCREEN);
    user.giveKeyboardTo(main_);
    return *frame_;
  }
  std::string lines() const {
    std::string text;
    for (FX::FXint i = 0; i < frame_->getList()->getNumItems(); ++i) {
      FX::FXString line = frame_->getList()->getItemText(i);
      text += std::string(line.substitute('\t', ';').text()) + "|";
    }
    return text;
  }
  /// The goods window that has opened last; null when there is none.
  GoodsDataWindow* newest() const {
    const auto& windows = workspace->getWindows();
    return windows.empty() ? nullptr : dynamic_cast<GoodsDataWindow*>(windows.back()->getWindow());
  }
  void closeNewest() {
    ASSERT_NE(newest(), nullptr);
    EXPECT_TRUE(newest()->close(TRUE));
    user.giveKeyboardTo(main_);
  }

  FX::FXMainWindow* main_;
  GoodsListFrame* frame_ = nullptr;
};

}  // namespace

TEST_F(GoodsListFrameTest, listsTheGoodsOfItsKindByName) {
  exec(
      "delete from t_product; insert into t_product (t_product_id, code, name, unit, price) values "
      "(3,'B','Zsámoly','db','5'), (4,'A','asztal\tX','db','7'), (5,null,null,null,null)");
  const GoodsListFrame& frame = show();
  EXPECT_EQ(lines(), ";;;|A;asztal X;db;7|B;Zsámoly;db;5|");
  EXPECT_EQ(frame.getGoodsId(0), 5);
  EXPECT_EQ(frame.getGoodsId(2), 3);
  EXPECT_EQ(frame.getGoodsId(3), 0);
  EXPECT_EQ(frame.getGoodsId(-1), 0);
}

TEST_F(GoodsListFrameTest, searchesWhileOneTypes) {
  exec("delete from t_product; insert into t_product (code, name) values ('B','Zsámoly'), ('A','Asztal'), ('Z','Ágy')");
  GoodsListFrame& frame = show();
  user.click(frame.getSearchField());
  user.type("z");
  EXPECT_EQ(lines(), "A;Asztal;;|B;Zsámoly;;|Z;Ágy;;|");
  user.type("s");
  EXPECT_EQ(lines(), "B;Zsámoly;;|");
  user.key(FX::KEY_Return);
  EXPECT_TRUE(frame.getList()->hasFocus());
  user.click(frame.getSearchField());
  user.type("qq");
  EXPECT_EQ(lines(), "");
  user.key(FX::KEY_Return);
  EXPECT_FALSE(frame.getList()->hasFocus()) << "there is nothing to go to";
}

TEST_F(GoodsListFrameTest, opensByDoubleClickEnterKeyButtonAndMenu) {
  GoodsListFrame& frame = show();
  FX::FXIconList* list = frame.getList();
  const int id = frame.getGoodsId(0);
  const FX::FXint y = list->getItemHeight() / 2 + list->getHeader()->getHeight();
  user.moveTo(list, 30, y);
  user.events.doubleClick();
  user.settle();
  ASSERT_NE(newest(), nullptr);
  EXPECT_EQ(newest()->getCurrentId(), id);
  closeNewest();
  list->setFocus();
  for (const unsigned key : {FX::KEY_Return, FX::KEY_F2}) {
    user.key(key);
    ASSERT_NE(newest(), nullptr) << key;
    EXPECT_EQ(newest()->getCurrentId(), id);
    closeNewest();
  }
  user.click(findButton(*main_, "Szerkesztés..."));
  closeNewest();
  user.whenModal([this](FX::FXWindow& menu) {
    const auto entries = descendantsOf<FX::FXMenuCommand>(&menu);
    ASSERT_EQ(entries.size(), 2u);
    user.click(entries[1]);
  });
  user.clickAt(list, 30, y, 3);
  closeNewest();
  EXPECT_EQ(newest(), nullptr);
}

TEST_F(GoodsListFrameTest, theMenuShowsKeysWithoutTakingThemFromTheWindow) {
  const GoodsListFrame& frame = show();
  const FX::FXAccelTable& keys = *main_->getAccelTable();
  const FX::FXHotKey taken = FX::parseAccel("Ins");
  const FX::FXHotKey free = FX::parseAccel("Enter");
  main_->getAccelTable()->addAccel(taken, main_);
  Texts shown;
  user.whenModal([&](FX::FXWindow& menu) {
    for (const FX::FXMenuCommand* entry : descendantsOf<FX::FXMenuCommand>(&menu)) {
      shown.emplace_back(entry->getAccelText().text());
    }
    EXPECT_EQ(keys.targetOfAccel(taken), main_);
    EXPECT_FALSE(keys.hasAccel(free));
    user.key(FX::KEY_Escape);
  });
  user.clickAt(frame.getList(), 30, frame.getList()->getHeader()->getHeight() + 5, 3);
  EXPECT_EQ(shown, (Texts{"Ins", "Enter"}));
  EXPECT_EQ(keys.targetOfAccel(taken), main_);
  EXPECT_FALSE(keys.hasAccel(free));
}

TEST_F(GoodsListFrameTest, opensANewOneByInsAndButton) {
  const GoodsListFrame& frame = show(Brontel::GOODS_SERVICE);
  frame.getList()->setFocus();
  user.key(FX::KEY_Insert);
  ASSERT_NE(newest(), nullptr);
  EXPECT_EQ(newest()->getCurrentId(), 0);
  EXPECT_NE(dynamic_cast<Brontel::ServiceDataWindow*>(newest()), nullptr);
  closeNewest();
  user.click(findButton(*main_, "Új..."));
  closeNewest();
}

TEST_F(GoodsListFrameTest, showsThePluginsPanelAndTellsWhatWasSaved) {
  GoodsListFrame& frame = show();
  workspace->setListener(main_, 77);
  openGoodsWindow(*workspace, main_, Brontel::GOODS_PRODUCT, frame.getGoodsId(0));
  GoodsDataWindow* window = newest();
  ASSERT_NE(window, nullptr);
  user.giveKeyboardTo(window);
  const auto tabs = descendantsOf<FX::FXTabItem>(window);
  ASSERT_EQ(tabs.size(), 2u);
  EXPECT_STREQ(tabs[1]->getText().text(), "Tételadatok");
  window->getNameField()->setText("AAA & 'x'");
  user.key(FX::KEY_o, {FX::KEY_Alt_L});
  EXPECT_EQ(newest(), nullptr);
  workspace->setListener(nullptr, 0);
  frame.refresh();
  EXPECT_NE(lines().find("AAA & 'x'"), std::string::npos);
}

TEST_F(GoodsListFrameTest, raisesTheWindowThatIsOpenAlready) {
  const GoodsListFrame& frame = show();
  const int id = frame.getGoodsId(0);
  GoodsDataWindow* first = openGoodsWindow(*workspace, main_, Brontel::GOODS_PRODUCT, id);
  EXPECT_EQ(openGoodsWindow(*workspace, main_, Brontel::GOODS_PRODUCT, id), first);
  EXPECT_NE(openGoodsWindow(*workspace, main_, Brontel::GOODS_SERVICE, 1), first);
  EXPECT_NE(openGoodsWindow(*workspace, main_, Brontel::GOODS_PRODUCT, 0),
            openGoodsWindow(*workspace, main_, Brontel::GOODS_PRODUCT, 0));
  EXPECT_EQ(workspace->getWindows().size(), 4u);
}

TEST_F(GoodsListFrameTest, tellsThatSomebodyElseHasDeletedIt) {
  show();
  answerNext("OK");
  EXPECT_EQ(openGoodsWindow(*workspace, main_, Brontel::GOODS_PRODUCT, 999), nullptr);
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_NE(boxes()[0].find("Közben más törölte"), std::string::npos);
  EXPECT_TRUE(workspace->getWindows().empty());
}

TEST_F(GoodsListFrameTest, theWorkspaceSavesAndReloadsItsWindows) {
  const GoodsListFrame& frame = show();
  const int id = frame.getGoodsId(0);
  GoodsDataWindow* window = openGoodsWindow(*workspace, main_, Brontel::GOODS_PRODUCT, id);
  ASSERT_NE(window, nullptr);
  OpenWindow& open = *workspace->getWindows().front();
  EXPECT_EQ(open.getWindow(), window);
  EXPECT_FALSE(open.hasUnsavedChanges());
  window->getNameField()->setText("mentett");
  EXPECT_TRUE(open.hasUnsavedChanges());
  EXPECT_TRUE(open.saveChanges());
  EXPECT_FALSE(open.hasUnsavedChanges());
  EXPECT_EQ(text("select name from t_product where t_product_id=" + std::to_string(id)), "mentett");
  exec("update t_product set name='más', version=9 where t_product_id=" + std::to_string(id));
  open.reload();
  EXPECT_STREQ(window->getNameField()->getText().text(), "más");
  EXPECT_TRUE(workspace->closeWindows());
  EXPECT_TRUE(workspace->getWindows().empty());
}

TEST_F(GoodsListFrameTest, keepsItsPlaceWhenItLooksAgain) {
  GoodsListFrame& frame = show();
  ASSERT_GE(frame.getList()->getNumItems(), 2);
  frame.getList()->setCurrentItem(1);
  const int id = frame.getGoodsId(1);
  exec("insert into t_product (name) values (' elöl')");
  frame.refresh();
  EXPECT_EQ(frame.getGoodsId(frame.getList()->getCurrentItem()), id);
}
