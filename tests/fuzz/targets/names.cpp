// Names of files, typed or read: none leaves its folder, each finds the file that it names and no other, and
// the texts that they are made of fall apart and come together without loss. The input is a name, and behind
// a zero byte a list of patterns.
#include "base/file_name.h"
#include "base/files.h"
#include "base/order_key.h"
#include "base/text.h"
#include "fuzz/targets/targets.h"
#include "fuzz/texts.h"
#include "store/design_files.h"
#include "support/temporary_folder.h"

#include <memory>

namespace coinlet::test {
namespace {

std::string Joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text += part;
    return text;
}

/// By the rule itself: a star takes nothing or one character more.
bool SlowMatches(std::span<const std::string> name, std::span<const std::string> pattern) {
    if (pattern.empty()) return name.empty();
    if (pattern[0] == "*") {
        return SlowMatches(name, pattern.subspan(1)) ||
               (!name.empty() && SlowMatches(name.subspan(1), pattern));
    }
    return !name.empty() && (pattern[0] == "?" || pattern[0] == name[0]) &&
           SlowMatches(name.subspan(1), pattern.subspan(1));
}

std::string FaultOfPattern(std::string_view name, std::string_view pattern) {
    constexpr std::ptrdiff_t mostStars = 4;
    constexpr std::size_t longest = 24;  // The slow rule takes its time with many stars.
    const bool isMatch = MatchesPattern(name, pattern);
    if (std::ranges::count(pattern, '*') > mostStars || name.size() > longest || pattern.size() > longest)
        return "";
    const auto letters = Characters(LowerCase(name)), rule = Characters(LowerCase(pattern));
    return isMatch == SlowMatches(letters, rule) ? ""
                                                 : "a pattern fits where it doesn't, or not where it does";
}

std::string FaultOfText(const std::string& text) {
    if (ToCodePage(FromCodePage(text)) != text) return "the code page loses a byte";
    if (Joined(Characters(text)) != text) return "its characters aren't it";
    if (Joined(Graphemes(text)) != text) return "its letters aren't it";
    if (Graphemes(text).size() > Characters(text).size()) return "more letters than characters";
    if (Lines(text) != SlowLines(text)) return "other lines";
    if (LowerCase(LowerCase(text)) != LowerCase(text)) return "small letters that have smaller ones";
    const std::string_view first = FirstLine(text), trimmed = TrimBlanks(text);
    if (text.find(first) == std::string::npos || first.find_first_of("\r\n") != std::string_view::npos)
        return "its first line isn't one";
    return trimmed.starts_with(' ') || trimmed.ends_with(' ') ? "blanks at its ends" : "";
}

/// Exactly one of before, equal and behind, and the same by their keys.
std::string FaultOfOrder(const std::string& a, const std::string& b) {
    const bool isBefore = ComesBefore(a, b), isBehind = ComesBefore(b, a);
    if (isBefore && isBehind) return "each comes before the other";
    if (!isBefore && !isBehind && a != b) return "two texts at one place";
    if (ComesBefore(a, a)) return "it comes before itself";
    if (isBefore != (OrderKey(a) < OrderKey(b))) return "another order by the keys";
    return BeginsWith(a, "") && BeginsWith(a + "x", a) ? "" : "it doesn't begin with its beginning";
}

/// Code points, some beyond all that there are, and their texts.
std::string FaultOfCodePoint(File file) {
    char32_t codePoint = 0;
    for (const std::uint8_t byte : file.subspan(0, std::min<std::size_t>(3, file.size())))
        codePoint = codePoint << 8 | byte;
    return Characters(Utf8(codePoint)).size() == 1 ? "" : "one character is several";
}

class Folder {
public:
    Folder() {
        for (const char* const name :
             {"Ontwerpen/Coin.PAT", "Ontwerpen/coin.txt", "Ontwerpen/a b.pat", "secret.pat"}) {
            fs::create_directories((folder_ / name).parent_path());
            folder_.Write(name, name);
        }
        fs::create_directories(folder_ / "Ontwerpen/sub");
    }

