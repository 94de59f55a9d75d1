#pragma once

#include "fuzz/dice.h"

#include <string>

namespace coinlet::test {

/// Numbers as scripts write them: ordinary ones, and those at and beyond the ends of what fields hold.
std::string AnyNumber(Dice& dice);
/// The same, but whole and within the range of an int.
std::string AnyWhole(Dice& dice);
/// A text, quoted: empty, short, long, of many scripts, with line ends and quotes, or a number.
std::string AnyText(Dice& dice);

}  // namespace coinlet::test
