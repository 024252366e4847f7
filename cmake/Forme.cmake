# The names of the exercise forms, read from the one table of forms (app/famiglie.h), for what
# must know them before the program is built.
function(somme_exercise_forms result)
  set(table "${CMAKE_SOURCE_DIR}/app/famiglie.h")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${table}")
  file(STRINGS "${table}" rows REGEX "^ +Esercizio<[^(]+>\\((\"|forme::k)")
  list(TRANSFORM rows REPLACE "^ +Esercizio<[^(]+>\\((\"|forme::k)([A-Za-z0-9]+).*" "\\2")
  if(NOT rows)
    message(FATAL_ERROR "${table} names no exercise form")
  endif()
  set(${result} "${rows}" PARENT_SCOPE)
endfunction()
