# Most of what a file takes to compile are the headers that it includes. They can be read once and taken
# from there by whoever names the set. Every file of a room still includes what it uses: the preset
# asan, which builds the rooms without this help, would tell.
set(SOMME_COMPILED_HEADERS ALL CACHE STRING "Who reads common headers once: ALL, TESTS or nobody (empty)")

# What Qt tells each program alone; nothing asks for it, and it would make one's headers no other's.
set(SOMME_ALIKE -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR -UQT_NETWORK_LIB)

# A set of headers, for targets that link at least what the set links.
#
#   somme_header_set(finestre_intestazioni LINKS Qt6::Widgets HEADERS <QWidget> <vector>)
#
# OPTIONS are those that its users are compiled with beside the common ones.
function(somme_header_set name)
  if(NOT SOMME_COMPILED_HEADERS)
    return()
  endif()
  cmake_parse_arguments(ARG "" "" "LINKS;OPTIONS;HEADERS" ${ARGN})
  # Compiled headers need a target that they belong to; this one has nothing else.
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
  file(CONFIGURE OUTPUT "${source}" CONTENT "")
  add_library(${name} OBJECT EXCLUDE_FROM_ALL "${source}")
  target_link_libraries(${name} PRIVATE somme_opzioni ${ARG_LINKS})
  target_compile_options(${name} PRIVATE ${SOMME_ALIKE} ${ARG_OPTIONS})
  target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

# Makes a target take its headers from a set. Sets are compiled as libraries are, and so are the programs that
# take them, which Qt asks for by itself on x86 alone.
function(somme_compiled_headers target set)
  if(SOMME_COMPILED_HEADERS)
    target_compile_options(${target} PRIVATE ${SOMME_ALIKE})
    get_target_property(kind ${target} TYPE)
    if(kind STREQUAL "EXECUTABLE" AND NOT WIN32)
      target_compile_options(${target} PRIVATE -fPIC)
    endif()
    target_precompile_headers(${target} REUSE_FROM ${set})
  endif()
endfunction()
