# cmake -D NAME=namespace -D HEADER=out.h -D SOURCE=out.cpp -P EmbedFiles.cmake -- file...
#
# The half of coinlet_embed that runs in the build: writes the header and the source.

function(pascal_case text result)
    string(REGEX REPLACE "[^A-Za-z0-9]+" ";" words "${text}")
    set(joined "")
    foreach(word IN LISTS words)
        string(SUBSTRING "${word}" 0 1 first)
        string(SUBSTRING "${word}" 1 -1 rest)
        string(TOUPPER "${first}" first)
        string(APPEND joined "${first}${rest}")
    endforeach()
    set(${result} "${joined}" PARENT_SCOPE)
endfunction()

set(files "")
set(behind_dashes FALSE)
foreach(i RANGE ${CMAKE_ARGC})
    if(behind_dashes AND NOT "${CMAKE_ARGV${i}}" STREQUAL "")
        list(APPEND files "${CMAKE_ARGV${i}}")
    elseif("${CMAKE_ARGV${i}}" STREQUAL "--")
        set(behind_dashes TRUE)
    endif()
endforeach()

set(declarations "")
set(definitions "")
foreach(file IN LISTS files)
    get_filename_component(stem "${file}" NAME_WLE)
    pascal_case("${stem}" function)
    file(READ "${file}" hex HEX)
    if(hex STREQUAL "")
        message(FATAL_ERROR "${file} is empty")
    endif()
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${hex}")
    string(APPEND declarations "std::span<const std::uint8_t> ${function}();\n")
    string(APPEND definitions
        "\nstd::span<const std::uint8_t> ${function}() {\n"
        "    static constexpr std::uint8_t bytes[] = {${bytes}};\n"
        "    return bytes;\n"
        "}\n")
endforeach()

file(WRITE "${HEADER}"
    "#pragma once\n\n#include <cstdint>\n#include <span>\n\n"
    "namespace coinlet::${NAME} {\n\n${declarations}\n}  // namespace coinlet::${NAME}\n")
get_filename_component(header_name "${HEADER}" NAME)
file(WRITE "${SOURCE}"
    "#include \"${header_name}\"\n\n"
    "namespace coinlet::${NAME} {\n${definitions}\n}  // namespace coinlet::${NAME}\n")
