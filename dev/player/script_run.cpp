#include "player/script_run.h"

#include "controls/control.h"
#include "player/failure.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <ostream>
#include <system_error>

namespace coinlet::player {

ScriptRun::ScriptRun(std::string name, LineSource& lines, const Places& places, const Libraries& libraries,
                     std::ostream& out)
    : name_(std::move(name)),
      lines_(lines),
      libraries_(libraries),
      out_(out),
      world_{places, {}, {}, {}, {}} {}

bool ScriptRun::Play() {
    do {
        const bool again = stop_ == Stop::Restart;
        stop_.reset();
        try {
            if (again) Guard([this] { StartProgram(); });
            while (true)
                RunNextLine();
        } catch (const Unwinding&) {  // stop_ says why
        }
        if (life_) {
            world_.screen = life_->platform.Screen;
            world_.screen.MousePointer = defaultPointer;
            EndLife();
        }
        interrupts_.clear();
    } while (stop_ == Stop::Restart);
    return stop_ == Stop::ScriptEnded;
}

void ScriptRun::RunNextLine() {
    if (stop_) throw Unwinding{};
    std::vector<Word> words;
    Guard([&] {
        while (words.empty()) {
            if (!next_) next_ = lines_.NextLine(LifeIfStarted());
            if (!next_) Unwind(Stop::ScriptEnded);
            line_ = next_->number;
            words = SplitWords(next_->text);
            if (words.empty()) next_.reset();
        }
        const Call call = ParseCall(words);
        if (!life_ && NeedsOf(call) != Needs::NoProgram) {
            StartProgram();  // the line itself is the next one still
            return;
        }
        next_.reset();
        Perform(call);
    });
}

void ScriptRun::ServeInterrupts() {
    if (stop_) throw Unwinding{};
    for (PendingInterrupt& interrupt : interrupts_)
        --interrupt.count;
    const auto due =
        std::stable_partition(interrupts_.begin(), interrupts_.end(),
                              [](const PendingInterrupt& interrupt) { return interrupt.count > 0; });
    const std::vector<PendingInterrupt> calls(due, interrupts_.end());
    interrupts_.erase(due, interrupts_.end());
    const int line = line_;
    for (const PendingInterrupt& interrupt : calls) {
        if (life_->platform.Ended()) break;
        line_ = interrupt.line;
        lines_.Interrupting(*life_, interrupt.call);
        Guard([&] { Perform(interrupt.call); });
    }
    line_ = line;
}

void ScriptRun::StartProgram() {
    life_.emplace(static_cast<ScriptReader&>(*this), world_, libraries_);
    life_->program->Start();
}

void ScriptRun::EndLife() {
    namespace fs = std::filesystem;
    const fs::path kept = libraries_.recoveryFolder;
    const bool isKilled = !kept.empty() && !life_->platform.Ended();
    const fs::path aside = kept.string() + ".aside";
    std::error_code isMissing;
    // Objects clear up after themselves; a killed process doesn't.
    if (isKilled) fs::rename(kept, aside, isMissing);
    life_.reset();
    if (isKilled && !isMissing) fs::rename(aside, kept, isMissing);
}

void ScriptRun::Perform(const Call& call) {
    if (NeedsOf(call) == Needs::RunningProgram && life_->platform.Ended())
        Fail("expected a running program for " + std::string(call.command->name) + ", found it ended");
    call.command->run(*this, call.GetArguments());
    if (life_) life_->platform.SettleFocus();
}

void ScriptRun::Guard(const std::function<void()>& action) {
    try {
        action();
    } catch (const ProgramEnded&) {  // where events enter the program; the platform knows that it has ended
    } catch (const ScriptFailure& failure) {
        ReportFailure(failure.reason);
        Unwind(Stop::Failed);
    } catch (const std::exception& fault) {
        ReportFailure(std::string("the program threw ") + fault.what());
        Unwind(Stop::Failed);
    }
}

void ScriptRun::ReportFailure(const std::string& reason) {
    out_ << name_ << ':' << line_ << ": " << reason << '\n';
}

void ScriptRun::Interrupt(int count, Call call) {
    interrupts_.push_back({count, line_, std::move(call)});
}

void ScriptRun::Restart() {
    Unwind(Stop::Restart);
}

void ScriptRun::Unwind(Stop stop) {
    stop_ = stop;
    throw Unwinding{};
}

}  // namespace coinlet::player
