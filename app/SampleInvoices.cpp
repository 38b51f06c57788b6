#include "app/SampleInvoices.h"

#include <vector>

#include "app/SampleGoods.h"
#include "host/database/InsertStatement.h"
#include "host/database/MorvaneDatabase.h"
#include "host/entity/Invoice.h"

namespace Brontel::App {

namespace {

constexpr int kNone = -1;

constexpr int kOutgoing = 101;
constexpr int kIncoming = 201;

struct InvoiceData {
  const char* number;
  int type;
  int status;
  int source;  // its place in kInvoices, or kNone
  const char* partner;
  const char* date;
};

struct ItemData {
  int invoice;  // its place in kInvoices
  SampleGoods::Goods goods;
  const char* quantity;
  int source;  // its place in kItems, or kNone
};

struct CellData {
  int item;  // its place in kItems
  SampleGoods::Variable variable;
  int row;  // 0 for what is recorded once per item
  const char* value;
};

enum InvoicePlace { COMPLETE, FAULTY, BOUGHT, SOLD, RETURNED };

constexpr InvoiceData kInvoices[] = {
    {"K-2025/0117", kOutgoing, STATUS_OPEN, kNone, "Szegedi Városi Uszoda", "2025-03-03"},
    {"K-2025/0118", kOutgoing, STATUS_OPEN, kNone, "Hársfa Idősek Otthona", "2025-03-04"},
    {"B-2025/0042", kIncoming, STATUS_CLOSED, kNone, "Corvus Orvosi Eszközök Kft.", "2025-02-10"},
    {"K-2025/0096", kOutgoing, STATUS_CLOSED, kNone, "Bükkaljai Általános Iskola", "2025-02-18"},
    {"K-2025/0096/J1", kOutgoing, STATUS_OPEN, SOLD, "Bükkaljai Általános Iskola", "2025-03-05"},
};

enum ItemPlace {
  COMPLETE_DEFIBRILLATORS,
  COMPLETE_GEL,
  COMPLETE_INSPECTION,
  COMPLETE_KIT,
  FAULTY_DEFIBRILLATORS,
  FAULTY_GEL,
  FAULTY_INSPECTION,
  BOUGHT_DEFIBRILLATORS,
  BOUGHT_GEL,
  SOLD_DEFIBRILLATORS,
  SOLD_GEL,
  SOLD_INSPECTION,
  RETURNED_DEFIBRILLATORS,
  RETURNED_GEL
};

constexpr ItemData kItems[] = {
    {COMPLETE, SampleGoods::DEFIBRILLATOR, "2", kNone},
    {COMPLETE, SampleGoods::GEL, "12", kNone},
    {COMPLETE, SampleGoods::INSPECTION, "1.5", kNone},
    {COMPLETE, SampleGoods::FIRST_AID_KIT, "1", kNone},
    {FAULTY, SampleGoods::DEFIBRILLATOR, "3", kNone},
    {FAULTY, SampleGoods::GEL, "6", kNone},
    {FAULTY, SampleGoods::INSPECTION, "1", kNone},
    {BOUGHT, SampleGoods::DEFIBRILLATOR, "6", kNone},
    {BOUGHT, SampleGoods::GEL, "48", kNone},
    {SOLD, SampleGoods::DEFIBRILLATOR, "4", kNone},
    {SOLD, SampleGoods::GEL, "10", kNone},
    {SOLD, SampleGoods::INSPECTION, "2", kNone},
    {RETURNED, SampleGoods::DEFIBRILLATOR, "2", SOLD_DEFIBRILLATORS},
    {RETURNED, SampleGoods::GEL, "4", SOLD_GEL},
};

constexpr CellData kCells[] = {
    {COMPLETE_DEFIBRILLATORS, SampleGoods::QUANTITY, 1, "1"},
    {COMPLETE_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 1, "DF5-240871"},
    {COMPLETE_DEFIBRILLATORS, SampleGoods::EXPIRY, 1, "2027.05.31"},
    {COMPLETE_DEFIBRILLATORS, SampleGoods::QUANTITY, 2, "1"},
    {COMPLETE_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 2, "DF5-240872"},
    {COMPLETE_DEFIBRILLATORS, SampleGoods::EXPIRY, 2, "2027.05.31"},
    {COMPLETE_GEL, SampleGoods::BATCH, 0, "KG-2411/07"},
    {COMPLETE_INSPECTION, SampleGoods::PLACE, 0, "Kiszállás"},
    {COMPLETE_KIT, SampleGoods::SEAL, 0, "PL-004183"},

    // One of three units has a row, without serial number and expiry; the batch and the place are missing.
    {FAULTY_DEFIBRILLATORS, SampleGoods::QUANTITY, 1, "1"},
    {FAULTY_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 1, ""},
    {FAULTY_DEFIBRILLATORS, SampleGoods::EXPIRY, 1, ""},
    {FAULTY_GEL, SampleGoods::BATCH, 0, ""},
    {FAULTY_INSPECTION, SampleGoods::PLACE, 0, ""},

    // Two units by their own numbers, four by a range.
    {BOUGHT_DEFIBRILLATORS, SampleGoods::QUANTITY, 1, "1"},
    {BOUGHT_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 1, "DF5-240881"},
    {BOUGHT_DEFIBRILLATORS, SampleGoods::EXPIRY, 1, "2027.08.31"},
    {BOUGHT_DEFIBRILLATORS, SampleGoods::QUANTITY, 2, "1"},
    {BOUGHT_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 2, "DF5-240882"},
    {BOUGHT_DEFIBRILLATORS, SampleGoods::EXPIRY, 2, "2027.08.31"},
    {BOUGHT_DEFIBRILLATORS, SampleGoods::QUANTITY, 3, "4"},
    {BOUGHT_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 3, "DF5-240883–886"},
    {BOUGHT_DEFIBRILLATORS, SampleGoods::EXPIRY, 3, "2027.09.30"},
    {BOUGHT_GEL, SampleGoods::BATCH, 0, "KG-2501/12"},

    {SOLD_DEFIBRILLATORS, SampleGoods::QUANTITY, 1, "1"},
    {SOLD_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 1, "DF5-240881"},
    {SOLD_DEFIBRILLATORS, SampleGoods::EXPIRY, 1, "2027.08.31"},
    {SOLD_DEFIBRILLATORS, SampleGoods::QUANTITY, 2, "3"},
    {SOLD_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 2, "DF5-240883–885"},
    {SOLD_DEFIBRILLATORS, SampleGoods::EXPIRY, 2, "2027.09.30"},
    {SOLD_GEL, SampleGoods::BATCH, 0, "KG-2501/12"},
    {SOLD_INSPECTION, SampleGoods::PLACE, 0, "Telephely"},

    // A row keeps the number that it has on the invoice it comes from: that is how what is left of it is found.
    {RETURNED_DEFIBRILLATORS, SampleGoods::QUANTITY, 2, "2"},
    {RETURNED_DEFIBRILLATORS, SampleGoods::SERIAL_NUMBER, 2, "DF5-240884–885"},
    {RETURNED_DEFIBRILLATORS, SampleGoods::EXPIRY, 2, "2027.09.30"},
    {RETURNED_GEL, SampleGoods::BATCH, 0, "KG-2501/12"},
};

/// Stores the tables above, keeping the keys.
class Writer {
 public:
  Writer(MorvaneDatabase& database, const SampleGoods& goods) : database_(database), goods_(goods) {}

