#pragma once

#include <fx.h>

namespace Brontel::App {

class GoodsCatalogue;

/// The editor of a goods cell: a list that opens with the goods, and a field that completes what is typed.
class GoodsCombo : public FX::FXComboBox {
  FXDECLARE(GoodsCombo)

 public:
  /// Borrows the catalogue. Made for a table, whose colours, font and margins it takes.
  GoodsCombo(FX::FXTable* table, const GoodsCatalogue& catalogue, const FX::FXString& text);
  GoodsCombo(const GoodsCombo&) = delete;
  GoodsCombo& operator=(const GoodsCombo&) = delete;

  /// Puts the cursor into the field with its text selected.
  void startTyping();

  long onTyped(FX::FXObject*, FX::FXSelector, void*);

 protected:
  GoodsCombo() = default;

 private:
  const GoodsCatalogue* catalogue_ = nullptr;
  FX::FXString typed_;
};

}  // namespace Brontel::App
