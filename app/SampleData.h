#pragma once

class MorvaneDatabase;

namespace Brontel::App {

/// Goods, item variables and invoices to try the program with.
class SampleData {
 public:
  enum class Result {
    Done,
    NotEmpty,  ///< the database has data already; nothing is mixed into them
    NoTables,  ///< the tables of the item data are missing
    Failed     ///< the database refused a statement; its handle says why
  };

  /// Borrows the database.
  explicit SampleData(MorvaneDatabase& database) : database_(database) {}

  /// Puts everything in, or nothing.
  Result insert();

 private:
  bool hasTables();
  bool isEmpty();

  MorvaneDatabase& database_;
};

}  // namespace Brontel::App
