// What MissingDependencyPlugin is linked with and what will not be there when it is loaded.

extern "C" __attribute__((visibility("default"))) int brontel_test_absent() {
  return 1;
}