  bool write() { return writeInvoices() && writeItems() && writeCells(); }

 private:
  bool writeInvoices() {
    for (const InvoiceData& invoice : kInvoices) {
      InsertStatement statement(&database_, "t_invoice");
      statement.setString("number", invoice.number);
      statement.setInt("t_invoicetype_1", invoice.type);
      statement.setInt("t_invoicestatus_1", invoice.status);
      if (invoice.source != kNone) statement.setInt("t_invoice_1", at(invoices_, invoice.source));
      statement.setString("partner", invoice.partner);
      statement.setString("date", invoice.date);
      statement.setInt("version", 1);
      if (statement.execute(nullptr, 1) == 0) return false;
      invoices_.push_back(database_.lastInsertId());
    }
    return true;
  }

  bool writeItems() {
    int position = 0;
    int invoice = kNone;
    for (const ItemData& item : kItems) {
      position = item.invoice == invoice ? position + 1 : 1;
      invoice = item.invoice;
      const SampleGoods::GoodsData& goods = SampleGoods::dataOf(item.goods);
      InsertStatement statement(&database_, "t_invoiceitem");
      statement.setInt("t_invoice_1", at(invoices_, invoice));
      statement.setInt("position", position);
      statement.setString("name", goods.name);
      statement.setInt("goodskind", goods.kind);
      statement.setInt("goods", goods_.idOf(item.goods));
      statement.setString("quantity", item.quantity);
      statement.setString("unit", goods.unit);
      statement.setString("price", goods.price);
      if (item.source != kNone) statement.setInt("t_invoiceitem_1", at(items_, item.source));
      if (statement.execute(nullptr, 1) == 0) return false;
      items_.push_back(database_.lastInsertId());
    }
    return true;
  }

  bool writeCells() {
    for (const CellData& cell : kCells) {
      InsertStatement statement(&database_, "t_invoiceitemdata");
      statement.setInt("t_itemvariable_1", goods_.idOf(cell.variable));
      statement.setInt("t_invoiceitem_1", at(items_, cell.item));
      statement.setInt("row", cell.row);
      statement.setString("value", cell.value);
      if (statement.execute(nullptr, 1) == 0) return false;
    }
    return true;
  }

  static int at(const std::vector<int>& ids, int place) { return ids[static_cast<size_t>(place)]; }

  MorvaneDatabase& database_;
  const SampleGoods& goods_;
  std::vector<int> invoices_;
  std::vector<int> items_;
};

}  // namespace

bool insertSampleInvoices(MorvaneDatabase& database, const SampleGoods& goods) {
  return Writer(database, goods).write();
}

}  // namespace Brontel::App
