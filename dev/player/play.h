#pragma once

#include "player/command_line.h"
#include "player/life.h"

#include <iosfwd>

namespace coinlet::player {

constexpr int exitPassed = 0;
constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

/// Plays all scripts, each with a fresh program, and ends with the line `N passed, N failed`. Returns the
/// exit status: exitPassed if none failed, exitUsage if the folders can't be used.
int PlayAll(const Options& options, const Libraries& libraries, std::ostream& out);

}  // namespace coinlet::player