    Outcome Read(File file) const {
        const std::string text(AsText(file));
        const std::size_t zero = text.find('\0');
        // A name may hold a zero byte as well.
        const std::string name = zero == 0 ? text : text.substr(0, zero);
        const std::string patterns = zero == std::string::npos ? "" : text.substr(zero + 1);
        for (std::string wrong :
             {FaultOfName(name), FaultOfDesign(name), FaultOfList(patterns), FaultOfPattern(name, patterns),
              FaultOfText(text), FaultOfOrder(name, patterns), FaultOfCodePoint(file)})
            if (!wrong.empty()) return {true, std::move(wrong)};
        return {true, ""};
    }

private:
    fs::path Store() const { return folder_ / "Ontwerpen"; }

    std::string FaultOfName(const std::string& name) const {
        const auto isSeparator = [](char c) { return c == '/' || c == '\\' || c == '\0'; };
        const bool isName =
            !name.empty() && name != "." && name != ".." && std::ranges::none_of(name, isSeparator);
        if (IsFileName(name) != isName) return "a name of a file that is none, or none that is one";
        const auto found = FindFile(Store(), name);
        if (found && found->parent_path() != Store()) return "a file of another folder is found";
        if (found && LowerCase(found->filename().string()) != LowerCase(name)) return "another file is found";
        if (found && !FileExists(*found)) return "a file is found that isn't there";
        const std::string bare = WithoutExtension(name);
        const bool isBare =
            bare.size() + 4 == std::max<std::size_t>(4, name.size()) && name.starts_with(bare);
        return isBare ? "" : "another extension";
    }

    std::string FaultOfDesign(const std::string& name) const {
        const auto picture = DesignPicture(folder_.Path(), name);
        if (picture.has_value() != IsDesignName(name)) return "a design without a name of one";
        if (!picture) return "";
        if (picture->parent_path() != Store()) return "a design in another folder";
        const fs::path text = InfoTextPath(*picture);
        if (text.parent_path() != Store()) return "an info text in another folder";
        const auto state = StateOfFile(*picture);
        if (state.has_value() != FileExists(*picture) && !fs::is_directory(*picture))
            return "a file without a state";
        if (FileExists(*picture) && state->bytes != ReadFile(*picture)->size())
            return "another size than it has";
        const auto bytes = ReadFile(*picture, 4);
        return bytes ? "a file above the limit is read" : "";
    }

    std::string FaultOfList(const std::string& patterns) const {
        const auto files = ListFiles(Store(), patterns);
        if (!std::ranges::is_sorted(files, ComesBefore)) return "a list that isn't sorted";
        for (const std::string& file : files)
            if (!FileExists(Store() / file)) return "a list with a file that isn't there";
        return ListFolders(Store()) == std::vector<std::string>{"sub"} ? "" : "other folders";
    }

    TemporaryFolder folder_;
};

}  // namespace

Reader NamesReader() {
    using namespace std::string_literals;
    std::vector<Bytes> files;
    for (const std::string& text :
         {"coin.pat\0*.pat;*.TXT"s, "COIN"s, "..\0*"s, "../secret"s, "..\\secret"s, "a b\0? ?.*"s, "\0x"s,
          ""s, "\xC3\x89\xC3\xA9\xCC\x81\0\xC3\xA9*"s, "\xF0\x9F\x87\xB3\xF0\x9F\x87\xB1\0\xE2\x80\xA8"s,
          "\xC5\x92uvre\0oe"s, "sub"s, "coin.txt\0coin?txt"s,
          "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7"s})
        files.push_back(TextFile(text));
    return {"names of files", files,
            [folder = std::make_shared<Folder>()](File file) { return folder->Read(file); }};
}

}  // namespace coinlet::test
