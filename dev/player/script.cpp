#include "player/script.h"

#include "base/files.h"
#include "base/text.h"
#include "player/failure.h"

#include <cstdint>

namespace coinlet::player {

namespace {

constexpr std::string_view blanks = " \t\r";

/// The value of a hexadecimal digit, or -1.
int HexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return -1;
}

/// The byte that `\xNN` at `at` stands for, or -1 if no such thing stands there.
int ByteEscape(std::string_view source, std::size_t at) {
    if (source.substr(at, 2) != "\\x" || at + 4 > source.size()) return -1;
    const int high = HexDigit(source[at + 2]), low = HexDigit(source[at + 3]);
    return high < 0 || low < 0 ? -1 : 16 * high + low;
}

/// The character behind a backslash in quotes, or 0 for one that means nothing there.
char EscapedCharacter(char letter) {
    switch (letter) {
        case '"':
        case '\\':
            return letter;
        case 'r':
            return '\r';
        case 'n':
            return '\n';
        default:
            return 0;
    }
}

/// Reads the escape at `*at`, which holds a backslash, and moves behind it.
char ReadEscape(std::string_view source, std::size_t* at) {
    const char letter = *at + 1 < source.size() ? source[*at + 1] : '\0';
    const char character = EscapedCharacter(letter);
    if (character == 0) {
        Fail("no such escape in quotes: \\" + std::string(1, letter) +
             " (a backslash is written as two; \\xNN is for the bytes of files)");
    }
    *at += 2;
    return character;
}

/// The quoted word whose quote stands at `*at`; moves behind the closing quote.
Word ReadQuoted(std::string_view line, std::size_t* at) {
    const std::size_t begin = ++*at;
    while (*at < line.size() && line[*at] != '"')
        *at += line[*at] == '\\' ? 2U : 1U;
    if (*at >= line.size()) Fail("a quote isn't closed");
    Word word{std::string(line.substr(begin, *at - begin)), true};
    ++*at;
    if (*at < line.size() && blanks.find(line[*at]) == std::string_view::npos)
        Fail("a blank must follow a closed quote");
    return word;
}

}  // namespace

std::vector<Word> SplitWords(std::string_view line) {
    std::vector<Word> words;
    std::size_t at = 0;
    while ((at = line.find_first_not_of(blanks, at)) != std::string_view::npos && line[at] != '#') {
        if (line[at] == '"') {
            words.push_back(ReadQuoted(line, &at));
        } else {
            const std::size_t end = std::min(line.find_first_of(blanks, at), line.size());
            words.push_back({std::string(line.substr(at, end - at)), false});
            at = end;
        }
    }
    return words;
}

std::string TextOf(const Word& word) {
    if (!word.quoted) return word.source;
    std::string text;
    for (std::size_t at = 0; at < word.source.size();) {
        if (word.source[at] == '\\') {
            text += ReadEscape(word.source, &at);
        } else {
            text += word.source[at++];
        }
    }
    return text;
}

std::string BytesOf(const Word& word) {
    std::string bytes;
    std::string text;  // not yet turned into bytes
    for (std::size_t at = 0; at < word.source.size();) {
        if (const int byte = ByteEscape(word.source, at); byte >= 0) {
            bytes += ToCodePage(text) + static_cast<char>(static_cast<std::uint8_t>(byte));
            text.clear();
            at += 4;
        } else if (word.quoted && word.source[at] == '\\') {
            text += ReadEscape(word.source, &at);
        } else {
            text += word.source[at++];
        }
    }
    return bytes + ToCodePage(text);
}

Script ParseScript(const std::filesystem::path& file, std::string_view text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark) text.remove_prefix(byteOrderMark.size());
    Script script{file.string(), std::filesystem::absolute(file).parent_path(), {}};
    int number = 0;
    for (const std::string& line : Lines(text))
        script.lines.push_back({++number, line});
    return script;
}

std::optional<Script> ReadScript(const std::filesystem::path& file) {
    const auto bytes = ReadFile(file);
    if (!bytes) return std::nullopt;
    return ParseScript(file, std::string(bytes->begin(), bytes->end()));
}

}  // namespace coinlet::player
