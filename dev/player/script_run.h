#pragma once

#include "player/commands.h"
#include "player/life.h"

#include <functional>
#include <iosfwd>
#include <optional>

namespace coinlet::player {

/// One script from its first line to its last, with a world of its own. The commands are handed it: they act
/// on its world and on the life of the program.
class ScriptRun : private ScriptReader {
public:
    /// `out` takes what the script prints, and why it failed.
    ScriptRun(const Script& script, const Places& places, const Libraries& libraries, std::ostream& out);

    /// Plays the script; true if no line failed. To be called once.
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

    void StartProgram();
    void Perform(const Call& call);
    /// Does `action`; a failure in it is one of the line that was begun last, and ends the script.
    void Guard(const std::function<void()>& action);
    void ReportFailure(const std::string& reason);
    [[noreturn]] void Unwind(Stop stop);

    const Script& script_;
    const Libraries& libraries_;
    std::ostream& out_;
    World world_;
    std::optional<Life> life_;
    std::size_t next_ = 0;  ///< The line to be done next.
    int line_ = 0;          ///< The number of the line that was begun last.
    std::vector<PendingInterrupt> interrupts_;
    std::optional<Stop> stop_;
};

}  // namespace coinlet::player
