# A room of the house is one static library, somme_<name>, made of the files of its folder. It
# sees the headers of the rooms that it links and of nothing else: each room's headers are reached
# as "room/file.h" through an include folder of links made for that room alone, so that an include
# upwards does not compile.
#
# With SOMME_FLOORS each room is also linked whole against the rooms that it names, so that a use of
# what lies above it does not link.
#
# HEADERS is the set of headers that the room takes (see Intestazioni.cmake): base_intestazioni where it
# says nothing; "none" for what knows no Qt. MOC: its headers have classes with signals.
#
# Where headers are compiled once, a room's files are too, several at a time: what they include is then
# read once for all of them. ALONE are those that are not, since a name of theirs that no other file
# should know means something else in another one.
#
# Where it names no SOURCES they are what else lies in the folder.
#
#   somme_room(platform_base FOLDER platform/base SOURCES a.cpp b.cpp LINKS Qt6::Core)
function(somme_room name)
  cmake_parse_arguments(ARG "MOC" "FOLDER;HEADERS" "SOURCES;ALONE;LINKS;PRIVATE_LINKS" ${ARGN})
  if(NOT ARG_HEADERS)
    set(ARG_HEADERS base_intestazioni)
  endif()
  if(NOT ARG_SOURCES)
    file(GLOB ARG_SOURCES CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${ARG_FOLDER}/*.cpp")
    list(TRANSFORM ARG_ALONE PREPEND "${CMAKE_SOURCE_DIR}/${ARG_FOLDER}/")
    list(REMOVE_ITEM ARG_SOURCES ${ARG_ALONE})
  endif()
  add_library(somme_${name} STATIC ${ARG_SOURCES} ${ARG_ALONE})
  set_target_properties(somme_${name} PROPERTIES AUTOMOC "${ARG_MOC}")
  if(SOMME_COMPILED_HEADERS STREQUAL "ALL")
    if(NOT ARG_HEADERS STREQUAL "none")
      somme_compiled_headers(somme_${name} ${ARG_HEADERS})
    endif()
    somme_several_at_a_time(somme_${name} 6)
    set_source_files_properties(${ARG_ALONE} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
  add_library(somme::${name} ALIAS somme_${name})
  set(view "${CMAKE_BINARY_DIR}/include/${name}")
  cmake_path(GET ARG_FOLDER PARENT_PATH parent)
  file(MAKE_DIRECTORY "${view}/${parent}")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${ARG_FOLDER}" "${view}/${ARG_FOLDER}" SYMBOLIC)
  target_include_directories(somme_${name} PUBLIC "${view}")
  target_link_libraries(somme_${name} PUBLIC somme_opzioni ${ARG_LINKS}
    PRIVATE somme_difese ${ARG_PRIVATE_LINKS})
  if(SOMME_FLOORS)
    # A static library may ask for what it does not link; the whole of it in a shared one may not.
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/floor_${name}.cpp" "")
    add_library(floor_${name} SHARED "${CMAKE_CURRENT_BINARY_DIR}/floor_${name}.cpp")
    set_target_properties(floor_${name} PROPERTIES
      LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/floors")
    target_link_libraries(floor_${name} PRIVATE
      -Wl,--no-undefined -Wl,--whole-archive $<TARGET_FILE:somme_${name}> -Wl,--no-whole-archive
      ${ARG_LINKS} ${ARG_PRIVATE_LINKS})
    add_dependencies(floor_${name} somme_${name})
  endif()
endfunction()

# The rooms of the families: each folder of exercises/ but the one that they share. The names of the
# libraries that come of it are left in result. A form that takes answers in one way,
# forma_<family>_<way>.cpp, calls its tables as its siblings call theirs: it is compiled ALONE.
function(somme_family_rooms result)
  set(rooms)
  file(GLOB folders CONFIGURE_DEPENDS LIST_DIRECTORIES YES "${CMAKE_SOURCE_DIR}/exercises/*")
  foreach(folder IN LISTS folders)
    cmake_path(GET folder FILENAME family)
    if(family STREQUAL "core" OR NOT IS_DIRECTORY "${folder}")
      continue()
    endif()
    file(GLOB ways CONFIGURE_DEPENDS RELATIVE "${folder}" "${folder}/forma_*_*.cpp")
    somme_room(${family} FOLDER exercises/${family} HEADERS forme_intestazioni ALONE ${ways}
      LINKS somme::core somme::games somme::input somme::platform_boards)
    list(APPEND rooms somme::${family})
  endforeach()
  set(${result} ${rooms} PARENT_SCOPE)
endfunction()

# Files are compiled in groups: with larger ones, a change of one would be waited for too long.
function(somme_several_at_a_time target how_many)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${how_many})
endfunction()

# What stands beside the rooms, links Qt's widgets and is more than a file or two: compiled as they are.
function(somme_beside_the_rooms target)
  target_link_libraries(${target} PRIVATE somme_difese)
  if(SOMME_COMPILED_HEADERS)
    somme_compiled_headers(${target} finestre_intestazioni)
    somme_several_at_a_time(${target} 6)
  endif()
endfunction()

# Tests: the classes of a folder make one program, test_<folder>, of the files <name>_test.cpp beside the
# caller and of SOURCES. ctest runs each class in a process of its own, as folder/name. Tests run
# without a display unless they say otherwise. Twelve of a weight run at once for each core. One of these
# weighs four, since it keeps a core busy; one that mostly waits weighs one. What waits begins first, the
# longest of all before the others: at the end nothing is waited for.
#
# Classes that may not share a program with their neighbours, for what they link, say APART <word>: theirs
# is test_<folder>_<word>.
#
# Where headers are compiled once, the classes of a program are several at a time, too: what stands in the
# file button_test.cpp stands in the namespace button_test.
#
#   somme_tests(FOLDER platform/base LINKS somme::platform_base NAMES numbers profile_file)
function(somme_tests)
  cmake_parse_arguments(ARG "" "FOLDER;TIMEOUT;APART" "LINKS;NAMES;SOURCES" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  if(SOMME_SLOWNESS)
    math(EXPR ARG_TIMEOUT "${ARG_TIMEOUT} * ${SOMME_SLOWNESS}")
  endif()
  string(REPLACE "/" "_" target "test_${ARG_FOLDER}")
  if(ARG_APART)
    string(APPEND target "_${ARG_APART}")
  endif()
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE ${ARG_LINKS} somme_classi_di_prova)
  somme_tests_compilation(${target} "${ARG_LINKS}")
  somme_every_test_is_named("${ARG_NAMES}")
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
  foreach(name IN LISTS ARG_NAMES)
    # A test's class stands whole in its own file: moc need not look into what that includes, as it
    # would if AUTOMOC ran it. It reads no raw string with a # in it: then the class has no vtable.
    add_custom_command(OUTPUT ${name}_test.moc
      COMMAND Qt6::moc "${CMAKE_CURRENT_SOURCE_DIR}/${name}_test.cpp" -o ${name}_test.moc
      DEPENDS ${name}_test.cpp VERBATIM)
    target_sources(${target} PRIVATE ${name}_test.cpp "${CMAKE_CURRENT_BINARY_DIR}/${name}_test.moc")
    add_test(NAME "${ARG_FOLDER}/${name}" COMMAND ${target} ${name})
    set_tests_properties("${ARG_FOLDER}/${name}" PROPERTIES TIMEOUT ${ARG_TIMEOUT} PROCESSORS 4 COST 50
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;SDL_AUDIODRIVER=dummy"
      SKIP_REGULAR_EXPRESSION "SKIP  :")
  endforeach()
endfunction()

# How a program of tests is compiled: with the headers of the first set whose pattern its links match.
function(somme_tests_compilation target links)
  if(SOMME_COMPILED_HEADERS)
    somme_several_at_a_time(${target} 12)
    # A class of a test may use what stands in its file alone, also where that is not the main one.
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endif()
  set(options ${SOMME_RECKONING_TESTS_OPTIONS})
  if(links MATCHES "somme_prova|somme_stage")
    set(options ${SOMME_TESTS_OPTIONS})
    somme_compiled_headers(${target} prova_intestazioni)
  elseif(links MATCHES "platform_flash|platform_forms")
    somme_compiled_headers(${target} prova_filmati_intestazioni)
  elseif(NOT links MATCHES "Qt6::Gui")
    somme_compiled_headers(${target} prova_base_intestazioni)
  endif()
  target_compile_options(${target} PRIVATE ${options})
endfunction()

# A file of tests that no program has been given would never fail.
function(somme_every_test_is_named names)
  get_property(known DIRECTORY PROPERTY SOMME_TESTS)
  set_property(DIRECTORY APPEND PROPERTY SOMME_TESTS ${names})
  if(NOT known)
    cmake_language(DEFER CALL somme_no_file_is_left_over)
  endif()
endfunction()

function(somme_no_file_is_left_over)
  get_property(names DIRECTORY PROPERTY SOMME_TESTS)
  file(GLOB files RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" *_test.cpp)
  list(TRANSFORM files REPLACE "_test.cpp$" "")
  list(REMOVE_ITEM files ${names})
  if(files)
    message(FATAL_ERROR "${CMAKE_CURRENT_SOURCE_DIR}: no program has been given the tests ${files}")
  endif()
endfunction()
