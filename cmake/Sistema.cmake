# The system that the program is built for. What differs from system to system lies in folders of that
# name below the rooms of platform/; the build takes the one, and no source asks where it runs.
#
#   SOMME_SISTEMA              linux or windows
#   SOMME_CARTELLA             the program's folder below the prefix that it is installed to
#   SOMME_LIBRERIE_FINESTRE    what platform/forms needs of it
#   SOMME_LIBRERIE_DISPOSITIVI what platform/devices needs of it
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Network Test)
if(WIN32)
  set(SOMME_SISTEMA windows)
  set(SOMME_CARTELLA .)
  find_package(Qt6 6.4 REQUIRED COMPONENTS PrintSupport)
  set(SOMME_LIBRERIE_FINESTRE oleaut32)
  set(SOMME_LIBRERIE_DISPOSITIVI Qt6::Gui Qt6::PrintSupport winspool winmm ole32)
  # Nobody has it there.
  set(ZLIB_USE_STATIC_LIBS ON)
else()
  set(SOMME_SISTEMA linux)
  set(SOMME_CARTELLA lib/somme)
  find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb xcb-xkb)
  set(SOMME_LIBRERIE_FINESTRE Qt6::DBus PkgConfig::XCB)
  set(SOMME_LIBRERIE_DISPOSITIVI ${CMAKE_DL_LIBS})
endif()
find_package(ZLIB REQUIRED)
# The build's own tools and the tests read SVG; the program does not.
if(NOT WIN32 AND (NOT SOMME_HOST_BUILD OR BUILD_TESTING))
  find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)
endif()
