# coinlet_join_sources()
#
# Has the sources of every target compiled several at a time: what they include is read once instead of once for each,
# which takes half the time. A build without it still tells whether each source includes what it uses.
# joined_sources.awk chooses which stand together. A clash of names that it doesn't foresee goes away by renaming, or
# by SKIP_UNITY_BUILD_INCLUSION of the source.
function(coinlet_join_sources)
    file(GLOB_RECURSE headers RELATIVE ${CMAKE_SOURCE_DIR} src/*.h dev/*.h tests/*.h bench/*.h)
    set(folders ${CMAKE_SOURCE_DIR})
    while(folders)
        list(POP_FRONT folders folder)
        get_property(inner DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
        list(APPEND folders ${inner})
        get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
        foreach(target IN LISTS targets)
            get_target_property(type ${target} TYPE)
            if(type MATCHES "LIBRARY|EXECUTABLE")
                coinlet_join_sources_of(${target} ${folder} "${headers}")
            endif()
        endforeach()
    endwhile()
endfunction()

# folder: where the target is made, which its sources may be relative to.
function(coinlet_join_sources_of target folder headers)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    # What the build writes isn't there yet.
    list(FILTER sources EXCLUDE REGEX "^${CMAKE_BINARY_DIR}/")
    list(TRANSFORM sources REPLACE "^([^/].*)$" "${folder}/\\1")
    list(LENGTH sources count)
    if(count LESS 2)
        return()
    endif()
    list(TRANSFORM sources REPLACE "^${CMAKE_SOURCE_DIR}/" "")
    execute_process(COMMAND awk -v most=10 -f cmake/joined_sources.awk ${headers} ${sources}
                    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
                    OUTPUT_VARIABLE lines OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" lines "${lines}")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "^([0-9]+) (.*)$" matched "${line}")
        if(CMAKE_MATCH_1 GREATER 0)
            set_source_files_properties(${CMAKE_SOURCE_DIR}/${CMAKE_MATCH_2} TARGET_DIRECTORY ${target}
                                        PROPERTIES UNITY_GROUP ${CMAKE_MATCH_1})
        endif()
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
