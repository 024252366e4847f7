# The toolchain for another of Debian's architectures: its cross compiler, and the libraries that Debian
# installs beside this machine's own. tools/estero/in_debian makes a place for both.
#
#   cmake -DCMAKE_TOOLCHAIN_FILE=cmake/Estera.cmake -DSOMME_ARCH=arm64
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES SOMME_ARCH)
foreach(cosa IN ITEMS GNU_TYPE GNU_CPU MULTIARCH)
  execute_process(COMMAND dpkg-architecture -a${SOMME_ARCH} -qDEB_HOST_${cosa}
    OUTPUT_VARIABLE ${cosa} OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
execute_process(COMMAND dpkg-architecture -qDEB_BUILD_MULTIARCH
  OUTPUT_VARIABLE di_casa OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${GNU_CPU})
set(CMAKE_C_COMPILER ${GNU_TYPE}-gcc)
set(CMAKE_CXX_COMPILER ${GNU_TYPE}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${MULTIARCH})
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/${MULTIARCH}/pkgconfig:/usr/share/pkgconfig)

# Qt's own programs, such as moc, run on this machine.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${di_casa}/cmake)

# Tests of what runs in an emulator may take so many times longer (LENTEZZA in tools/prova/emulazione.py).
if(SOMME_ARCH STREQUAL "arm64")
  set(SOMME_SLOWNESS 6)
endif()
