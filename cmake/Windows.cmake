# The toolchain of the programs for Windows: Debian's own cross compiler, with the threads of C++. Qt is
# found where tools/windows/qt has put it.
#
#   cmake -DCMAKE_TOOLCHAIN_FILE=cmake/Windows.cmake
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(macchina x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${macchina}-gcc-posix)
set(CMAKE_CXX_COMPILER ${macchina}-g++-posix)
set(CMAKE_RC_COMPILER ${macchina}-windres)

cmake_path(SET qt NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../build/windows-qt/fatto")
set(CMAKE_FIND_ROOT_PATH "/usr/${macchina}" "${qt}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(specie IN ITEMS LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${specie} ONLY)
endforeach()
list(PREPEND CMAKE_PREFIX_PATH "${qt}")
# Qt's own programs, such as moc, run on this machine.
set(QT_HOST_PATH /usr)
file(GLOB QT_HOST_PATH_CMAKE_DIR /usr/lib/*/cmake/Qt6HostInfo)
cmake_path(GET QT_HOST_PATH_CMAKE_DIR PARENT_PATH QT_HOST_PATH_CMAKE_DIR)

# Windows 10 is the oldest that is meant. Without the time of the build two of them give the same bytes.
set(CMAKE_CXX_FLAGS_INIT "-D_WIN32_WINNT=0x0A00 -DWINVER=0x0A00 -DNTDDI_VERSION=0x0A000000")
set(CMAKE_C_FLAGS_INIT "${CMAKE_CXX_FLAGS_INIT}")
foreach(specie IN ITEMS EXE SHARED MODULE)
  set(CMAKE_${specie}_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
endforeach()
