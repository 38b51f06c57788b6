#include "host/plugin/PluginLibrary.h"

#include <dlfcn.h>

#include <libintl.h>

#include "host/plugin/PluginContainer.h"

namespace Brontel::Plugin {

using FX::FXString;

namespace {

FXString lastLoaderError() {
  const char* text = dlerror();
  return text == nullptr ? FXString() : FXString(text);
}

}  // namespace

PluginLibrary::~PluginLibrary() {
  unload();
}

bool PluginLibrary::load(Morvane* app) {
  unload();
  reason_.clear();
  // Everything is resolved now, so that a missing dependency shows here and not in the middle of work; and locally, so
  // that two plug-ins with a symbol of the same name do not meet.
  handle_ = dlopen(path_.text(), RTLD_NOW | RTLD_LOCAL);
  if (handle_ == nullptr) return refuse(lastLoaderError());
  return enter(app);
}

bool PluginLibrary::enter(Morvane* app) {
  using GetPlugin = PluginContainer* (*)(Morvane*);
  auto* getPlugin = reinterpret_cast<GetPlugin>(dlsym(handle_, "get_plugin"));
  if (getPlugin == nullptr) return refuse(gettext("nem bővítmény: hiányzik a get_plugin belépési pont"));
  container_ = getPlugin(app);
  if (container_ == nullptr) return refuse(gettext("a get_plugin nem adott bővítményt"));
  if (container_->init() == 0) return refuse(gettext("a bővítmény előkészítése (init) nem sikerült"));
  return true;
}

void PluginLibrary::deleteContainer() {
  delete container_;
  container_ = nullptr;
}

void PluginLibrary::unload() {
  deleteContainer();
  if (handle_ != nullptr) dlclose(handle_);
  handle_ = nullptr;
}

bool PluginLibrary::refuse(const FXString& reason) {
  reason_ = reason;
  unload();
  return false;
}

}  // namespace Brontel::Plugin
