# coinlet_floor(NAME USES floor... [LIBRARIES target...])
#
# One floor of the house: the folder src/NAME as a static library that sees the floors it USES and nothing
# else. Floors without Qt among their LIBRARIES can't include a Qt header: it isn't on their path.
# A new unit is a new file in the folder; no list names it.
function(coinlet_floor name)
    cmake_parse_arguments(FLOOR "" "" "USES;LIBRARIES" ${ARGN})
    # What tests/lint/floors.sh holds the includes against.
    list(JOIN FLOOR_USES " " uses)
    if(FLOOR_LIBRARIES MATCHES "Qt6::")
        string(APPEND uses " Qt")
    endif()
    set_property(GLOBAL APPEND_STRING PROPERTY COINLET_FLOORS "${name}: ${uses}\n")
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
    if(NOT sources)  # headers alone
        add_library(${name} INTERFACE)
        target_include_directories(${name} INTERFACE ${CMAKE_SOURCE_DIR}/src)
        target_link_libraries(${name} INTERFACE ${FLOOR_USES})
        return()
    endif()
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${FLOOR_USES} PRIVATE coinlet_flags ${FLOOR_LIBRARIES})
endfunction()
