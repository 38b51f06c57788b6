#include "app/window/GoodsCombo.h"

#include <algorithm>

#include "app/window/GoodsCatalogue.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

FXDEFMAP(GoodsCombo)
goodsComboMap[] = {
    FXMAPFUNC(FX::SEL_CHANGED, GoodsCombo::ID_TEXT, GoodsCombo::onTyped),
};

FXIMPLEMENT(GoodsCombo, FXComboBox, goodsComboMap, ARRAYNUMBER(goodsComboMap))

namespace {

constexpr FXint kVisibleLines = 12;

}  // namespace

GoodsCombo::GoodsCombo(FX::FXTable* table, const GoodsCatalogue& catalogue, const FXString& text)
    : FXComboBox(table, 1, nullptr, 0, FX::COMBOBOX_NO_REPLACE, 0, 0, 0, 0, table->getMarginLeft(),
                 table->getMarginRight(), table->getMarginTop(), table->getMarginBottom()),
      catalogue_(&catalogue) {
  setFont(table->getFont());
  setBackColor(table->getBackColor());
  setTextColor(table->getTextColor());
  setSelBackColor(table->getSelBackColor());
  setSelTextColor(table->getSelTextColor());
  for (const GoodsCatalogue::Goods& goods : catalogue.getGoods()) appendItem(goods.getLabel());
  setNumVisible(std::max(1, std::min(kVisibleLines, getNumItems())));
  setText(text);
}

void GoodsCombo::startTyping() {
  field->setFocus();
  field->selectAll();
}

// The rest of the name appears selected behind what was typed, so that going on replaces it. Only while the text grows:
// whoever deletes wants to get rid of it.
long GoodsCombo::onTyped(FX::FXObject*, FX::FXSelector, void*) {
  const FXString text = field->getText();
  const bool grew = text.length() > typed_.length();
  typed_ = text;
  if (!grew || field->getCursorPos() != text.length()) return 1;
  const GoodsCatalogue::Goods* goods = catalogue_->findBeginning(text);
  if (goods == nullptr) return 1;
  setCurrentItem(static_cast<FXint>(goods - catalogue_->getGoods().data()), FALSE);
  // Choosing the line has put its text into the field. What does not continue the typed text is only offered.
  const FXString label = goods->getLabel();
  const bool continues = FX::comparecase(label, text, text.length()) == 0;
  field->setText(continues ? text + label.right(label.length() - text.length()) : text);
  field->setCursorPos(text.length());
  field->setAnchorPos(field->getText().length());
  field->extendSelection(text.length());
  return 1;
}

}  // namespace Brontel::App
