#include "app/SampleData.h"

#include "app/SampleGoods.h"
#include "app/SampleInvoices.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/Transaction.h"

namespace Brontel::App {

SampleData::Result SampleData::insert() {
  Database::Transaction transaction(database_);
  if (!transaction.isOpen()) return Result::Failed;
  if (!hasTables()) return Result::NoTables;
  if (!isEmpty()) return Result::NotEmpty;
  SampleGoods goods(database_);
  const bool done = goods.insert() && insertSampleInvoices(database_, goods);
  return done && transaction.commit() ? Result::Done : Result::Failed;
}

bool SampleData::hasTables() {
  return database_.queryInt(
             "select count(*) from sqlite_master where type='table' and name in ('t_itemvariable', "
             "'t_invoiceitemdata', 't_productitemdata', 't_serviceitemdata', 't_suiteitemdata')",
             1, 0) == 5;
}

bool SampleData::isEmpty() {
  return database_.queryInt(
             "select (select count(*) from t_product) + (select count(*) from t_service) + (select count(*) from "
             "t_suite) + (select count(*) from t_invoice) + (select count(*) from t_itemvariable where type>0)",
             1, -1) == 0;
}

}  // namespace Brontel::App
