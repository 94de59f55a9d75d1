# Flags of our own code. Every warning is an error: what a compiler can see, nobody needs to find.
add_library(coinlet_flags INTERFACE)
target_compile_options(coinlet_flags INTERFACE
    -Wall -Wextra -Wconversion -Wsign-conversion $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local> -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wpedantic -Werror
    # g++ 12 sees overlaps in joined strings where there are none (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    # A product and a sum are rounded one by one: pictures are the same on every processor.
    -ffp-contract=off)

if(COINLET_JOINED)
    # A type of a source that holds one of its unnamed namespace: several sources in one are included, and in what is
    # included the compiler takes it for a header's, which others would see.
    target_compile_options(coinlet_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()

if(COINLET_SANITIZE)
    # Sanitized for the whole tree, so that no object is half instrumented.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(COINLET_FUZZ)
    # The fuzzer sees which branches of the whole program an input takes, and values too large for their type.
    add_compile_options(-fsanitize=fuzzer-no-link,float-cast-overflow)
    add_link_options(-fsanitize=float-cast-overflow)
    # An index out of range is seen, also where the memory behind it is somebody's.
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
