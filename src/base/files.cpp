#include "base/files.h"

#include "base/file_reading.h"
#include "base/system_path.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <utility>

namespace coinlet {

namespace {

/// A file open for reading; closed when it goes.
class OpenFile {
public:
    /// Without waiting: should a pipe take the file's place in this moment, opening it returns at once.
    explicit OpenFile(const fs::path& path)
        : file_(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (file_ >= 0) ::close(file_);
    }

    /// Its size in bytes, or nothing if it is not open or no regular file.
    std::optional<std::size_t> RegularSize() const {
        struct stat status {};
        if (file_ < 0 || ::fstat(file_, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
        return static_cast<std::size_t>(status.st_size);
    }

    /// As many of the next `size` bytes as there are, or -1.
    long Read(void* data, std::size_t size, const ReadCall& read) const {
        for (;;) {
            const long got = read(file_, data, size);
            if (got >= 0 || errno != EINTR) return got;
        }
    }

private:
    int file_;
};

/// The first bytes of an open file that has `size` of them: no more than `most`, nor than can be read.
FileStart ReadUpTo(const OpenFile& file, std::size_t size, std::size_t most, const ReadCall& read) {
    // The end is where reading says it is: a file may grow meanwhile, and some claim to be empty. One byte
    // more than the size makes the usual file end in one buffer, and one more than the most tells of others.
    FileStart start{.bytes = Bytes(std::min(size, most) + 1)};
    Bytes& bytes = start.bytes;
    std::size_t filled = 0;
    while (filled <= most) {
        if (filled == bytes.size()) bytes.resize(std::min(bytes.size() * 2, most + 1));
        const long got = file.Read(bytes.data() + filled, bytes.size() - filled, read);
        start.isWhole = got == 0;
        if (got <= 0) break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(std::min(filled, most));
    return start;
}

}  // namespace

std::optional<Bytes> ReadFile(const fs::path& path, std::size_t limit) {
    if (!FileExists(path)) return std::nullopt;
    const OpenFile file(path);
    const auto size = file.RegularSize();
    if (!size || *size > limit) return std::nullopt;
    FileStart start = ReadUpTo(file, *size, limit, ReadBySystem);
    return start.isWhole ? std::optional(std::move(start.bytes)) : std::nullopt;
}

long ReadBySystem(int file, void* data, std::size_t size) {
    return ::read(file, data, size);
}

std::optional<FileStart> ReadStart(const fs::path& path, std::size_t most, const ReadCall& read) {
    if (!FileExists(path)) return std::nullopt;
    const OpenFile file(path);
    const auto size = file.RegularSize();
    return size ? std::optional(ReadUpTo(file, *size, most, read)) : std::nullopt;
}

bool IsMissing(const fs::path& path) {
    std::error_code error;
    return !IsSystemPath(path) || fs::symlink_status(path, error).type() == fs::file_type::not_found;
}

std::optional<FileState> StateOfFile(const fs::path& path) {
    struct stat state {};
    if (!IsSystemPath(path) || ::stat(path.c_str(), &state) != 0) return std::nullopt;
    return FileState{static_cast<std::uintmax_t>(state.st_size), state.st_mtime};
}

bool FileExists(const fs::path& path) {
    std::error_code error;
    return IsSystemPath(path) && fs::is_regular_file(path, error);
}

std::error_code DeleteFile(const fs::path& path) {
    if (!IsSystemPath(path)) return std::make_error_code(std::errc::invalid_argument);
    std::error_code error;
    const auto status = fs::symlink_status(path, error);
    if (error) return error;
    if (status.type() == fs::file_type::directory) return std::make_error_code(std::errc::is_a_directory);
    if (status.type() != fs::file_type::regular && status.type() != fs::file_type::symlink)
        return std::make_error_code(std::errc::invalid_argument);
    return ::unlink(path.c_str()) == 0 ? std::error_code{} : std::error_code{errno, std::generic_category()};
}

bool IsFileName(std::string_view name) {
    constexpr std::string_view forbidden("/\\\0", 3);
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(forbidden) == std::string_view::npos;
}

}  // namespace coinlet
