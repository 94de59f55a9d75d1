# coinlet_embed(TARGET NAME file...)
#
# Puts the bytes of the files into a target, so that the program needs no such file beside it. A source of the
# target that includes "TARGET/NAME.h" gets a function in namespace coinlet::NAME for each file: its name
# without the extension, in PascalCase, so tool_icons.bmp is
#
#     std::span<const std::uint8_t> ToolIcons();
#
# Files are told relative to the current source folder. A changed file is embedded anew by the next build.
function(coinlet_embed target name)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/embedded)
    set(header ${folder}/${target}/${name}.h)
    set(source ${folder}/${target}/${name}.cpp)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE files)
    add_custom_command(
        OUTPUT ${header} ${source}
        COMMAND ${CMAKE_COMMAND} -D NAME=${name} -D HEADER=${header} -D SOURCE=${source}
                -P ${CMAKE_SOURCE_DIR}/cmake/EmbedFiles.cmake -- ${files}
        DEPENDS ${files} ${CMAKE_SOURCE_DIR}/cmake/EmbedFiles.cmake
        COMMENT "Embedding ${target}/${name}"
        VERBATIM)
    target_sources(${target} PRIVATE ${header} ${source})
    target_include_directories(${target} PRIVATE ${folder})
endfunction()
