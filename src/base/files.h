#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace coinlet {

namespace fs = std::filesystem;

using Bytes = std::vector<std::uint8_t>;

/// The bytes of a text file as the text that they are; it lives as long as they do.
inline std::string_view AsText(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}
/// The other way round.
inline std::span<const std::uint8_t> AsBytes(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// The calls to the operating system that replacing a file is made of. The program uses SystemFileCalls();
/// a test hands in its own to make each of these steps fail in turn. What only looks at the file that stands
/// there, or gives the new one its rights, goes past them. Every call returns what the system call of its
/// name does: -1 (or a short count) is a failure, with errno set.
class FileCalls {
public:
    virtual ~FileCalls() = default;
    virtual int Open(const char* path, int flags, unsigned mode) = 0;
    virtual long Write(int file, const void* data, std::size_t size) = 0;
    virtual int Flush(int file) = 0;
    virtual int Close(int file) = 0;
    virtual int Rename(const char* from, const char* to) = 0;
    virtual int Unlink(const char* path) = 0;
    /// Opens a folder, flushes it, and closes it.
    virtual int FlushFolder(const char* path) = 0;
};
FileCalls& SystemFileCalls();

/// What becomes of a symbolic link where a file is to be replaced.
enum class Links {
    WrittenThrough,  ///< The file that it leads to is replaced, and the link stays.
    Replaced,        ///< The link is. For scratch files: nobody's file lies behind their name.
};

/// Replaces the file at `path` by `content` whole or not at all: the bytes are written beside it under a
/// short temporary name, flushed to the disk, and renamed over it; then the folder is flushed, so that the
/// new name lasts as well. After any failure the old file stands byte for byte and no temporary file is left;
/// only a folder that can't be flushed is passed over, since the new file stands by then. The mode of an
/// existing file stays, and a file that is write-protected or anything that is no file (a folder, a pipe) is
/// refused.
[[nodiscard]] std::error_code ReplaceFile(const fs::path& path, std::span<const std::uint8_t> content,
                                          FileCalls& calls = SystemFileCalls(),
                                          Links links = Links::WrittenThrough);

/// Deletes the temporary files of ReplaceFile in a folder that a process left behind that was killed
/// meanwhile. Their names tell the number of their process; those of a process that is running stay.
void RemoveStrays(const fs::path& folder);

/// The bytes of a regular file (links are followed), or nothing if it is missing, unreadable, larger than
/// `limit` bytes, or no regular file: a pipe is never opened, so nothing waits for its other end.
std::optional<Bytes> ReadFile(const fs::path& path, std::size_t limit = std::size_t{1} << 30);

/// How large a file is, and when it was last changed.
struct FileState {
    std::uintmax_t bytes = 0;
    std::time_t changed = 0;
};
/// That of a file or folder (links are followed), or nothing if none can be seen there.
std::optional<FileState> StateOfFile(const fs::path& path);

/// True if a regular file stands there (links are followed).
bool FileExists(const fs::path& path);

/// Deletes a regular file, or a symbolic link alone; anything else is refused.
[[nodiscard]] std::error_code DeleteFile(const fs::path& path);

/// A name that the user typed or a file held may hold anything; only a plain name leads to a file. Whatever
/// is made into a path asks here first. False for names with a slash, a backslash (the separator where many
/// stores come from) or a zero byte, for the empty name and for "." and "..".
bool IsFileName(std::string_view name);

/// The names of the regular files of `folder` that match one of the patterns of `patterns` ("*.bmp;*.jpg"),
/// without regard to case, sorted by name without regard to case. A folder that can't be read gives no names.
std::vector<std::string> ListFiles(const fs::path& folder, std::string_view patterns);

/// The file of that name in `folder`: the very name first, else the first in order that differs from it in
/// case only. Nothing where there is neither, or `name` is none of a file. Stores that come from a system
/// without regard to case hold ".PAT" and ".TXT".
std::optional<fs::path> FindFile(const fs::path& folder, std::string_view name);

/// The names of the folders in `folder`, sorted likewise, without "." and "..", hidden ones (".name") left
/// out.
std::vector<std::string> ListFolders(const fs::path& folder);

/// True if `name` matches `pattern`, without regard to case: "*" is any run of characters, "?" any one.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace coinlet
