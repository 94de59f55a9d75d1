#include "store/snapshots.h"

#include "base/file_reading.h"

#include <fcntl.h>
#include <unistd.h>

#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>

namespace coinlet {

namespace {

constexpr std::string_view lockEnd = ".lock", pictureEnd = ".pat", infoTextEnd = ".txt";

fs::path With(const fs::path& stem, std::string_view extension) {
    return fs::path(stem).concat(extension);
}

/// The calls of the system, but for those that wait for the disk.
class HastyFileCalls final : public FileCalls {
public:
    int Open(const char* path, int flags, unsigned mode) override { return real_.Open(path, flags, mode); }
    long Write(int file, const void* data, std::size_t size) override {
        return real_.Write(file, data, size);
    }
    int Flush(int) override { return 0; }
    int Close(int file) override { return real_.Close(file); }
    int Rename(const char* from, const char* to) override { return real_.Rename(from, to); }
    int Unlink(const char* path) override { return real_.Unlink(path); }
    int FlushFolder(const char*) override { return 0; }

private:
    FileCalls& real_ = SystemFileCalls();
};

/// True if the file was locked for this program and is still in its folder: another one that took the
/// snapshot meanwhile has deleted it.
bool TryLock(int file) {
    struct stat status {};
    return ::flock(file, LOCK_EX | LOCK_NB) == 0 && ::fstat(file, &status) == 0 && status.st_nlink > 0;
}

/// The lock goes last: whoever sees the files of a snapshot sees its lock too.
void RemoveSnapshot(const fs::path& stem) {
    for (const std::string_view end : {pictureEnd, infoTextEnd, lockEnd})
        static_cast<void>(DeleteFile(With(stem, end)));
}

/// A file that is closed when it is no longer needed, and its lock given up with it.
class OpenFileHandle {
public:
    explicit OpenFileHandle(const fs::path& path)
        : file_(::open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW)) {}
    ~OpenFileHandle() {
        if (file_ >= 0) ::close(file_);
    }
    OpenFileHandle(const OpenFileHandle&) = delete;
    OpenFileHandle& operator=(const OpenFileHandle&) = delete;
    int Get() const { return file_; }

private:
    int file_;
};

using Taker = std::function<bool(const DesignFiles&, std::int64_t)>;

/// True if all of the snapshot could be read, and was taken. What a disk or a network refuses now, it may
/// give at the next start.
bool IsTaken(const fs::path& stem, const Taker& take) {
    const fs::path picture = With(stem, pictureEnd), infoText = With(stem, infoTextEnd);
    auto pictureBytes = ReadFile(picture);
    auto infoTextBytes = ReadFile(infoText);
    const auto state = StateOfFile(picture);
    if (!pictureBytes || !state || (!infoTextBytes && !IsMissing(infoText))) return false;
    return take({std::move(*pictureBytes), std::move(infoTextBytes)}, state->changed);
}

}  // namespace

OwnSnapshot::~OwnSnapshot() {
    if (!isKept_) Remove();
    if (lock_ >= 0) ::close(lock_);
}

bool OwnSnapshot::Lock() {
    std::error_code error;
    fs::create_directories(folder_, error);
    // A program that starts at this moment may take a fresh lock for one that was left behind; then the next.
    constexpr int attempts = 10;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        std::string name = (folder_ / "design-XXXXXX").string().append(lockEnd);
        const int file = ::mkostemps(name.data(), static_cast<int>(lockEnd.size()), O_CLOEXEC);
        if (file < 0) return false;
        if (TryLock(file)) {
            lock_ = file;
            stem_ = name.substr(0, name.size() - lockEnd.size());
            return true;
        }
        ::close(file);
    }
    return false;
}

bool OwnSnapshot::Write(const DesignFiles& design) {
    if (stem_.empty() && !Lock()) return false;
    HastyFileCalls calls;
    const fs::path infoText = With(stem_, infoTextEnd);
    if (design.infoText) {
        if (ReplaceFile(infoText, *design.infoText, calls)) return false;
    } else if (FileExists(infoText)) {
        static_cast<void>(DeleteFile(infoText));
    }
    return !ReplaceFile(With(stem_, pictureEnd), design.picture, calls);
}

void OwnSnapshot::Remove() {
    if (stem_.empty()) return;
    RemoveSnapshot(stem_);
    ::close(lock_);
    lock_ = -1;
    stem_.clear();
}

void TakeLostSnapshots(const fs::path& folder, const Taker& take) {
    for (const std::string& name : ListFiles(folder, "*" + std::string(lockEnd))) {
        const OpenFileHandle lock(folder / name);
        if (lock.Get() < 0 || !TryLock(lock.Get())) continue;
        const fs::path stem = folder / name.substr(0, name.size() - lockEnd.size());
        if (IsMissing(With(stem, pictureEnd)) || IsTaken(stem, take)) RemoveSnapshot(stem);
    }
}

}  // namespace coinlet
