#pragma once

#include <string>

namespace coinlet::player {

/// Why a line of a script fails. No std::exception, so that no handler of the program under test can take it
/// for a failure of its own.
struct ScriptFailure {
    std::string reason;
};

/// The line asks for what isn't there or can't be got at now: it fails before it did anything.
struct Refusal : ScriptFailure {};

[[noreturn]] inline void Refuse(std::string reason) {
    throw Refusal{{std::move(reason)}};
}

[[noreturn]] inline void Fail(std::string reason) {
    throw ScriptFailure{std::move(reason)};
}

}  // namespace coinlet::player
