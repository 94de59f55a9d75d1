#pragma once

#include "base/files.h"

#include <cstddef>
#include <functional>
#include <optional>

namespace coinlet {

/// The beginning of a file.
struct FileStart {
    Bytes bytes;
    bool isWhole = false;  ///< It is all there is in the file.
};

/// Reads the next bytes of an open file, as the system's call does: their number, 0 at the end, -1 with errno
/// set. A test hands in its own to let it fail.
using ReadCall = std::function<long(int file, void* data, std::size_t size)>;
long ReadBySystem(int file, void* data, std::size_t size);

/// The first bytes of a regular file (links are followed): `most` of them, or as many as it has, or as can be
/// read before an error. Nothing if it is missing, can't be opened, or is no regular file.
std::optional<FileStart> ReadStart(const fs::path& path, std::size_t most,
                                   const ReadCall& read = ReadBySystem);

/// True if it is certain that nothing stands there, not even a link that leads nowhere. False where the
/// system can't tell: what can't be seen or read now may well be there.
bool IsMissing(const fs::path& path);

}  // namespace coinlet
