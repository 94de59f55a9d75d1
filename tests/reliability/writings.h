#pragma once

#include "support/world.h"

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace coinlet::test {

/// One of the ways in which the program writes files, from what the user does to what he sees of it. Made
/// anew for each try, always with the same old files and the same work.
class Writing {
public:
    virtual ~Writing() = default;

    /// What the user does. Nothing that goes wrong with the files may throw.
    virtual void Do() = 0;
    /// The files that it is about. Each may be missing before, none is afterwards.
    virtual std::vector<fs::path> Targets() const = 0;
    /// True if these bytes are what an undisturbed writing left in the file.
    virtual bool IsNew(const Bytes& found, const Bytes& undisturbed) const { return found == undisturbed; }
    /// What the user must find after Do(): `step` is the first of the calls that failed, counted from 1, or
    /// none; `isWritten` tells whether all targets are new.
    virtual void ExpectReaction(std::optional<int> step, bool isWritten) = 0;
    /// The folder in which all its files lie.
    virtual fs::path Folder() const = 0;
};

struct KindOfWriting {
    const char* name;
    std::function<std::unique_ptr<Writing>()> make;
    /// False where the program doesn't wait for the disk, so that a power cut may cost what was written last.
    bool waitsForTheDisk = true;
};
inline void PrintTo(const KindOfWriting& kind, std::ostream* stream) {
    *stream << kind.name;
}
/// All of them.
const std::vector<KindOfWriting>& KindsOfWriting();

/// The bytes of the targets, in their order; nothing for one that is missing.
std::vector<std::optional<Bytes>> ContentOf(const std::vector<fs::path>& targets);

}  // namespace coinlet::test
