#include "base/files.h"
#include "base/system_path.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <sys/stat.h>

namespace coinlet {

namespace {

class RealFileCalls final : public FileCalls {
public:
    int Open(const char* path, int flags, unsigned mode) override { return ::open(path, flags, mode); }
    long Write(int file, const void* data, std::size_t size) override { return ::write(file, data, size); }
    int Flush(int file) override { return ::fsync(file); }
    int Close(int file) override { return ::close(file); }
    int Rename(const char* from, const char* to) override { return ::rename(from, to); }
    int Unlink(const char* path) override { return ::unlink(path); }
    int FlushFolder(const char* path) override {
        const int folder = ::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder < 0) return -1;
        const int result = ::fsync(folder);
        ::close(folder);
        return result;
    }
};

constexpr mode_t permissionBits = 07777;
constexpr mode_t newFileMode = 0666;  // The user's umask takes its share.

std::error_code LastError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

/// Where writing to `path` leads: the end of its chain of symbolic links, be there a file or not.
std::error_code FollowLinks(fs::path& path) {
    constexpr int longestChain = 40;  // as the kernel counts
    for (int links = 0; links < longestChain; ++links) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(path, error))) return {};
        const fs::path target = fs::read_symlink(path, error);
        if (error) return error;
        path = path.parent_path() / target;  // An absolute target replaces all of it.
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

/// The permissions that the new file takes over from the old one; none if there is no old one, or a link in
/// its place.
std::error_code ExistingMode(const fs::path& path, std::optional<mode_t>& mode) {
    if (!path.has_filename()) return std::make_error_code(std::errc::is_a_directory);
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return errno == ENOENT ? std::error_code{} : LastError();
    if (S_ISLNK(status.st_mode)) return {};
    if (S_ISDIR(status.st_mode)) return std::make_error_code(std::errc::is_a_directory);
    if (!S_ISREG(status.st_mode)) return std::make_error_code(std::errc::invalid_argument);
    // A rename asks for the folder's permission alone; a user who write-protects a file means it.
    if (::access(path.c_str(), W_OK) != 0) return LastError();
    mode = status.st_mode & permissionBits;
    return {};
}

// Names of their own length, since one as long as the file system allows can't be added to; the number of the
// process tells whose they are.
constexpr std::string_view temporaryStart = ".~", temporaryEnd = ".tmp";
constexpr char temporaryMiddle = '-';

std::string TemporaryName() {
    static std::atomic<unsigned> counter{0};
    std::string name(temporaryStart);
    name.append(std::to_string(::getpid())).append(1, temporaryMiddle);
    return name.append(std::to_string(counter.fetch_add(1))).append(temporaryEnd);
}

/// The number of the process that made a temporary file of this name; nothing if it is none of them.
std::optional<pid_t> MakerOf(std::string_view name) {
    if (!name.starts_with(temporaryStart) || !name.ends_with(temporaryEnd)) return {};
    name.remove_prefix(temporaryStart.size());
    name.remove_suffix(std::min(name.size(), temporaryEnd.size()));
    pid_t process = 0;
    unsigned count = 0;
    const char* const end = name.data() + name.size();
    const auto [middle, error] = std::from_chars(name.data(), end, process);
    if (error != std::errc{} || process <= 0 || middle == end || *middle != temporaryMiddle) return {};
    const auto [last, countError] = std::from_chars(middle + 1, end, count);
    if (countError != std::errc{} || last != end) return {};
    return process;
}

bool IsGone(pid_t process) {
    return ::kill(process, 0) != 0 && errno == ESRCH;
}

/// A file being written under a temporary name. Unless it is renamed to its place, it is deleted.
class TemporaryFile {
public:
    explicit TemporaryFile(FileCalls& calls) : calls_(calls) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (file_ >= 0) calls_.Close(file_);
        if (!path_.empty()) Remove();
    }

    std::error_code Create(const fs::path& folder, mode_t mode) {
        constexpr int attempts = 100;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            const fs::path path = folder / TemporaryName();
            file_ = calls_.Open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
            if (file_ >= 0) {
                path_ = path;
                return {};
            }
            if (errno != EEXIST && errno != EINTR) return LastError();
        }
        return std::make_error_code(std::errc::file_exists);
    }

    /// What the umask took away from the mode of the old file comes back.
    std::error_code SetMode(mode_t mode) const {
        struct stat status {};
        if (::fstat(file_, &status) != 0) return LastError();
        if ((status.st_mode & permissionBits) == mode) return {};
        return ::fchmod(file_, mode) == 0 ? std::error_code{} : LastError();
    }

    std::error_code Write(std::span<const std::uint8_t> content) {
        while (!content.empty()) {
            errno = 0;
            const long written = calls_.Write(file_, content.data(), content.size());
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) return LastError();
            content = content.subspan(std::min(static_cast<std::size_t>(written), content.size()));
        }
        return {};
    }

    std::error_code Flush() {
        while (calls_.Flush(file_) != 0) {
            if (errno != EINTR) return LastError();
        }
        return {};
    }

    std::error_code Close() {
        const int file = file_;
        file_ = -1;  // Whatever it returns, the number is given back; a second call could hit another file.
        return calls_.Close(file) == 0 || errno == EINTR ? std::error_code{} : LastError();
    }

    std::error_code MoveTo(const fs::path& path) {
        if (calls_.Rename(path_.c_str(), path.c_str()) != 0) return LastError();
        path_.clear();
        return {};
    }

private:
    void Remove() {
        constexpr int attempts = 3;
        for (int attempt = 0; attempt < attempts; ++attempt)
            if (calls_.Unlink(path_.c_str()) == 0) return;
    }

    FileCalls& calls_;
    fs::path path_;
    int file_ = -1;
};

}  // namespace

FileCalls& SystemFileCalls() {
    // Never destroyed: where the toolkit ends the program by itself, work is kept after statics have gone.
    static FileCalls* const calls = new RealFileCalls;
    return *calls;
}

std::error_code ReplaceFile(const fs::path& path, std::span<const std::uint8_t> content, FileCalls& calls,
                            Links links) {
    if (!IsSystemPath(path)) return std::make_error_code(std::errc::invalid_argument);
    fs::path target = path;
    std::optional<mode_t> mode;
    if (links == Links::WrittenThrough) {
        if (const auto error = FollowLinks(target)) return error;
    }
    if (const auto error = ExistingMode(target, mode)) return error;

    TemporaryFile file(calls);
    if (const auto error = file.Create(target.parent_path(), mode.value_or(newFileMode))) return error;
    if (mode) {
        if (const auto error = file.SetMode(*mode)) return error;
    }
    if (const auto error = file.Write(content)) return error;
    if (const auto error = file.Flush()) return error;
    if (const auto error = file.Close()) return error;
    if (const auto error = file.MoveTo(target)) return error;
    const fs::path folder = target.parent_path();
    calls.FlushFolder(folder.empty() ? "." : folder.c_str());
    return {};
}

void RemoveStrays(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const auto maker = MakerOf(entry->path().filename().native());
        if (maker && IsGone(*maker)) static_cast<void>(DeleteFile(entry->path()));
    }
}

}  // namespace coinlet
