// A shared library that is no plug-in.

extern "C" __attribute__((visibility("default"))) int brontel_test_no_plugin() {
  return 1;
}
