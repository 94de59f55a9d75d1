#pragma once

#include "core/design_revision.h"
#include "store/snapshots.h"

#include <optional>

namespace coinlet {

struct Context;

/// Sees to it that nothing is lost when the program is killed or the machine dies. While the design holds
/// work that isn't in the store, a snapshot of it, just what a save would write, is kept outside the
/// application folder: written when the user pauses for a second, and at the latest with the first stroke
/// that is finished ten seconds after the last one. It goes when the design is saved, made new or replaced by
/// another, and when the user leaves the program and, asked about it, gives the work up. Who leaves without
/// having been asked keeps it. The next start puts what it finds into the store.
class Recovery {
public:
    /// Snapshots are kept in `folder`; with an empty one there are none.
    Recovery(Context& context, fs::path folder);

    /// Puts the designs that a killed program left behind into the store, each under a name with its time,
    /// and tells the user. A design that the store can't take waits for a later start.
    void PutBackLostWork();
    /// Looks once a second whether there is something to keep.
    void SecondPassed();
    void StrokeFinished();
    /// Writes the snapshot as the design is at this moment, if it holds unsaved work: for an end that may be
    /// near, such as that of the user's session.
    void WriteNow();
    /// The same for an end that comes now and gives the user no say in what becomes of his work: the snapshot
    /// is left to the next start. Without this call it goes with the object.
    void KeepForNextStart();

private:
    bool HoldsUnsavedWork(const DesignRevision& now) const;
    void WriteSnapshot(const DesignRevision& now);
    bool PutIntoStore(const DesignFiles& design, std::int64_t written);

    Context& context_;
    fs::path folder_;
    OwnSnapshot snapshot_;
    DesignRevision lastSeen_;
    std::optional<DesignRevision> kept_;  ///< What the snapshot shows, if there is one.
    int secondsSinceWriting_ = 0;
};

}  // namespace coinlet
