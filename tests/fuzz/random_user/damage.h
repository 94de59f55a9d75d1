#pragma once

#include "fuzz/dice.h"

#include <filesystem>
#include <string>
#include <vector>

namespace coinlet::test {

/// Damage to the files of a folder, and the way back, as lines of scripts.
struct Damage {
    std::vector<std::string> lines;
    std::vector<std::string> healing;  ///< What makes the damaged files sound again.
};

/// Damages a third of the files in the application folder and in all folders there: cuts them short, changes
/// bytes, empties them, puts a folder in their place, takes them away, locks them.
Damage DamageAThird(Dice& dice, const std::filesystem::path& application);

}  // namespace coinlet::test
