#pragma once

#include "player/arguments.h"

#include <span>
#include <string_view>

namespace coinlet::player {

class ScriptRun;

/// When a command may stand: the program starts before the first line that needs it, and after its end
/// nothing of it can be used.
enum class Needs {
    NoProgram,       ///< Before the start, while the program runs, and after its end.
    StartedProgram,  ///< Also after its end.
    RunningProgram
};

/// A command of the script language.
struct Command {
    std::string_view name;
    /// What it takes, a word each: those in brackets may be left out, and where "..." ends the last one any
    /// number more may follow.
    std::string_view takes;
    Needs needs = Needs::RunningProgram;
    void (*run)(ScriptRun& run, const Arguments& arguments) = nullptr;
};

/// The groups of commands, by subject. All of them together are the language.
std::span<const Command> UserCommands();
std::span<const Command> StateCommands();
std::span<const Command> PictureCommands();
std::span<const Command> FileCommands();
std::span<const Command> OutsideCommands();

/// A command with the words behind it.
struct Call {
    const Command* command;
    std::vector<Word> words;

    Arguments GetArguments() const { return Arguments(words); }
};

/// The call that the words of a line mean; there is at least one word. An unknown command, or too few or too
/// many words for it, throws ScriptFailure.
Call ParseCall(std::span<const Word> words);

/// Whether the call needs the program to be started before it, or forbids that it has ended. Some commands
/// need it less when they only ask for certain things.
Needs NeedsOf(const Call& call);

}  // namespace coinlet::player
