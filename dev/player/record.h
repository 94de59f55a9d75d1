#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace coinlet::player {

/// What happened, in its order, and how much of that the script has asked about: each expectation takes the
/// oldest entry that isn't taken yet.
template <class Entry>
class Record {
public:
    void Add(Entry entry) { entries_.push_back(std::move(entry)); }
    const std::vector<Entry>& All() const { return entries_; }
    /// Forgets the entries from that one on.
    void Forget(std::size_t first) {
        entries_.resize(std::min(first, entries_.size()));
        taken_ = std::min(taken_, entries_.size());
    }
    /// Takes the oldest entry; nullptr if none is left.
    const Entry* Take() { return taken_ < entries_.size() ? &entries_[taken_++] : nullptr; }
    /// The entry that Take would give.
    const Entry* Next() const { return taken_ < entries_.size() ? &entries_[taken_] : nullptr; }

private:
    std::vector<Entry> entries_;
    std::size_t taken_ = 0;
};

}  // namespace coinlet::player
