#pragma once

#include "base/files.h"

#include <cstddef>
#include <cstdint>
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
    std::vector<Bytes> files;  ///< Sound ones, small, that reach most of the reader's code.
    std::function<Outcome(std::span<const std::uint8_t>)> read;
    std::size_t slow = 1;  ///< Only one of so many rounds is played.
};

}  // namespace coinlet::test
