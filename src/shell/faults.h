#pragma once

#include <concepts>
#include <exception>

namespace coinlet {

/// Tells whoever started the program from a terminal, in a line of its error output. The user of a desktop
/// isn't disturbed: what he did had no effect, and he sees that.
void TellFault(const std::exception& fault);

/// A fault in a handler, an index outside an array or no memory for a picture, ends that handler and no more:
/// the user keeps the program, and the design in it.
template <std::invocable Handler>
void EndAtFault(Handler&& handler) {
    try {
        handler();
    } catch (const std::exception& fault) {
        TellFault(fault);
    }
}

}  // namespace coinlet
