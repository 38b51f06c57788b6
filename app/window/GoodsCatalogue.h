#pragma once

#include <vector>

#include <fx.h>

class MorvaneDatabase;

namespace Brontel::App {

/// Goods of all kinds as an invoice item takes them over.
class GoodsCatalogue {
 public:
  struct Goods {
    int kind = 0;  ///< a GoodsKind
    int id = 0;
    FX::FXString code;
    FX::FXString name;
    FX::FXString unit;
    FX::FXString price;

    /// How lists call it: name and code.
    FX::FXString getLabel() const;
  };

  /// Reads the catalogue by name. What cannot be read is missing; the database tells its error sink.
  void load(MorvaneDatabase& database);

  const std::vector<Goods>& getGoods() const { return goods_; }
  /// The goods of that label, name or code, in any case; null when there are none or several.
  const Goods* find(const FX::FXString& text) const;
  /// The first goods whose label begins with the text, failing that the code, failing that contains it, in any case;
  /// null for none.
  const Goods* findBeginning(const FX::FXString& text) const;

 private:
  class Loader;

  std::vector<Goods> goods_;
};

}  // namespace Brontel::App
