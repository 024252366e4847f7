# The version's day is that of the package's change log. Everything that bears a date takes it from
# there, so that two builds of a version give the same bytes.
#
#   SOMME_EPOCA  seconds since 1970      SOMME_DATA  2026-11-21
set(registro "${CMAKE_SOURCE_DIR}/pacchetto/changelog")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${registro}")
file(STRINGS "${registro}" prima LIMIT_COUNT 1)
file(STRINGS "${registro}" firma REGEX "^ -- " LIMIT_COUNT 1)
if(NOT prima MATCHES "^somme \\(${PROJECT_VERSION}\\)")
  message(FATAL_ERROR "pacchetto/changelog does not begin with version ${PROJECT_VERSION}")
endif()
string(REGEX REPLACE "^.*>  " "" giorno "${firma}")
foreach(forma IN ITEMS %s %F)
  execute_process(COMMAND date --utc "--date=${giorno}" "+${forma}"
    OUTPUT_VARIABLE detto OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND date_versione "${detto}")
endforeach()
list(GET date_versione 0 SOMME_EPOCA)
list(GET date_versione 1 SOMME_DATA)
