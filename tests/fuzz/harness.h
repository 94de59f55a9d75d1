#pragma once

#include "fuzz/reader.h"

#include <vector>

namespace coinlet::test {

/// Checks each reader with its sound files, which it may not refuse, and then with as many damaged ones as
/// the command line says: PROGRAM [ROUNDS [SEED]]. Prints what was found and the file that showed it; the
/// result is the program's. The same command line always does the same.
int Fuzz(const std::vector<Reader>& readers, std::size_t usualRounds, int argc, char** argv);

}  // namespace coinlet::test
