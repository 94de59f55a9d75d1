// Files that a script puts in place before the program meets them, and asks about afterwards.

#include "base/files.h"
#include "player/commands.h"
#include "player/failure.h"
#include "player/script_run.h"
#include "player/values.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <limits>

namespace coinlet::player {

namespace {

fs::path ReadPath(const ScriptRun& run, const Arguments& arguments, std::size_t i) {
    return run.ThePlaces().Resolve(arguments.Text(i));
}

bool IsThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

void FailOn(const std::error_code& error, const std::string& what) {
    if (error) Fail("can't " + what + ": " + error.message());
}

void Replace(const fs::path& path, std::span<const std::uint8_t> bytes, const std::string& name) {
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    FailOn(error ? error : ReplaceFile(path, bytes), "write " + name);
}

// --- Expectations -----------------------------------------------------------------------------------------

void ExpectFile(ScriptRun& run, const Arguments& arguments) {
    if (!IsThere(ReadPath(run, arguments, 0)))
        Fail("expected the file " + arguments.Text(0) + ", found none");
}

void ExpectNoFile(ScriptRun& run, const Arguments& arguments) {
    if (IsThere(ReadPath(run, arguments, 0))) Fail("expected no file " + arguments.Text(0) + ", found one");
}

/// Up to a few bytes from `at` on, as a script would write them.
std::string ShowBytes(std::string_view bytes, std::size_t at) {
    constexpr std::size_t shown = 16;
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "\"";
    for (const char letter : bytes.substr(at, shown)) {
        const auto byte = static_cast<std::uint8_t>(letter);
        if (letter == '\r') {
            text += "\\r";
        } else if (letter == '\n') {
            text += "\\n";
        } else if (letter == '"' || letter == '\\') {
            text += std::string("\\") + letter;
        } else if (byte >= ' ' && byte < 0x7F) {
            text += letter;
        } else {
            text += std::string("\\x") + digits[byte / 16U] + digits[byte % 16U];
        }
    }
    return text + (bytes.size() > at + shown ? "...\"" : "\"");
}

void ExpectBytes(ScriptRun& run, const Arguments& arguments) {
    const auto content = ReadFile(ReadPath(run, arguments, 0));
    if (!content) Fail("expected the file " + arguments.Text(0) + ", found none");
    const std::string found(content->begin(), content->end());
    const std::string expected = arguments.Bytes(1);
    if (found == expected) return;
    const auto [wanted, present] = std::ranges::mismatch(expected, found);
    const auto at = static_cast<std::size_t>(wanted - expected.begin());
    Fail("expected " + std::to_string(expected.size()) + " bytes in " + arguments.Text(0) + " with " +
         ShowBytes(expected, at) + " at " + std::to_string(at) + ", found " + std::to_string(found.size()) +
         " with " + ShowBytes(found, at));
}

// --- Setting the stage ------------------------------------------------------------------------------------

void WriteFile(ScriptRun& run, const Arguments& arguments) {
    Replace(ReadPath(run, arguments, 0), AsBytes(arguments.Bytes(1)), arguments.Text(0));
}

void CopyFile(ScriptRun& run, const Arguments& arguments) {
    const std::string from = arguments.Text(0);
    const auto content = ReadFile(run.ThePlaces().Found(from));
    if (!content) Fail("expected the file " + from + ", found none");
    Replace(ReadPath(run, arguments, 1), *content, arguments.Text(1));
}

/// A file that isn't there is as good as deleted.
void RemoveFile(ScriptRun& run, const Arguments& arguments) {
    const fs::path path = ReadPath(run, arguments, 0);
    if (IsThere(path)) FailOn(DeleteFile(path), "delete " + arguments.Text(0));
}

void MakeFolder(ScriptRun& run, const Arguments& arguments) {
    std::error_code error;
    fs::create_directories(ReadPath(run, arguments, 0), error);
    FailOn(error, "make " + arguments.Text(0));
}

/// True if `folder` is `inner` or holds it.
bool Holds(const fs::path& folder, const fs::path& inner) {
    const auto [end, unused] = std::ranges::mismatch(folder, inner);
    return end == folder.end();
}

void DeleteFolder(ScriptRun& run, const Arguments& arguments) {
    const fs::path path = ReadPath(run, arguments, 0);
    if (Holds(path, run.ThePlaces().Application()) || Holds(path, run.ThePlaces().Out()))
        Fail("won't delete " + arguments.Text(0) + ": the folder that the script plays in lies there");
    std::error_code error;
    fs::remove_all(path, error);
    FailOn(error, "delete " + arguments.Text(0));
}

/// The size of a file that is there, and holds the byte at `place`.
std::uintmax_t RequireByte(const fs::path& path, const std::string& name, std::uintmax_t place) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);
    FailOn(error, "find " + name);
    if (place >= size) Fail(name + " has " + std::to_string(size) + " bytes");
    return size;
}

/// A number of bytes, or a place among them.
std::uintmax_t ReadCount(const Arguments& arguments, std::size_t i) {
    const int count = arguments.Whole(i);
    if (count < 0) Fail("expected a number from 0 on, found " + std::to_string(count));
    return static_cast<std::uintmax_t>(count);
}

void CutFile(ScriptRun& run, const Arguments& arguments) {
    const fs::path path = ReadPath(run, arguments, 0);
    const std::uintmax_t kept = ReadCount(arguments, 1);
    RequireByte(path, arguments.Text(0), kept);
    std::error_code error;
    fs::resize_file(path, kept, error);
    FailOn(error, "cut " + arguments.Text(0));
}

void SetByte(ScriptRun& run, const Arguments& arguments) {
    const fs::path path = ReadPath(run, arguments, 0);
    const std::uintmax_t place = ReadCount(arguments, 1);
    const int value = arguments.Whole(2);
    if (value < 0 || value > std::numeric_limits<std::uint8_t>::max())
        Fail("expected a byte, found " + std::to_string(value));
    RequireByte(path, arguments.Text(0), place);
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(place));
    file.put(static_cast<char>(value));
    if (!file.flush()) Fail("can't write " + arguments.Text(0));
}

void LockFile(ScriptRun& run, const Arguments& arguments) {
    std::error_code error;
    fs::permissions(ReadPath(run, arguments, 0), fs::perms::none, error);
    FailOn(error, "lock " + arguments.Text(0));
}

constexpr Command commands[] = {
    {"expect-file", "PATH", Needs::NoProgram, ExpectFile},
    {"expect-no-file", "PATH", Needs::NoProgram, ExpectNoFile},
    {"expect-bytes", "PATH TEXT", Needs::NoProgram, ExpectBytes},
    {"write-file", "PATH TEXT", Needs::NoProgram, WriteFile},
    {"copy-file", "FROM TO", Needs::NoProgram, CopyFile},
    {"delete-file", "PATH", Needs::NoProgram, RemoveFile},
    {"cut-file", "PATH COUNT", Needs::NoProgram, CutFile},
    {"set-byte", "PATH PLACE VALUE", Needs::NoProgram, SetByte},
    {"lock-file", "PATH", Needs::NoProgram, LockFile},
    {"make-folder", "PATH", Needs::NoProgram, MakeFolder},
    {"delete-folder", "PATH", Needs::NoProgram, DeleteFolder},
};

}  // namespace

std::span<const Command> FileCommands() {
    return commands;
}

}  // namespace coinlet::player
