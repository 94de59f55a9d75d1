#pragma once

#include "base/files.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace coinlet::test {

/// The system's calls, written down, and from them what a disk may hold after the power went, at whatever
/// moment.
///
/// A disk owes its user nothing but what was flushed: the bytes of a file up to its last flush, and the names
/// in a folder up to that folder's. All else that was done may have reached it or not, in any order: of the
/// bytes all, the first half, none, or zeros in their place; of the names each one or not.
class RecordedDisk final : public FileCalls {
public:
    /// What lay under these paths before; nothing where there was no file.
    RecordedDisk(const std::vector<fs::path>& paths, const std::vector<std::optional<Bytes>>& content);

    /// If false, flushes are done, but not written down: as if the program had left them out.
    bool countsFlushes = true;

    using Files = std::map<fs::path, Bytes>;
    /// Calls `look` with each thing that the disk may hold, files by path, temporary ones too. Returns how
    /// many there were.
    std::size_t ForEachOutcome(const std::function<void(const Files&)>& look) const;

    int Open(const char* path, int flags, unsigned mode) override;
    long Write(int file, const void* data, std::size_t size) override;
    int Flush(int file) override;
    int Close(int file) override;
    int Rename(const char* from, const char* to) override;
    int Unlink(const char* path) override;
    int FlushFolder(const char* path) override;

private:
    enum class Kind { Make, Write, Flush, Rename, Unlink, FlushFolder };
    struct Step {
        Kind kind;
        std::size_t body = 0;  ///< Of which file, as an index of bodies: the bytes, whatever their name.
        fs::path path;         ///< The name, or the folder.
        fs::path from;         ///< Of a rename.
        Bytes bytes;
    };
    using Names = std::map<fs::path, std::size_t>;

    void OutcomesAfter(std::size_t steps, const std::function<void(const Files&)>& look) const;
    std::vector<Bytes> BodiesThatMayBe(std::size_t body, std::size_t steps) const;

    FileCalls& real_;
    std::vector<Step> steps_;
    Names namesBefore_;
    std::vector<Bytes> bodiesBefore_;
    std::map<int, std::size_t> open_;      ///< Bodies by file.
    std::map<fs::path, std::size_t> now_;  ///< Bodies by name.
    std::size_t bodies_ = 0;
};

}  // namespace coinlet::test
