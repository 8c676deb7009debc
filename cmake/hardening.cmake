# What keeps a fault in the program from becoming a hole, in all targets that have tamrikon_flags.
# The sanitizers watch over the same in their own way.
if(TAMRIKON_SANITIZE OR NOT CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  return()
endif()

# In Debug too: what would abort for a user shall abort in the tests.
target_compile_definitions(tamrikon_flags INTERFACE _GLIBCXX_ASSERTIONS)

include(CheckCXXCompilerFlag)
set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
# _FORTIFY_SOURCE does nothing without optimisation, and says so.
target_compile_options(tamrikon_flags INTERFACE
  $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=3>)
# Not every processor has all of them.
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "TAMRIKON_HAS${flag}" has)
  check_cxx_compiler_flag(${flag} ${has})
  if(${has})
    target_compile_options(tamrikon_flags INTERFACE $<${optimised}:${flag}>)
  endif()
endforeach()

# CMAKE_POSITION_INDEPENDENT_CODE makes position-independent programs after this check alone.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
if(UNIX AND NOT APPLE)
  target_link_options(tamrikon_flags INTERFACE
    LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
endif()
