#include "host/plugin/PluginLoader.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

#include "host/plugin/PluginContainer.h"

namespace Brontel::Plugin {

using FX::FXString;

namespace {

bool listLibraries(const FXString& folder, std::vector<std::string>& files) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder.text(), error);
  while (!error && entry != std::filesystem::directory_iterator()) {
    if (entry->path().extension() == ".so") files.push_back(entry->path().string());
    entry.increment(error);
  }
  std::sort(files.begin(), files.end());
  return !error;
}

}  // namespace

PluginLoader::~PluginLoader() {
  unload();
}

bool PluginLoader::loadFolder(const FXString& folder) {
  unload();
  std::vector<std::string> files;
  if (!listLibraries(folder, files)) return false;
  for (const std::string& file : files) {
    libraries_.push_back(std::make_unique<PluginLibrary>(file.c_str()));
    if (libraries_.back()->load(app_)) registry_.add(libraries_.back()->getContainer());
  }
  for (const auto& library : libraries_) {
    if (library->getContainer() != nullptr) library->getContainer()->start();
  }
  return true;
}

void PluginLoader::unload() {
  for (auto library = libraries_.rbegin(); library != libraries_.rend(); ++library) {
    registry_.remove((*library)->getContainer());
    (*library)->deleteContainer();
  }
  while (!libraries_.empty()) libraries_.pop_back();
}

}  // namespace Brontel::Plugin
