#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet::player {

/// A word of a line as it stands in the script: without the quotes around it, its escapes not yet read.
struct Word {
    std::string source;
    bool quoted = false;
};

/// The words of a line: parted by blanks; what stands in double quotes is one word. A "#" at the start of a
/// word begins a comment. Throws ScriptFailure on a quote that isn't closed and on text right behind a closed
/// one.
std::vector<Word> SplitWords(std::string_view line);

/// The text that a word stands for. In quotes `\"`, `\\`, `\r` and `\n` are read, and any other backslash
/// throws ScriptFailure; without quotes a backslash is a backslash.
std::string TextOf(const Word& word);

/// The bytes of a file that a word stands for: its text in the code page of the program's files. `\xNN` gives
/// one byte, in quotes and without.
std::string BytesOf(const Word& word);

struct ScriptLine {
    int number = 1;  ///< Counted from 1.
    std::string text;
};

struct Script {
    std::string name;              ///< As the user called it; what messages say.
    std::filesystem::path folder;  ///< Where it lies, and the files beside it.
    std::vector<ScriptLine> lines;
};

/// A script of that text; line ends may be LF or CR LF, and a byte order mark is passed over.
Script ParseScript(const std::filesystem::path& file, std::string_view text);
/// Nothing if the file can't be read.
std::optional<Script> ReadScript(const std::filesystem::path& file);

}  // namespace coinlet::player
