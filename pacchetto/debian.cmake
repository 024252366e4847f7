# The Debian package, made by `cpack` in the build folder; tools/impacchetta does both.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME somme)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_VENDOR "The authors of Esercitazioni sulle somme")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "addition exercises for primary schools")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Coloured bars up to 10 and 20, blocks of hundreds, tens and units, an abacus
up to 9,999, the table of the numbers from 0 to 99, exercises with numbers
only. Each answer gets a picture, a sound and a count at once; a wrong answer
never gives the solution away.
.
It is made for pupils with motor disabilities, too: every exercise but the
table can also be done with one or two switches and a keyboard on the screen
that scans, or with a touch surface under a printed sheet.")
string(REGEX REPLACE "^ -- (.*>)  .*$" "\\1" CPACK_DEBIAN_PACKAGE_MAINTAINER "${firma}")
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/pacchetto")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# Linked libraries are found by looking; the others are named here. Without its fonts the program
# would not look as it was drawn; without the libraries that it loads at the first sound and the
# first print it beeps and prints into files; without qt6-wayland it needs an X server.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-sil-andika, fonts-liberation2 | fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "libcups2 | libcups2t64, libsdl2-2.0-0, qt6-wayland, xdg-utils, evince | pdf-viewer, at-spi2-core")
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/epoca.cmake" "set(ENV{SOURCE_DATE_EPOCH} ${SOMME_EPOCA})\n")
if(SOMME_ARCH)
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${SOMME_ARCH})
  file(APPEND "${CMAKE_CURRENT_BINARY_DIR}/epoca.cmake" "set(ENV{DEB_HOST_ARCH} ${SOMME_ARCH})\n")
endif()
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_BINARY_DIR}/epoca.cmake")
include(CPack)
