#pragma once

#include <string>

namespace coinlet::player {

/// Why a line of a script fails. No std::exception, so that no handler of the program under test can take it
/// for a failure of its own.
struct ScriptFailure {
    std::string reason;
};

[[noreturn]] inline void Fail(std::string reason) {
    throw ScriptFailure{std::move(reason)};
}

}  // namespace coinlet::player
