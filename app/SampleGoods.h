#pragma once

#include <vector>

class MorvaneDatabase;

namespace Brontel::App {

/// The sample's item variables and the goods that carry them.
class SampleGoods {
 public:
  enum Variable { SERIAL_NUMBER, EXPIRY, BATCH, PLACE, SEAL, QUANTITY };
  enum Goods { DEFIBRILLATOR, GEL, INSPECTION, FIRST_AID_KIT };

  /// An item of an invoice takes these over.
  struct GoodsData {
    int kind;  ///< a GoodsKind
    const char* table;
    const char* code;
    const char* name;
    const char* unit;
    const char* price;
  };

  /// Borrows the database.
  explicit SampleGoods(MorvaneDatabase& database) : database_(database) {}

  /// False when the database refuses a statement.
  bool insert();

  static const GoodsData& dataOf(Goods goods);
  /// Keys of what insert has stored.
  int idOf(Goods goods) const { return goods_[goods]; }
  int idOf(Variable variable) const;

 private:
  bool insertVariables();
  bool insertGoods();
  bool insertAssociations();

  MorvaneDatabase& database_;
  std::vector<int> variables_;
  std::vector<int> goods_;
};

}  // namespace Brontel::App
