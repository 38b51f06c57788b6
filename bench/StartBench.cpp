// What starting with the plug-in costs above opening the database, when all tables are there.

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>

#include "host/database/MorvaneDatabase.h"
#include "host/entity/EntityTables.h"
#include "host/plugin/PluginLibrary.h"
#include "host/ui/Morvane.h"

namespace {

Brontel::Morvane* app;
FX::FXString file;

bool open(MorvaneDatabase& database) {
  return database.open(file, MorvaneDatabase::OpenMode::Existing);
}

void openAlone(benchmark::State& state) {
  for (auto _ : state) {
    MorvaneDatabase database;
    if (!open(database)) state.SkipWithError("not opened");
  }
}

void openWithPlugin(benchmark::State& state) {
  for (auto _ : state) {
    MorvaneDatabase database;
    if (!open(database)) state.SkipWithError("not opened");
    app->setDB(&database);
    Brontel::Plugin::PluginLibrary library(PLUGIN_FILE);
    if (!library.load(app)) state.SkipWithError(library.getReason().text());
    library.unload();
    app->setDB(nullptr);
  }
}

void prepareFile() {
  MorvaneDatabase database;
  database.open(file, MorvaneDatabase::OpenMode::Create);
  Brontel::Model::initEntityTables(&database);
  app->setDB(&database);
  Brontel::Plugin::PluginLibrary library(PLUGIN_FILE);
  library.load(app);
  library.unload();
  app->setDB(nullptr);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RegisterBenchmark("start:with plug-in", openWithPlugin)->Arg(1)->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark("start:opening alone", openAlone)->Arg(1)->Unit(benchmark::kMicrosecond);
  Brontel::Morvane application;
  // cppcheck-suppress danglingLifetime ; benchmarks run from here only
  app = &application;
  file = (std::filesystem::temp_directory_path() / ("start." + std::to_string(FX::fxgetpid()) + ".db")).c_str();
  prepareFile();
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::remove(file.text());
  return 0;
}
