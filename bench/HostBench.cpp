// What the host library adds to the C interface of SQLite.

#include <benchmark/benchmark.h>
#include <memory>

#include "bench/Bench.h"
#include "bench/PlainSqlite.h"
#include "bench/Workload.h"
#include "host/database/DataBaseValueLoader.h"
#include "host/database/InsertStatement.h"
#include "host/database/Statement.h"
#include "host/database/Transaction.h"

namespace {

using Brontel::Database::Transaction;

constexpr int kStatements = 1000;

std::unique_ptr<Workload> workload;
std::unique_ptr<PlainDatabase> plainDatabase;

class OneText : public DataBaseValueLoader {
 public:
  int processValue(int column, const char* name, const char* value) override {
    text = value;
    return DataBaseValueLoader::processValue(column, name, value);
  }

  FX::FXString text;
};

void fillRows() {
  workload->removeAll();
  workload->saveInvoice(kStatements);
}

void pointSelect(benchmark::State& state) {
  fillRows();
  const Transaction transaction(workload->database(), Transaction::Kind::Read);
  for (auto _ : state) {
    for (int key = 1; key <= kStatements; ++key) {
      Statement statement(&workload->database(), "select value from t_invoiceitemdata where t_invoiceitemdata_id=%id");
      statement.setInt("id", key);
      OneText loader;
      statement.execute(&loader, 1);
      benchmark::DoNotOptimize(loader.text);
    }
  }
}

void plainPointSelect(benchmark::State& state) {
  fillRows();
  PlainStatement statement(*plainDatabase, "select value from t_invoiceitemdata where t_invoiceitemdata_id=?1");
  plainDatabase->run("begin");
  for (auto _ : state) {
    for (int key = 1; key <= kStatements; ++key) {
      statement.bind(1, key);
      std::string text;
      if (statement.step() && statement.text(0) != nullptr) text = statement.text(0);
      statement.reset();
      benchmark::DoNotOptimize(text);
    }
  }
  plainDatabase->run("commit");
}

void insert(benchmark::State& state) {
  for (auto _ : state) {
    Transaction transaction(workload->database());
    for (int i = 0; i < kStatements; ++i) {
      InsertStatement statement(&workload->database(), "t_product");
      statement.setString("name", "A product like many others");
      statement.setString("unit", "db");
      statement.setInt("version", i);
      statement.execute(nullptr, 1);
    }
    transaction.rollback();
  }
}

void plainInsert(benchmark::State& state) {
  PlainStatement statement(*plainDatabase, "insert into t_product(name,unit,version) values(?1,?2,?3)");
  const std::string name = "A product like many others";
  const std::string unit = "db";
  for (auto _ : state) {
    plainDatabase->run("begin immediate");
    for (int i = 0; i < kStatements; ++i) {
      statement.bind(1, name);
      statement.bind(2, unit);
      statement.bind(3, i);
      statement.run();
    }
    plainDatabase->run("rollback");
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const auto measureOnce = [](const char* name, void (*function)(benchmark::State&)) {
    benchmark::RegisterBenchmark(name, function)->Arg(kStatements)->Unit(benchmark::kMicrosecond);
  };
  measureOnce("statement, point select:ours", pointSelect);
  measureOnce("statement, point select:plain", plainPointSelect);
  measureOnce("statement, insert:ours", insert);
  measureOnce("statement, insert:plain", plainInsert);
  {
    Brontel::Morvane application;
    workload = std::make_unique<Workload>(application);
    plainDatabase = std::make_unique<PlainDatabase>(workload->file().text());
    benchmark::RunSpecifiedBenchmarks();
    plainDatabase.reset();
    workload.reset();
  }
  return 0;
}
