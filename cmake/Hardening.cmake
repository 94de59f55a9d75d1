# What makes a flaw in reading a file harmless instead of a way in: programs that load at a random place, tables of
# functions that are read-only after the start, calls that know the size of their buffer, a guard before each return
# address, and containers that stop the program at an index out of their range.
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT COINLET_SANITIZE)
    # Undefined first: some compilers come with a level of their own, and a second definition is a warning.
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    add_link_options(-Wl,-z,relro,-z,now)
endif()
