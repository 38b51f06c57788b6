// The windows as people see them. WINDOW_PICTURES names a folder to which the pictures are saved to look at.

#include <cstdlib>
#include <set>

#include <fxkeys.h>

#include "fxext/widgets/FXDualList.h"
#include "fxext/widgets/gallery/Picture.h"
#include "host/ui/ProductDataWindow.h"
#include "tests/plugin/WindowFixture.h"

using FX::FXint;
using FX::FXWindow;

namespace {

class WindowPictureTest : public WindowFixture {
 protected:
  WindowPictureTest() {
    database.exec(
        "insert into t_product (t_product_id, code, name, unit, price) values (1, 'KAN-1', 'Kanapé', 'db', '89900')");
    database.exec(
        "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
        "(1,'Gyári szám',1,1,1,''), (2,'Lejárat',2,1,0,''), (3,'Szín & minta',3,0,1,'piros,kék'), "
        "(4,'Egy egészen hosszú nevű változó, amely nem fér ki',1,0,0,''), (5,'Garancia',2,0,1,''), "
        "(6,'Méret',3,0,0,'S,M,L')");
    database.exec(
        "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values (1,1,1,100), "
        "(1,3,2,100), (1,5,3,100), (1,1,1,200)");
  }

  /// Takes the window's picture; each part of it has to lie inside, and to show something.
  void look(const FXWindow* window, const char* name) {
    user.settle();
    const Picture picture(window);
    const char* const folder = std::getenv("WINDOW_PICTURES");
    if (folder != nullptr) {
      EXPECT_TRUE(picture.save((std::string(folder) + "/" + name + ".png").c_str()));
    }
    expectInside(window);
    std::set<FX::FXColor> colours;
    for (FXint y = 0; y < picture.height(); ++y) {
      for (FXint x = 0; x < picture.width(); ++x) colours.insert(picture.at(x, y));
    }
    EXPECT_GT(colours.size(), 8u) << name;
  }
  static void expectInside(const FXWindow* window) {
    for (const FXWindow* child = window->getFirst(); child != nullptr; child = child->getNext()) {
      if (!child->shown() || dynamic_cast<const FX::FXScrollArea*>(window) != nullptr) continue;
      EXPECT_LE(child->getX() + child->getWidth(), window->getWidth()) << child->getClassName();
      EXPECT_LE(child->getY() + child->getHeight(), window->getHeight()) << child->getClassName();
      EXPECT_GT(child->getHeight(), 0) << child->getClassName();
      expectInside(child);
    }
  }
};

}  // namespace

TEST_F(WindowPictureTest, theSettings) {
  openSettings({[this](FXWindow* dialog) {
    user.giveKeyboardTo(dialog);
    user.key(FX::KEY_Down);
    EXPECT_TRUE(tableOf(dialog).hasFocus());
    EXPECT_EQ(tableOf(dialog).getCurrentRow(), 1);
    EXPECT_TRUE(tableOf(dialog).isItemSelected(1, 0));
    look(dialog, "settings");
    user.clickCell(&tableOf(dialog), 2, 1);
    user.key(FX::KEY_F2);
    look(dialog, "settings-choice");
    cancel(dialog);
  }});
}

TEST_F(WindowPictureTest, aProduct) {
  auto* window = new Brontel::ProductDataWindow(application.get(), "");
  ASSERT_EQ(window->open(database.handle(), registry, 1), Brontel::GoodsRepository::Result::Done);
  window->create();
  window->show(FX::PLACEMENT_SCREEN);
  user.giveKeyboardTo(window);
  look(window, "product");
  window->getTabs()->setCurrent(1, TRUE);
  look(window, "product-panel");
  const auto lists = descendantsOf<FXExt::FXDualList>(window);
  ASSERT_EQ(lists.size(), 2u);
  EXPECT_NEAR(lists[0]->getHeight(), lists[1]->getHeight(), 2);
  EXPECT_GT(lists[0]->getToList()->getHeight(), 3 * lists[0]->getToList()->getItemHeight(0));
}
