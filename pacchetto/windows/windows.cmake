# What Windows asks of a program: no console, an icon, a word on what it is; and beside it the libraries
# that it stands on, which nobody has there.
set_target_properties(somme PROPERTIES WIN32_EXECUTABLE ON)
set(risorsa "${CMAKE_CURRENT_BINARY_DIR}/somme.rc")
set(manifesto "${CMAKE_CURRENT_SOURCE_DIR}/windows/somme.manifest")
string(REPLACE "." "," SOMME_NUMERI "${PROJECT_VERSION}")
configure_file(windows/somme.rc.in "${risorsa}" @ONLY)
set_source_files_properties("${risorsa}" TARGET_DIRECTORY somme PROPERTIES
  OBJECT_DEPENDS "${icona_windows};${manifesto}" LANGUAGE RC)
target_sources(somme PRIVATE "${risorsa}")
add_custom_target(icona_del_programma DEPENDS "${icona_windows}")
add_dependencies(somme icona_del_programma)

# For what packs the folder: the version, and the second that everything bears as its time.
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/versione" "${PROJECT_VERSION} ${SOMME_EPOCA}\n")

set(qt "${CMAKE_SOURCE_DIR}/build/windows-qt/fatto")
foreach(parte IN ITEMS Core Gui Network PrintSupport Widgets)
  install(FILES "${qt}/bin/Qt6${parte}.dll" DESTINATION .)
endforeach()
install(FILES "${qt}/plugins/platforms/qwindows.dll" DESTINATION platforms)
# The compiler's own.
foreach(libreria IN ITEMS libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${libreria}
    OUTPUT_VARIABLE dove OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  if(NOT IS_ABSOLUTE "${dove}")
    set(dove "/usr/${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32/lib/${libreria}")
  endif()
  install(FILES "${dove}" DESTINATION .)
endforeach()

install(FILES "${CMAKE_CURRENT_SOURCE_DIR}/windows/LEGGIMI.txt" DESTINATION .)
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" DESTINATION licenze RENAME somme.txt)
install(FILES "${CMAKE_SOURCE_DIR}/THIRD-PARTY.md" DESTINATION licenze RENAME altri.txt)
install(FILES "${qt}/licenze/qt6-base.txt" DESTINATION licenze)
foreach(pacchetto IN ITEMS gcc-mingw-w64-x86-64-posix-runtime mingw-w64-common libz-mingw-w64)
  install(FILES "/usr/share/doc/${pacchetto}/copyright" DESTINATION licenze RENAME ${pacchetto}.txt)
endforeach()
foreach(licenza IN ITEMS LGPL-3 GPL-2 GPL-3)
  install(FILES "/usr/share/common-licenses/${licenza}" DESTINATION licenze RENAME ${licenza}.txt)
endforeach()
