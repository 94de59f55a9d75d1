#pragma once

#include "player/script.h"

#include <optional>

namespace coinlet::player {

struct Call;
struct Life;

/// Where the lines of a run come from: a script, or whoever makes them up as he goes.
class LineSource {
public:
    virtual ~LineSource() = default;
    /// The line to be done next; nothing at the end. `life` is nullptr before the program starts. What it
    /// throws as ScriptFailure is a failure of the line before.
    virtual std::optional<ScriptLine> NextLine(Life* life) = 0;
    /// A command that was to interrupt the program comes now.
    virtual void Interrupting(const Life&, const Call&) {}
    /// The program ends now; what it is doing comes to its end before the next line is asked for.
    virtual void ProgramEnding() {}
};

/// The lines of a script, one after the other.
class ScriptLines : public LineSource {
public:
    explicit ScriptLines(const Script& script) : script_(script) {}

    std::optional<ScriptLine> NextLine(Life*) override {
        if (next_ == script_.lines.size()) return std::nullopt;
        return script_.lines[next_++];
    }

private:
    const Script& script_;
    std::size_t next_ = 0;
};

}  // namespace coinlet::player
