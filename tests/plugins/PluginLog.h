#pragma once

#include <cstdio>
#include <cstdlib>

/// Appends "name event" to the file that BRONTEL_TEST_PLUGIN_LOG names, for a test that loads the plug-in.
inline void logPluginEvent(const char* name, const char* event) {
  const char* path = std::getenv("BRONTEL_TEST_PLUGIN_LOG");
  std::FILE* file = path == nullptr ? nullptr : std::fopen(path, "a");
  if (file == nullptr) return;
  std::fprintf(file, "%s %s\n", name, event);
  std::fclose(file);
}
