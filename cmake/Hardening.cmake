# What makes a flaw in reading a file harmless instead of a way in: programs that load at a random place, tables of
# functions that are read-only after the start, calls that know the size of their buffer, a guard before each return
# address, and containers that stop the program at an index out of their range.

# As parts of a program, not of a library: in that each function could be replaced by another of its name, so that none
# is pulled into its callers, which costs lines and pixels up to a quarter.
add_compile_options(-fPIE)
add_link_options(-pie)

if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT COINLET_SANITIZE)
    # Undefined first: some compilers come with a level of their own, and a second definition is a warning.
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    add_link_options(-Wl,-z,relro,-z,now)
endif()

# coinlet_unchecked(FLOOR UNIT...)
#
# Units whose loops would feel it if containers looked at each index. They draw what other units have measured; what
# reads foreign bytes is never among them.
function(coinlet_unchecked floor)
    foreach(unit IN LISTS ARGN)
        set_source_files_properties(${CMAKE_CURRENT_SOURCE_DIR}/${floor}/${unit}.cpp
                                    PROPERTIES COMPILE_OPTIONS -U_GLIBCXX_ASSERTIONS)
    endforeach()
endfunction()
