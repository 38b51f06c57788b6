#include "tour/GoodsChapter.h"

#include <fxkeys.h>

#include "app/window/OpenWindow.h"
#include "host/ui/GoodsDataWindow.h"
#include "tests/support/Failure.h"
#include "tour/Story.h"
#include "tour/Texts.h"

namespace Tour {

using Brontel::GoodsDataWindow;
using FX::FXint;

namespace {

std::string associationsOf(const std::string& kind) {
  return "select a.direction, a.position, v.name from t_" + kind +
         "itemdata a join t_itemvariable v on "
         "v.t_itemvariable_id=a.t_itemvariable_1 join t_" +
         kind + " g on g.t_" + kind + "_id=a.t_" + kind + "_1 where g.name='" +
         (kind == "product" ? Story::kProduct : Story::kService) + "' order by 1, 2";
}

}  // namespace

void GoodsChapter::play() {
  addProduct();
  editService();
}

void GoodsChapter::addProduct() {
  stage_.useMain();
  user_.key(FX::KEY_2, {FX::KEY_Control_L});
  press(stage_.useMain(), shownOf(hostText("Ú&j...\tÚj felvétele (Ins)")));
  GoodsDataWindow* window = newestGoods();
  if (window == nullptr) return;
  typeInto(window->getCodeField(), Story::kProductCode);
  typeInto(window->getNameField(), Story::kProduct);
  typeInto(window->getUnitField(), Story::kProductUnit);
  typeInto(window->getPriceField(), Story::kProductPrice);
  picture("product");
  const Panel panel = openPanel(*window);
  if (panel.lists.empty()) return;
  clickLine(panel.lists[INCOMING_FREE], Story::kSerialNumber, true);
  for (const char* variable : {Story::kSerialNumber, Story::kCalibration, Story::kColour}) {
    takeForSales(panel, variable);
  }
  expectLines(*panel.lists[INCOMING_CHOSEN], {Story::kSerialNumber});
  expectLines(*panel.lists[OUTGOING_CHOSEN], {Story::kSerialNumber, Story::kCalibration, Story::kColour});
  picture("association");
  accept(*window);
  expectRows(std::string("select code, name, unit, price from t_product where name='") + Story::kProduct + "'",
             {{Story::kProductCode, Story::kProduct, Story::kProductUnit, Story::kProductPrice}});
  expectRows(associationsOf("product"), {{"100", "1", Story::kSerialNumber},
                                         {"100", "2", Story::kCalibration},
                                         {"100", "3", Story::kColour},
                                         {"200", "1", Story::kSerialNumber}});
}

void GoodsChapter::editService() {
  stage_.useMain();
  user_.key(FX::KEY_3, {FX::KEY_Control_L});
  if (auto* list = firstSeen<FX::FXIconList>(stage_.useMain())) doubleClickLine(list, 0);
  GoodsDataWindow* window = newestGoods();
  if (window == nullptr) return;
  expect("the service", window->getNameField()->getText().text(), Story::kService);
  const Panel panel = openPanel(*window);
  if (panel.lists.empty()) return;
  expectLines(*panel.lists[OUTGOING_CHOSEN], {Story::kPlace});
  for (const char* variable : {Story::kWorkSheet, Story::kNextInspection}) takeForSales(panel, variable);
  // The number of the work sheet comes first.
  clickLine(panel.lists[OUTGOING_CHOSEN], Story::kWorkSheet);
  user_.click(panel.arrows[ARROWS + UP]);
  expectLines(*panel.lists[OUTGOING_CHOSEN], {Story::kWorkSheet, Story::kPlace, Story::kNextInspection});
  picture("association-service");
  accept(*window);
  expectRows(associationsOf("service"),
             {{"100", "1", Story::kWorkSheet}, {"100", "2", Story::kPlace}, {"100", "3", Story::kNextInspection}});
}

GoodsDataWindow* GoodsChapter::newestGoods() {
  auto* window = dynamic_cast<GoodsDataWindow*>(stage_.useNewest());
  if (window == nullptr) reportFailure("no goods have been opened");
  return window;
}

GoodsChapter::Panel GoodsChapter::openPanel(FX::FXWindow& window) {
  for (const FX::FXTabItem* tab : descendantsOf<FX::FXTabItem>(&window)) {
    if (tab->getText() == pluginText("Tételadatok").c_str()) user_.click(tab);
  }
  Panel panel;
  for (FX::FXList* list : descendantsOf<FX::FXList>(&window)) {
    if (isSeen(list)) panel.lists.push_back(list);
  }
  for (FX::FXArrowButton* arrow : descendantsOf<FX::FXArrowButton>(&window)) {
    if (isSeen(arrow)) panel.arrows.push_back(arrow);
  }
  if (panel.lists.size() == LISTS && panel.arrows.size() == size_t{2} * ARROWS) return panel;
  reportFailure("the plug-in's panel has not come");
  return {};
}

void GoodsChapter::takeForSales(const Panel& panel, const char* variable) {
  clickLine(panel.lists[OUTGOING_FREE], variable);
  user_.click(panel.arrows[ARROWS + CHOOSE]);
}

void GoodsChapter::expectLines(const FX::FXList& list, const Texts& expected) {
  Texts lines;
  for (FXint i = 0; i < list.getNumItems(); ++i) lines.emplace_back(list.getItemText(i).text());
  expect("the variables", lines, expected);
}

void GoodsChapter::accept(FX::FXWindow& window) {
  press(window, shownOf(hostText("&OK")));
  stage_.application.waitUntil([this] { return stage_.workspace->getWindows().empty(); });
}

}  // namespace Tour
