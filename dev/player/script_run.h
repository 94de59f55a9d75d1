#pragma once

#include "player/commands.h"
#include "player/life.h"
#include "player/line_source.h"

#include <functional>
#include <iosfwd>
#include <optional>

namespace coinlet::player {

/// The lines of one source from the first to the last, in a world of their own. The commands are handed the
/// run: they act on its world and on the life of the program.
class ScriptRun : private ScriptReader {
public:
    /// `name` is what messages call the script; `out` takes what it prints, and why it failed.
    ScriptRun(std::string name, LineSource& lines, const Places& places, const Libraries& libraries,
              std::ostream& out);

    /// Plays all lines; true if no line failed. To be called once.
    bool Play();

    // --- For the commands ------------------------------------------------------------------------------

    World& TheWorld() { return world_; }
    const Places& ThePlaces() const { return world_.places; }
    const PictureCodecs& Codecs() const { return libraries_.codecs; }
    std::ostream& Out() { return out_; }
    /// The program's life; a command that needs no program mustn't ask for it.
    Life& TheLife() { return *life_; }
    Life* LifeIfStarted() { return life_ ? &*life_ : nullptr; }

    /// The call is made while the program serves events for the `count`th time from now on.
    void Interrupt(int count, Call call);
    /// Does the call now, inside the command that is under way. A refusal is the caller's to take.
    void Perform(const Call& call);
    /// Ends the program on the spot and starts it again. Does not return.
    [[noreturn]] void Restart();

private:
    /// Why all that is under way ends.
    enum class Stop { ScriptEnded, Failed, Restart };
    /// Thrown to end it; no handler of the program knows it.
    struct Unwinding {};

    struct PendingInterrupt {
        int count;
        int line;
        Call call;
    };

    void RunNextLine() override;
    void ServeInterrupts() override;
    void ProgramEnding() override { lines_.ProgramEnding(); }

    void StartProgram();
    /// Ends its life, if it hasn't ended by itself: as one that is killed, which takes nothing away.
    void EndLife();
    /// Does `action`; a failure in it is one of the line that was begun last, and ends the script.
    void Guard(const std::function<void()>& action);
    void ReportFailure(const std::string& reason);
    [[noreturn]] void Unwind(Stop stop);

    std::string name_;
    LineSource& lines_;
    const Libraries& libraries_;
    std::ostream& out_;
    World world_;
    std::optional<Life> life_;
    std::optional<ScriptLine> next_;  ///< The line to be done next, if it was fetched already.
    int line_ = 0;                    ///< The number of the line that was begun last.
    std::vector<PendingInterrupt> interrupts_;
    std::optional<Stop> stop_;
};

}  // namespace coinlet::player
