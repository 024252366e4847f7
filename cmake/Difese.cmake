# How the program is hardened: as Debian's own packages are, with what its next release adds to that.
# Each room and the program take it from here; tests and tools stay as they are. tools/prova/difese.py
# looks at what comes of it.
option(SOMME_HARDENED "Harden the program as Debian's own packages are" OFF)

add_library(somme_difese INTERFACE)
# Windows' own, which its linker sets for everything: addresses that differ from start to start, over the
# whole of 64 bits, and no running of data.
if(SOMME_HARDENED AND WIN32)
  target_compile_options(somme_difese INTERFACE -Wformat -Werror=format-security)
  target_link_options(somme_difese INTERFACE
    LINKER:--dynamicbase,--high-entropy-va,--nxcompat)
elseif(SOMME_HARDENED)
  include(CheckCXXCompilerFlag)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  target_compile_options(somme_difese INTERFACE
    -fstack-protector-strong -fstack-clash-protection -Wformat -Werror=format-security
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  # Where the processor can tell an address that may be jumped to.
  foreach(flag IN ITEMS -fcf-protection -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "SOMME${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
      target_compile_options(somme_difese INTERFACE ${flag})
    endif()
  endforeach()
  target_link_options(somme_difese INTERFACE LINKER:-z,relro,-z,now)
endif()
