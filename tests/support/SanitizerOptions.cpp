// What the sanitizers ask the program for. Compiled in, so that a test run by hand behaves like one run by CTest.

// The linker is told to look for this name, which brings this file into every test program: nothing else refers to it.
extern "C" {
extern const int brontel_sanitizer_options;
const int brontel_sanitizer_options = 1;
}

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the sanitizers' own names.
extern "C" const char* __asan_default_options() {
  return "detect_stack_use_after_return=1:strict_string_checks=1";
}

extern "C" const char* __ubsan_default_options() {
  return "print_stacktrace=1";
}

extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}

// Caches that fontconfig keeps until the process ends.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n";
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
