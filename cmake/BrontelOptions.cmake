# brontel_warnings: what every translation unit of ours is compiled with.
# brontel_options:  the same, and the sanitizers when the build has them.
include(CheckCXXCompilerFlag)

add_library(brontel_warnings INTERFACE)
target_include_directories(brontel_warnings INTERFACE ${PROJECT_SOURCE_DIR})
# -Woverloaded-virtual stays off: the data operations save(MorvaneDatabase*) and load(MorvaneDatabase*) stand beside
# FXObject's stream operations of the same names on purpose.
# FOX's options are enumerators of several enumerations, meant to be or-ed.
# FOX's widgets have fields named width, options and target, so that only shadowed locals can be told from real slips.
target_compile_options(brontel_warnings INTERFACE
  $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>
  -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wcast-align -Wformat=2 -Wno-overloaded-virtual -Wno-deprecated-enum-enum-conversion
  $<$<CXX_COMPILER_ID:Clang>:-Wno-deprecated-anon-enum-enum-conversion>
  -Werror)

# A unique symbol would keep the plug-in in memory after dlclose.
check_cxx_compiler_flag(-fno-gnu-unique BRONTEL_HAS_NO_GNU_UNIQUE)
if(BRONTEL_HAS_NO_GNU_UNIQUE)
  target_compile_options(brontel_warnings INTERFACE -fno-gnu-unique)
endif()

# Nobody replaces single functions of our libraries, so calls inside one need not go the long way round.
check_cxx_compiler_flag(-fno-semantic-interposition BRONTEL_HAS_NO_SEMANTIC_INTERPOSITION)
if(BRONTEL_HAS_NO_SEMANTIC_INTERPOSITION)
  target_compile_options(brontel_warnings INTERFACE $<$<CONFIG:Release>:-fno-semantic-interposition>)
endif()

add_library(brontel_options INTERFACE)
target_link_libraries(brontel_options INTERFACE brontel_warnings)
if(BRONTEL_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
  target_compile_options(brontel_options INTERFACE ${sanitizers})
  target_link_options(brontel_options INTERFACE ${sanitizers})
endif()
if(BRONTEL_FUZZ)
  # The code under test tells the fuzzer which ways it takes.
  target_compile_options(brontel_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(brontel_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(BRONTEL_COVERAGE)
  # Nothing of ours throws. Clearing up after exceptions would be counted as branches that no test can take.
  target_compile_options(brontel_options INTERFACE --coverage -fprofile-update=atomic -fno-exceptions)
  target_link_options(brontel_options INTERFACE --coverage)
endif()
