// The dialog as people see it. DIALOG_PICTURES names a folder to which the pictures are saved to look at.

#include <cstdlib>
#include <set>

#include "fxext/widgets/gallery/Picture.h"
#include "itemdata/Codes.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXColor;
using FX::FXint;

class DialogPictureTest : public DialogFixture {
 protected:
  /// Shows the dialog and takes its picture.
  std::unique_ptr<Picture> picture(const std::string& name) {
    open();
    auto taken = std::make_unique<Picture>(dialog.get());
    const char* const folder = std::getenv("DIALOG_PICTURES");
    if (folder != nullptr) {
      EXPECT_TRUE(taken->save((folder + ("/" + name + ".png")).c_str()));
    }
    return taken;
  }

  /// How many colours there are in a window's part of the picture.
  size_t coloursOf(const Picture& taken, const FX::FXWindow* window) const {
    FXint left = 0;
    FXint top = 0;
    window->translateCoordinatesTo(left, top, dialog.get(), 0, 0);
    std::set<FXColor> colours;
    for (FXint y = top; y < top + window->getHeight(); ++y) {
      for (FXint x = left; x < left + window->getWidth(); ++x) colours.insert(taken.at(x, y));
    }
    return colours.size();
  }

  /// Each window inside another lies within it.
  static void expectInside(const FX::FXWindow* window) {
    for (const FX::FXWindow* child = window->getFirst(); child != nullptr; child = child->getNext()) {
      if (!child->shown() || dynamic_cast<const FX::FXScrollArea*>(window) != nullptr) continue;
      EXPECT_LE(child->getX() + child->getWidth(), window->getWidth()) << child->getClassName();
      EXPECT_LE(child->getY() + child->getHeight(), window->getHeight()) << child->getClassName();
      EXPECT_GT(child->getHeight(), 1) << child->getClassName();
      expectInside(child);
    }
  }

  void expectDrawn(const Picture& taken) const {
    expectInside(dialog.get());
    EXPECT_GT(coloursOf(taken, okButton()), 3u);
    if (table() != nullptr) {
      EXPECT_GT(coloursOf(taken, table()), 5u);
    }
  }
};

TEST_F(DialogPictureTest, perItemOnly) {
  newListOf(perItemSettings());
  ItemDataList& list = *ItemDataList::of(&item);
  list.at(0)->value = "Hűtve tárolandó";
  list.at(1)->value = "2026.05.31";
  list.at(2)->value = "kék";
  expectDrawn(*picture("per-item"));
}

TEST_F(DialogPictureTest, perUnitOnly) {
  newRows({{"2", "S-2024/001", "kék"}, {"2,5", "S-2024/002", "piros"}, {"0.5", "", ""}});
  expectDrawn(*picture("per-unit"));
}

TEST_F(DialogPictureTest, both) {
  ItemDataList& list = newListOf(newTemplate());
  list.at(0)->value = "Hűtve tárolandó";
  addRow(list, 1, "3", "S-2024/001", "kék");
  addRow(list, 2, "2", "S-2024/002", "piros");
  expectDrawn(*picture("both"));
}

TEST_F(DialogPictureTest, firstOpening) {
  newListOf(perUnitSettings());
  expectDrawn(*picture("first-opening"));
}

TEST_F(DialogPictureTest, empty) {
  expectDrawn(*picture("empty"));
}

TEST_F(DialogPictureTest, manyRows) {
  std::vector<std::vector<std::string>> rows;
  for (int row = 1; row <= 200; ++row) rows.push_back({"1", "SN-" + std::to_string(row), row % 2 == 0 ? "kék" : ""});
  newRows(rows);
  expectDrawn(*picture("many-rows"));
}

TEST_F(DialogPictureTest, manyInputs) {
  std::vector<Variable> variables;
  for (int id = 20; id < 32; ++id) variables.push_back({TYPE_TEXT, id, "Egy hosszabb nevű változó", false});
  newListOf(settingsOf(variables));
  expectDrawn(*picture("many-inputs"));
}
