#pragma once

#include "fuzz/dice.h"
#include "player/line_source.h"
#include "player/places.h"

#include <cstdint>
#include <deque>
#include <filesystem>
#include <iosfwd>
#include <map>
#include <string>

namespace coinlet::test {

/// A user who does whatever comes to his mind, in the language of scripts; what he did is a script to be
/// played again. Before each line he looks whether the program is still sound.
class RandomUser : public player::LineSource {
public:
    /// He stops after `steps` lines. `script` takes each line before it is done.
    RandomUser(std::uint32_t seed, std::size_t steps, const player::Places& places, std::ostream& script);

    /// Throws ScriptFailure when the program isn't sound.
    std::optional<player::ScriptLine> NextLine(player::Life* life) override;
    void ProgramEnding() override;

    /// The number of lines he has given.
    std::size_t Steps() const { return step_; }

private:
    using Files = std::map<std::filesystem::path, std::string>;

    std::string MakeLine(player::Life* life);
    void CheckFilesAfterEnd();
    /// The files that the program can know, with their contents.
    Files ReadFiles() const;

    Dice dice_;
    std::size_t steps_;
    const player::Places& places_;
    std::ostream& script_;
    std::deque<std::string> prepared_;  ///< Lines to be given before others are made up.
    std::string pressed_;
    std::size_t step_ = 0;
    std::optional<Files> filesAtEnd_;
};

}  // namespace coinlet::test
