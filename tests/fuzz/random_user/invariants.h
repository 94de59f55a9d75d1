#pragma once

#include "player/life.h"

#include <string>

namespace coinlet::test {

/// What is wrong with the program as it stands, though no doing of any user may make it so; "" if nothing.
std::string FindFault(player::Life& life);

}  // namespace coinlet::test
