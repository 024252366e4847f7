# What programs of the build make: boards, sounds, icons, manuals. They run on the machine that builds.
# Where the program is compiled for another kind of machine, what they make is taken from a build tree of
# this one, in which it has been made; it is the same on every machine.
set(SOMME_HOST_BUILD "" CACHE PATH "The build tree of this machine, when compiling for another")

# somme_made(OUTPUT <files below the build folder> BY <program> ARGUMENTS ... DEPENDS ... COMMENT "...")
function(somme_made)
  cmake_parse_arguments(ARG "" "BY;COMMENT" "OUTPUT;ARGUMENTS;DEPENDS" ${ARGN})
  if(SOMME_HOST_BUILD)
    foreach(file IN LISTS ARG_OUTPUT)
      somme_taken("${file}")
    endforeach()
    return()
  endif()
  add_custom_command(OUTPUT ${ARG_OUTPUT}
    COMMAND ${ARG_BY} ${ARG_ARGUMENTS}
    DEPENDS ${ARG_BY} ${ARG_DEPENDS}
    COMMENT "${ARG_COMMENT}"
    VERBATIM)
endfunction()

# A file that SOMME_HOST_BUILD has under the same name.
function(somme_taken file)
  cmake_path(RELATIVE_PATH file BASE_DIRECTORY "${CMAKE_BINARY_DIR}" OUTPUT_VARIABLE name)
  set(made "${SOMME_HOST_BUILD}/${name}")
  add_custom_command(OUTPUT "${file}"
    COMMAND ${CMAKE_COMMAND} -E copy "${made}" "${file}"
    DEPENDS "${made}"
    COMMENT "Taking ${name} from ${SOMME_HOST_BUILD}"
    VERBATIM)
endfunction()
