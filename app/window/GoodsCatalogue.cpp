#include "app/window/GoodsCatalogue.h"

#include <algorithm>

#include "app/window/Collation.h"
#include "host/database/DataBaseValueLoader.h"
#include "host/database/IntegerText.h"
#include "host/database/MorvaneDatabase.h"
#include "host/entity/InvoiceItem.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

namespace {

constexpr const char* kSelect =
    "select 1, t_product_id, code, name, unit, price from t_product union all "
    "select 2, t_service_id, code, name, unit, price from t_service union all "
    "select 3, t_suite_id, code, name, unit, price from t_suite";
static_assert(GOODS_PRODUCT == 1 && GOODS_SERVICE == 2 && GOODS_SUITE == 3);

}  // namespace

class GoodsCatalogue::Loader : public DataBaseValueLoader {
 public:
  explicit Loader(std::vector<Goods>& goods) : goods_(goods) {}

  int processValue(int column, const char* name, const char* value) override {
    if (column == 0) goods_.emplace_back();
    Goods& goods = goods_.back();
    const FXString text(value);
    if (column == 0) goods.kind = Database::toInt(value);
    if (column == 1) goods.id = Database::toInt(value);
    if (column == 2) goods.code = text;
    if (column == 3) goods.name = text;
    if (column == 4) goods.unit = text;
    if (column == 5) goods.price = text;
    return DataBaseValueLoader::processValue(column, name, value);
  }

 private:
  std::vector<Goods>& goods_;
};

FXString GoodsCatalogue::Goods::getLabel() const {
  FXString label = code.empty() ? name : name + " [" + code + "]";
  // A list shows one line each.
  for (const FX::FXchar c : {'\t', '\n', '\r'}) label.substitute(c, ' ');
  return label;
}

void GoodsCatalogue::load(MorvaneDatabase& database) {
  goods_.clear();
  Loader loader(goods_);
  database.run(kSelect, {}, &loader);
  std::stable_sort(goods_.begin(), goods_.end(),
                   [](const Goods& a, const Goods& b) { return comesBefore(a.name, b.name); });
}

const GoodsCatalogue::Goods* GoodsCatalogue::find(const FXString& text) const {
  const FXString wanted = folded(text);
  const Goods* found = nullptr;
  for (const Goods& goods : goods_) {
    if (folded(goods.getLabel()) == wanted) return &goods;
    if (folded(goods.name) != wanted && folded(goods.code) != wanted) continue;
    if (found != nullptr) return nullptr;
    found = &goods;
  }
  return found;
}

const GoodsCatalogue::Goods* GoodsCatalogue::findBeginning(const FXString& text) const {
  const FXString wanted = folded(text);
  if (wanted.empty()) return nullptr;
  const Goods* byCode = nullptr;
  const Goods* containing = nullptr;
  for (const Goods& goods : goods_) {
    const FXString label = folded(goods.getLabel());
    if (label.left(wanted.length()) == wanted) return &goods;
    if (byCode == nullptr && folded(goods.code).left(wanted.length()) == wanted) byCode = &goods;
    if (containing == nullptr && label.find(wanted) >= 0) containing = &goods;
  }
  return byCode != nullptr ? byCode : containing;
}

}  // namespace Brontel::App
