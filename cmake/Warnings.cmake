# Flags of our own code. Every warning is an error: what a compiler can see, nobody needs to find.
add_library(coinlet_flags INTERFACE)
target_compile_options(coinlet_flags INTERFACE
    -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow=local -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wpedantic -Werror
    # g++ 12 sees overlaps in joined strings where there are none (its bug 105651).
    -Wno-restrict
    # A product and a sum are rounded one by one: pictures are the same on every processor.
    -ffp-contract=off)

if(COINLET_SANITIZE)
    # Sanitized for the whole tree, so that no object is half instrumented.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
