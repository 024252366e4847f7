# What every target of the program is compiled with.
option(SOMME_WERROR "Warnings are errors" OFF)
option(SOMME_FLOORS "Check that each room stands on the rooms that it names" OFF)
set(SOMME_SANITIZE "" CACHE STRING "Sanitizers, as for -fsanitize (address,undefined)")
option(SOMME_FUZZ "Build the libFuzzer targets of fuzz/; needs clang" OFF)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

add_library(somme_opzioni INTERFACE)
target_compile_features(somme_opzioni INTERFACE cxx_std_20)
target_compile_definitions(somme_opzioni INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(somme_opzioni INTERFACE -Wall -Wextra -Wpedantic -Wshadow
  -Wno-missing-field-initializers
  # GCC 12 sees strings in a std::variant as uninitialized where they are not.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
  "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
# With the compilers that give none; a newer one, which may ask for more, only warns.
if(SOMME_WERROR AND ((CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
                     OR (CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 17)))
  target_compile_options(somme_opzioni INTERFACE -Werror)
endif()
# GCC that does not tidy up its memory while it compiles is done sooner, by a tenth; the largest file takes
# 0.8 GB instead of 0.75.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(--param=ggc-min-heapsize=1000000)
endif()
# A sum is the same number on every processor, each step of it rounded to its type: so are sounds, places and
# measurements the same. A product is not kept longer for the sum after it; and x86 of 32 bits reckons by SSE2,
# which Debian's own Qt asks of it, too, since its older unit rounds later.
include(CheckCXXSourceCompiles)
foreach(macro IN ITEMS __FP_FAST_FMA __i386__)
  check_cxx_source_compiles("#ifndef ${macro}\n#error\n#endif\nint main() {}" SOMME${macro})
endforeach()
if(SOMME__FP_FAST_FMA)
  add_compile_options(-ffp-contract=off)
endif()
if(SOMME__i386__)
  add_compile_options(-msse2 -mfpmath=sse)
endif()
if(SOMME_SANITIZE)
  add_compile_options(-fsanitize=${SOMME_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -g1)
  add_link_options(-fsanitize=${SOMME_SANITIZE})
endif()
# What a test of the program's forms does itself takes no time; compiling it does. The others reckon.
set(SOMME_TESTS_OPTIONS -O0)
set(SOMME_RECKONING_TESTS_OPTIONS -O1)
if(SOMME_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "SOMME_FUZZ needs clang; use the preset fuzz")
  endif()
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Each program of tests is linked anew after a change: a fast linker where there is one.
if(BUILD_TESTING)
  include(CheckLinkerFlag)
  check_linker_flag(CXX -fuse-ld=mold SOMME_MOLD)
  if(SOMME_MOLD)
    add_link_options(-fuse-ld=mold)
  endif()
endif()

# A compiler cache takes over where one is installed and nobody has chosen otherwise; an empty
# CMAKE_CXX_COMPILER_LAUNCHER is a choice, too.
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER AND NOT DEFINED ENV{CMAKE_CXX_COMPILER_LAUNCHER})
  find_program(SOMME_CCACHE ccache)
  if(SOMME_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${SOMME_CCACHE}" CACHE STRING "What calls the compiler")
  endif()
endif()

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
