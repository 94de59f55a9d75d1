#pragma once

#include <cstddef>
#include <list>
#include <unordered_map>
#include <utility>

namespace coinlet {

/// Keeps the values that were used last, up to `capacity` of them; the one unused for longest goes first.
template <class Key, class Value, class Hash>
class Recent {
public:
    explicit Recent(std::size_t capacity) : capacity_(capacity) {}

    /// The value of `key`, or null. It stays until the next call of Add or Clear.
    const Value* Find(const Key& key) {
        const auto found = places_.find(key);
        if (found == places_.end()) return nullptr;
        entries_.splice(entries_.begin(), entries_, found->second);
        return &found->second->second;
    }

    /// Keeps a value under a key that is not there yet.
    void Add(const Key& key, Value value) {
        if (capacity_ == 0) return;
        if (entries_.size() == capacity_) {
            places_.erase(entries_.back().first);
            entries_.pop_back();
        }
        entries_.emplace_front(key, std::move(value));
        places_[key] = entries_.begin();
    }

    void Clear() {
        places_.clear();
        entries_.clear();
    }

private:
    using Entries = std::list<std::pair<Key, Value>>;

    std::size_t capacity_;
    Entries entries_;  // the one used last in front
    std::unordered_map<Key, typename Entries::iterator, Hash> places_;
};

}  // namespace coinlet
