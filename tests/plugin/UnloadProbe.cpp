// Loads the plug-in library, uses it and unloads it again, many times over, and watches whether anything stays behind.
// A program of its own, built without sanitizers: those keep libraries in memory, and a library that does not go may
// hang whoever looks for its classes.
//
//   unload_probe FILE ROUNDS [hold|leak]
//
// The allocator must not keep freed memory aside for the measurement: GLIBC_TUNABLES=glibc.malloc.tcache_count=0.
// With hold it keeps the library loaded, with leak it loses memory, so that one can see that it would notice.

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <malloc.h>
#include <memory>
#include <string>
#include <system_error>

#include "host/database/MorvaneDatabase.h"
#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginLibrary.h"
#include "host/ui/Morvane.h"
#include "tests/plugin/PluginLife.h"

using Brontel::Morvane;
using Brontel::Plugin::PluginContainer;
using Brontel::Plugin::PluginLibrary;

namespace {

constexpr int kWarmUp = 10;
constexpr size_t kMostGrowth = 1024;

/// Stands in a list that must not delete it.
class Bystander : public FX::FXObject {
 public:
  explicit Bystander(bool& gone) : gone_(gone) {}
  ~Bystander() override { gone_ = true; }

 private:
  bool& gone_;
};

class Probe {
 public:
  explicit Probe(const char* file) : file_(file) {
    // FOX counts its classes in a protected field.
    classes_ = static_cast<const FX::FXuint*>(dlsym(RTLD_DEFAULT, "_ZN2FX11FXMetaClass12nmetaClassesE"));
    app_.setDB(&database_);
  }
  ~Probe() {
    database_.close();
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }

  std::string prepare() {
    if (classes_ == nullptr) return "FOX has no count of its classes";
    if (mkdtemp(folder_) == nullptr) return "no folder for the database";
    const FX::FXString path = FX::FXString(folder_) + "/probe.db";
    if (!database_.open(path, MorvaneDatabase::OpenMode::Create)) return "no database";
    // Nothing here has to outlive a power failure.
    database_.run("pragma synchronous=off");
    if (!PluginLife::prepare(database_)) return "no tables";
    before_ = *classes_;
    return "";
  }

  /// One life through the host's loader.
  std::string liveInHost() {
    PluginLibrary library(file_);
    if (!library.load(&app_)) return std::string("not loaded: ") + library.getReason().text();
    std::string problem = lookAtClasses();
    if (problem.empty()) problem = PluginLife::use(*library.getContainer(), database_);
    library.unload();
    return problem.empty() ? lookForRemains() : problem;
  }

  /// One life by hand. The registry of entry kinds goes without touching what somebody else has put into it.
  std::string liveByHand() {
    void* handle = dlopen(file_, RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) return dlerror();
    auto* plugins = static_cast<FX::FXObjectList*>(dlsym(handle, "_ZN7Brontel6Plugin8ItemData7pluginsE"));
    auto* getPlugin = reinterpret_cast<PluginContainer* (*)(Morvane*)>(dlsym(handle, "get_plugin"));
    if (plugins == nullptr || getPlugin == nullptr) return "the library does not export what it should";
    if (plugins->no() != 0) return "the registry is not empty when the library has been loaded";
    std::string problem = useByHand(getPlugin);
    bool gone = false;
    auto bystander = std::make_unique<Bystander>(gone);
    plugins->append(bystander.get());
    dlclose(handle);
    if (gone) return "the registry has deleted an element when the library was unloaded";
    return problem.empty() ? lookForRemains() : problem;
  }

 private:
  std::string useByHand(PluginContainer* (*getPlugin)(Morvane*)) {
    const std::unique_ptr<PluginContainer> container(getPlugin(&app_));
    if (container == nullptr || container->init() != 1) return "get_plugin or init failed";
    return PluginLife::use(*container, database_);
  }

  std::string lookAtClasses() const {
    if (*classes_ <= before_) return "the library has registered no classes";
    for (const char* name : {"ItemDataStringEntry", "ItemDataDateEntry", "ItemDataComboEntry", "ItemDataTable",
                             "ItemDataDialog", "ItemDataSettingsPanel", "ItemDataAssociationPanel", "FXExt::FXComboBox",
                             "FXDatePicker", "FXDatePickerLabel", "FXDateInput", "FXDualList"}) {
      if (FX::FXMetaClass::getMetaClassFromName(name) == nullptr) return std::string("no class ") + name;
    }
    return "";
  }

  std::string lookForRemains() const {
    if (dlopen(file_, RTLD_NOW | RTLD_NOLOAD) != nullptr) return "the library is still loaded";
    return *classes_ == before_ ? "" : "classes of the library are still registered";
  }

  const char* file_;
  const FX::FXuint* classes_;
  FX::FXuint before_ = 0;
  char folder_[32] = "/tmp/brontel-probe-XXXXXX";
  MorvaneDatabase database_;
  Morvane app_;
};

size_t memoryInUse() {
  return mallinfo2().uordblks;
}

std::string run(const char* file, int rounds, const std::string& mistake) {
  Probe probe(file);
  std::string problem = probe.prepare();
  if (mistake == "hold" && dlopen(file, RTLD_NOW | RTLD_LOCAL) == nullptr) return "cannot hold the library";
  size_t memory = 0;
  for (int round = 1; round <= rounds && problem.empty(); ++round) {
    problem = round % 2 == 0 ? probe.liveByHand() : probe.liveInHost();
    if (mistake == "leak" && std::malloc(100) == nullptr) return "no memory";
    if (round == kWarmUp) memory = memoryInUse();
    if (!problem.empty()) problem = "round " + std::to_string(round) + ": " + problem;
  }
  if (problem.empty() && rounds > kWarmUp && memoryInUse() > memory + kMostGrowth) {
    problem = "memory grew from " + std::to_string(memory) + " to " + std::to_string(memoryInUse());
  }
  return problem;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) {
    std::puts("usage: unload_probe FILE ROUNDS [hold|leak]");
    return 2;
  }
  const int rounds = std::atoi(arguments[2]);
  const std::string problem = run(arguments[1], rounds, count > 3 ? arguments[3] : "");
  std::puts(problem.empty() ? (std::to_string(rounds) + " rounds, nothing left behind").c_str() : problem.c_str());
  return problem.empty() ? 0 : 1;
}
