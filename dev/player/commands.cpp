#include "player/commands.h"

#include "player/failure.h"

#include <algorithm>
#include <array>
#include <limits>

namespace coinlet::player {

namespace {

constexpr std::array groups = {&UserCommands, &StateCommands, &PictureCommands, &FileCommands,
                               &OutsideCommands};

const Command* FindCommand(std::string_view name) {
    for (const auto group : groups) {
        const auto commands = group();
        const auto command = std::ranges::find(commands, name, &Command::name);
        if (command != commands.end()) return &*command;
    }
    return nullptr;
}

struct WordCount {
    std::size_t least = 0, most = 0;
};

WordCount CountTaken(std::string_view takes) {
    WordCount count;
    for (const Word& word : SplitWords(takes)) {
        ++count.most;
        if (word.source.front() != '[') ++count.least;
    }
    if (takes.find("...") != std::string_view::npos) count.most = std::numeric_limits<std::size_t>::max();
    return count;
}

bool SpeaksOf(const Call& call, std::string_view what) {
    return !call.words.empty() && call.words.front().source.starts_with(what);
}

}  // namespace

Call ParseCall(std::span<const Word> words) {
    const std::string& name = words.front().source;
    const Command* const command = FindCommand(name);
    if (!command) Fail("no such command: " + name);
    const WordCount count = CountTaken(command->takes);
    const std::size_t found = words.size() - 1;
    if (found < count.least || found > count.most) {
        const std::string takes = command->takes.empty() ? "no words" : std::string(command->takes);
        Fail(name + " takes " + takes + ", found " + std::to_string(found) +
             (found == 1 ? " word" : " words"));
    }
    return {command, {words.begin() + 1, words.end()}};
}

Needs NeedsOf(const Call& call) {
    if (call.command->name == "set" && SpeaksOf(call, "Screen.")) return Needs::NoProgram;
    if (call.command->name == "expect" && SpeaksOf(call, "Program.")) return Needs::StartedProgram;
    return call.command->needs;
}

}  // namespace coinlet::player
