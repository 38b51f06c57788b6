// A library that is no plug-in: it has no get_plugin.

extern "C" __attribute__((visibility("default"))) int empty_library() {
  return 0;
}
