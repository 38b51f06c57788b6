find_package(GTest REQUIRED)
include(GoogleTest)

# brontel_add_executable(NAME SOURCES...): a GoogleTest executable that CTest does not know yet.
function(brontel_add_executable name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE brontel_options Fox::Fox GTest::gtest GTest::gtest_main)
  # What nearly every test includes, read once: a third of the time that compiling them takes.
  target_precompile_headers(${name} PRIVATE <fx.h> <gtest/gtest.h> <map> <memory> <string> <vector>)
  # Optimising the macros of the tests would take two thirds of a build and make nothing faster that matters.
  target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-O0>)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
endfunction()

# brontel_add_test_with_long(NAME SOURCES...): as below; tests of suites named Long..., which take minutes, are labelled
# so.
function(brontel_add_test_with_long name)
  brontel_add_executable(${name} ${ARGN})
  gtest_discover_tests(${name} TEST_PREFIX ${name}. TEST_FILTER "-Long*" TEST_LIST ${name}_short
    DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
  gtest_discover_tests(${name} TEST_PREFIX ${name}. TEST_FILTER "Long*" TEST_LIST ${name}_long
    DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 600 LABELS long)
endfunction()

# brontel_add_test(NAME SOURCES...): a GoogleTest executable whose every test is a CTest of its own, run in a process of
# its own, so that tests may run at the same time and a crash takes only one of them along.
function(brontel_add_test name)
  brontel_add_executable(${name} ${ARGN})
  gtest_discover_tests(${name} TEST_PREFIX ${name}. DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
endfunction()

# brontel_add_memory_test(NAME SOURCES...): the same, with an operator new that can be told to fail (AllocationLimit.h).
function(brontel_add_memory_test name)
  set(sources ${ARGN} ${PROJECT_SOURCE_DIR}/tests/support/AllocationLimit.cpp)
  brontel_add_test(${name} ${sources})
  if(BRONTEL_COVERAGE)
    # Where all else is counted without exceptions.
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -fexceptions SKIP_PRECOMPILE_HEADERS ON)
  endif()
endfunction()
