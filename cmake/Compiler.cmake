# What the compiler and the linker are told, for every target alike.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-Wno-restrict) # GCC 12 gives false alarms for the concatenation of strings
endif()
if(TALLYVANE_WARNINGS_AS_ERRORS)
  add_compile_options(-Werror)
endif()

# What is released is hardened: against writes past the end of a buffer, of the stack, and of return addresses.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported()
set(HARDENING -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  list(APPEND HARDENING -fcf-protection)
endif()
add_compile_options("$<$<CONFIG:Release>:${HARDENING}>")
# The writer of a save must not look up functions of libraries on its way, so `now` holds for every build.
add_link_options(LINKER:-z,relro LINKER:-z,now)

if(TALLYVANE_SANITIZE OR TALLYVANE_FUZZ)
  set(SANITIZERS -fsanitize=address,undefined)
  add_compile_options(${SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(${SANITIZERS})
endif()
if(TALLYVANE_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(TALLYVANE_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
