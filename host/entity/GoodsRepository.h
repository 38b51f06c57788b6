#pragma once

#include <vector>

#include <fx.h>

#include "host/entity/InvoiceItem.h"

class MorvaneDatabase;

namespace Brontel {

/// What is stored of a product, service or suite.
struct Goods {
  int id = 0;       ///< 0 until it has been saved
  int version = 0;  ///< raised at each save
  FX::FXString code;
  FX::FXString name;
  FX::FXString unit;
  FX::FXString price;

  bool operator==(const Goods&) const = default;
};

/// Reads and writes the goods of one kind.
class GoodsRepository {
 public:
  enum class Result {
    Done,
    NotFound,  ///< no such goods
    Failed,    ///< the database refused a statement; its handle says why
    Overtaken  ///< somebody else has saved or deleted the goods since they were loaded
  };

  /// Borrows the database. The kind is one of the three that are sold.
  GoodsRepository(MorvaneDatabase& database, GoodsKind kind) : database_(database), kind_(kind) {}

  GoodsKind getKind() const { return kind_; }
  /// Where the kind is stored: "t_product", "t_service" or "t_suite".
  FX::FXString getTable() const { return tableOf(kind_); }
  static const char* tableOf(GoodsKind kind);

  /// Those with the text in their code or name, in whatever case, ordered by name; an empty text finds all.
  std::vector<Goods> find(const FX::FXString& text);

  Result load(int id, Goods& goods);
  /// Writes the goods and, when that is done, gives them their new version, and new ones their key. A transaction is
  /// the caller's business: he takes both back when it is rolled back.
  Result save(Goods& goods);

 private:
  MorvaneDatabase& database_;
  GoodsKind kind_;
};

}  // namespace Brontel
