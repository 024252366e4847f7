# The system that the program is built for. What differs from system to system lies in folders of that
# name below the rooms of platform/; the build takes the one, and no source asks where it runs.
#
#   SOMME_SISTEMA              linux
#   SOMME_LIBRERIE_FINESTRE    what platform/forms needs of it
#   SOMME_LIBRERIE_DISPOSITIVI what platform/devices needs of it
set(SOMME_SISTEMA linux)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Widgets Network Test)
find_package(PkgConfig REQUIRED)
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb xcb-xkb)
set(SOMME_LIBRERIE_FINESTRE Qt6::DBus PkgConfig::XCB)
set(SOMME_LIBRERIE_DISPOSITIVI ${CMAKE_DL_LIBS})
find_package(ZLIB REQUIRED)
# The build's own tools and the tests read SVG; the program does not.
if(NOT SOMME_HOST_BUILD OR BUILD_TESTING)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)
endif()
