#include "app/Command.h"
#include "app/Session.h"
#include "app/Tabbed.h"

namespace Brontel::App {

Outcome runList(Session& session) {
  TabbedRows rows(session.output, 6);
  const bool done = session.database.handle().run(
      "select t_invoice_id, number, t_invoicetype_1, t_invoicestatus_1, partner, "
      "(select count(*) from t_invoiceitem item where item.t_invoice_1=invoice.t_invoice_id) "
      "from t_invoice invoice order by t_invoice_id",
      {}, &rows);
  return done ? Outcome() : databaseFailed();
}

}  // namespace Brontel::App
