#pragma once

#include "fuzz/random_user/chance.h"
#include "fuzz/random_user/invariants.h"
#include "fuzz/random_user/reach.h"
#include "player/line_source.h"
#include "player/places.h"

#include <cstdint>
#include <deque>
#include <filesystem>
#include <iosfwd>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace coinlet::test {

/// A user who does whatever comes to his mind, in the language of scripts; what he did is a script to be
/// played again. Before each line he looks whether the program is still sound.
class RandomUser : public player::LineSource {
public:
    /// He stops after `steps` lines, or when the dice are used up. `script` takes each line before it is
    /// done. The dialogs of `favourites` he opens more often than others.
    RandomUser(Dice dice, std::size_t steps, std::vector<std::string> favourites,
               const player::Places& places, std::ostream& script);

    /// From the first line on there are assignments and raised events.
    void BeLawless() { lives_ = lawlessLife; }

    /// Throws ScriptFailure when the program isn't sound.
    std::optional<player::ScriptLine> NextLine(player::Life* life) override;
    void Interrupting(const player::Life& life, const player::Call& call) override;
    void ProgramEnding() override;

    /// The number of lines he has given.
    std::size_t Steps() const { return step_; }
    /// What he used in those lives of the program in which he did what a user can do, and no more.
    const Reach& Used() const { return reach_; }

private:
    using Files = std::map<std::filesystem::path, std::string>;

    std::string MakeLine(player::Life* life);
    std::string AnyUserOrStateLine(const Chance& chance) const;
    /// Something that comes in the midst of something else.
    std::string InterruptLine(const Chance& chance) const;
    /// Puts something ahead of the last line prepared that he does amidst it: what was never used, and can't
    /// be used now, may show itself for that moment only.
    void WaitForUnused(const Chance& chance);
    void NoteUse(const player::Life& life, std::span<const player::Word> words);
    /// What comes between two lives of the program.
    void PrepareRestart();
    /// In each fourth life of the program there are assignments and raised events too, whatever a user could
    /// do.
    bool IsLawless() const { return lives_ % 4 == lawlessLife; }
    static constexpr std::size_t lawlessLife = 2;
    /// In each fourth life files are damaged.
    bool IsAmongDamage() const { return lives_ % 4 == 3; }
    void CheckFilesAfterEnd();
    /// The files that the program can know, with their contents.
    Files ReadFiles() const;

    Dice dice_;
    std::size_t steps_;
    const player::Places& places_;
    std::ostream& script_;
    std::deque<std::string> prepared_;  ///< Lines to be given before others are made up.
    std::string pressed_;
    std::vector<std::string> favourites_;
    Reach reach_;
    FaultFinder faults_;
    std::size_t lives_ = 0;
    std::size_t stepsOfLife_ = 0;       ///< That were made up since the last start.
    std::vector<std::string> healing_;  ///< Lines that mend what he damaged.
    std::size_t step_ = 0;
    std::optional<Files> filesAtEnd_;
};

}  // namespace coinlet::test
