#pragma once

#include "controls/control.h"
#include "fuzz/dice.h"
#include "fuzz/random_user/reach.h"
#include "player/life.h"

#include <span>
#include <string>
#include <vector>

namespace coinlet::test {

/// What a random user chooses from: the dice, and the program before him.
struct Chance {
    Dice& dice;
    player::Life& life;
    std::string& pressed;  ///< The control on which a button of the pointer went down last.
    const Reach& reach;
    const std::vector<std::string>& favourites;  ///< The dialogs that are opened more often than others.

    Form& Front() const { return *life.platform.FrontForm(); }
    bool Reaches(const Control& control) const {
        return &control.OwnerForm() == &Front() && control.Shown() && control.Reachable();
    }
};

/// One line of a script, made up by chance, for something that can be done now; empty if there is nothing of
/// the kind.
using LineMaker = std::string (*)(const Chance& chance);

/// How often a kind of line comes, relative to the others.
struct WeightedMaker {
    std::size_t weight;
    LineMaker make;
};

/// Makers of lines, by subject. User lines are what a user can do; state lines are assignments and raised
/// events, which don't ask what a user could get at.
std::span<const WeightedMaker> UserLines();
std::span<const WeightedMaker> StateLines();

/// A line of some maker; a sound one for every state of the program.
std::string AnyLine(const Chance& chance, std::span<const WeightedMaker> makers);

}  // namespace coinlet::test
