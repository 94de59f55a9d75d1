#pragma once

#include "base/files.h"

#include <functional>
#include <optional>
#include <string>

namespace coinlet {

/// A design as a save would write it: the bytes of its two files. The second only if it has an info text.
struct DesignFiles {
    Bytes picture;
    std::optional<Bytes> infoText;
};

/// The snapshot of the design of this run, in a folder that all runs of this user share. As long as the
/// object lives, the snapshot is locked: it belongs to a program that runs. The operating system gives the
/// lock up when the program ends, in whatever way.
class OwnSnapshot {
public:
    /// Nothing is made in `folder`, nor the folder itself, before the first snapshot is written.
    explicit OwnSnapshot(fs::path folder) : folder_(std::move(folder)) {}
    ~OwnSnapshot();
    OwnSnapshot(const OwnSnapshot&) = delete;
    OwnSnapshot& operator=(const OwnSnapshot&) = delete;

    /// Replaces the snapshot, each file whole or not at all. The disk is not waited for: what is lost with
    /// the machine's last seconds is no more than a user expects to lose. False if it couldn't be written.
    bool Write(const DesignFiles& design);
    /// Takes the snapshot away, if there is one.
    void Remove();
    /// Leaves the snapshot to the next start when this object goes.
    void Keep() { isKept_ = true; }

private:
    bool Lock();

    fs::path folder_;
    fs::path stem_;  ///< Path of the snapshot without an extension; empty as long as there is none.
    int lock_ = -1;
    bool isKept_ = false;
};

/// Hands each snapshot in `folder` whose program no longer runs to `take`, with the time of its last writing
/// in seconds since 1970, and removes it if `take` says that it isn't needed any more. One that can't be
/// read, be it only its info text, is left for the next start. Two programs that start at once take each
/// snapshot once.
void TakeLostSnapshots(const fs::path& folder,
                       const std::function<bool(const DesignFiles& design, std::int64_t written)>& take);

}  // namespace coinlet
