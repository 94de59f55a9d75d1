#pragma once

#include "player/program.h"

namespace coinlet {

/// The whole program, as the scenario player and the tests run it.
std::unique_ptr<player::Program> MakeCoinlet(const Services& services);

}  // namespace coinlet
