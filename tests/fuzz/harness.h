#pragma once

#include "fuzz/mutate.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace coinlet::test {

/// What a reader made of a file.
struct Outcome {
    bool isRead = false;  ///< False if it refused the file, which is never wrong for a damaged one.
    std::string wrong;    ///< What is wrong with the result; "" if nothing is.
};

/// A reader of files, to be given damaged ones.
struct Reader {
    std::string name;
    std::vector<Bytes> files;  ///< Sound ones, small, that reach all of the reader's code.
    std::function<Outcome(std::span<const std::uint8_t>)> read;
    std::size_t slow = 1;  ///< Only one of so many rounds is played.
};

/// Checks each reader with its sound files, which it may not refuse, and then with as many damaged ones as
/// the command line says: PROGRAM [ROUNDS [SEED]]. Prints what was found and the file that showed it; the
/// result is the program's. The same command line always does the same.
int Fuzz(const std::vector<Reader>& readers, std::size_t usualRounds, int argc, char** argv);

}  // namespace coinlet::test
