#include "base/text.h"

#include "base/order_key.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>

namespace coinlet {
namespace {

constexpr char32_t replacementCharacter = 0xFFFD;
constexpr char32_t lastCodePoint = 0x10FFFF;

// What the bytes 0x80 to 0x9F of Windows-1252 stand for. The unassigned ones stand for themselves.
constexpr std::array<char32_t, 32> codePageUpper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr std::size_t upperStart = 0x80, upperEnd = 0xA0;

bool IsSurrogate(char32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

// One character at the front of a text. A malformed byte is a character without a code point.
struct Decoded {
    std::optional<char32_t> codePoint;
    std::size_t length = 1;
};

Decoded DecodeFirst(std::string_view utf8) {
    const auto byteAt = [&](std::size_t i) -> char32_t { return static_cast<unsigned char>(utf8[i]); };
    struct Form {
        char32_t leadMask, lead, smallest;
    };
    // By the number of bytes that follow the first one.
    static constexpr std::array<Form, 4> forms = {
        {{0x80, 0x00, 0x0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};

    const char32_t first = byteAt(0);
    for (std::size_t following = 0; following < forms.size(); ++following) {
        const Form& form = forms[following];
        if ((first & form.leadMask) != form.lead) continue;
        if (utf8.size() <= following) return {};
        char32_t codePoint = first & ~form.leadMask;
        for (std::size_t i = 1; i <= following; ++i) {
            if ((byteAt(i) & 0xC0) != 0x80) return {};
            codePoint = codePoint << 6 | (byteAt(i) & 0x3F);
        }
        if (codePoint < form.smallest || codePoint > lastCodePoint || IsSurrogate(codePoint)) return {};
        return {codePoint, following + 1};
    }
    return {};
}

// Calls `use(decoded, bytes)` for each character of a text.
template <class Use>
void ForEachCharacter(std::string_view utf8, Use use) {
    while (!utf8.empty()) {
        const Decoded next = DecodeFirst(utf8);
        use(next.codePoint, utf8.substr(0, next.length));
        utf8.remove_prefix(next.length);
    }
}

std::optional<unsigned char> CodePageByte(char32_t codePoint) {
    if (codePoint < upperStart || (codePoint >= upperEnd && codePoint <= 0xFF))
        return static_cast<unsigned char>(codePoint);
    const auto* const found = std::find(codePageUpper.begin(), codePageUpper.end(), codePoint);
    if (found == codePageUpper.end()) return {};
    return static_cast<unsigned char>(upperStart + static_cast<std::size_t>(found - codePageUpper.begin()));
}

constexpr char32_t joiner = 0x200D;

// Belongs to the letter before it: marks over and under letters, vowel signs, what tints a pictogram or tells
// its style, the joiner itself.
bool ExtendsLetter(char32_t c) {
    struct Range {
        char32_t first, last;
    };
    static constexpr Range ranges[] = {
        {0x300, 0x36F},     {0x483, 0x489},  // Latin, Greek, Cyrillic
        {0x591, 0x5BD},     {0x5BF, 0x5BF},     {0x5C1, 0x5C2},   {0x5C4, 0x5C5},
        {0x5C7, 0x5C7},  // Hebrew
        {0x610, 0x61A},     {0x64B, 0x65F},     {0x670, 0x670},   {0x6D6, 0x6DC},
        {0x6DF, 0x6E4},     {0x6E7, 0x6E8},     {0x6EA, 0x6ED},  // Arabic
        {0x900, 0x903},     {0x93A, 0x93C},     {0x93E, 0x94F},   {0x951, 0x957},
        {0x962, 0x963},                                                              // Devanagari
        {0xE31, 0xE31},     {0xE34, 0xE3A},     {0xE47, 0xE4E},                      // Thai
        {0x1AB0, 0x1AFF},   {0x1DC0, 0x1DFF},   {0x20D0, 0x20FF}, {0xFE20, 0xFE2F},  // marks for all scripts
        {0xFE00, 0xFE0F},   {0xE0100, 0xE01EF},                                      // styles
        {0x1F3FB, 0x1F3FF}, {0xE0020, 0xE007F},                                      // tints, tags
        {joiner, joiner},
    };
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

// Two of them are the flag of a country.
bool IsFlagHalf(char32_t c) {
    return c >= 0x1F1E6 && c <= 0x1F1FF;
}

char32_t LowerCodePoint(char32_t c) {
    // Where capitals stand: in one block before their small letters, or each just before its own.
    struct Capitals {
        char32_t first, last, stride, distance;
    };
    static constexpr std::array<Capitals, 8> capitals = {{{U'A', U'Z', 1, 32},
                                                          {0xC0, 0xD6, 1, 32},  // up to the sign of times
                                                          {0xD8, 0xDE, 1, 32},
                                                          {0x100, 0x12E, 2, 1},
                                                          {0x132, 0x136, 2, 1},
                                                          {0x139, 0x147, 2, 1},
                                                          {0x14A, 0x176, 2, 1},
                                                          {0x179, 0x17D, 2, 1}}};
    constexpr char32_t dottedCapitalI = 0x130, capitalYWithDiaeresis = 0x178;
    if (c == dottedCapitalI) return U'i';
    if (c == capitalYWithDiaeresis) return 0xFF;
    for (const Capitals& range : capitals) {
        if (c >= range.first && c <= range.last && (c - range.first) % range.stride == 0)
            return c + range.distance;
    }
    return c;
}

bool IsAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

// The letters that a small letter consists of, accents aside.
std::u32string_view BaseOf(const char32_t& small) {
    struct Family {
        char32_t first, last;
        std::u32string_view base;
    };
    static constexpr Family families[] = {
        {0xDF, 0xDF, U"ss"},  {0xE0, 0xE5, U"a"},    {0xE6, 0xE6, U"ae"},  {0xE7, 0xE7, U"c"},
        {0xE8, 0xEB, U"e"},   {0xEC, 0xEF, U"i"},    {0xF0, 0xF0, U"d"},   {0xF1, 0xF1, U"n"},
        {0xF2, 0xF6, U"o"},   {0xF8, 0xF8, U"o"},    {0xF9, 0xFC, U"u"},   {0xFD, 0xFD, U"y"},
        {0xFE, 0xFE, U"th"},  {0xFF, 0xFF, U"y"},    {0x100, 0x105, U"a"}, {0x106, 0x10D, U"c"},
        {0x10E, 0x111, U"d"}, {0x112, 0x11B, U"e"},  {0x11C, 0x123, U"g"}, {0x124, 0x127, U"h"},
        {0x128, 0x131, U"i"}, {0x132, 0x133, U"ij"}, {0x134, 0x135, U"j"}, {0x136, 0x138, U"k"},
        {0x139, 0x142, U"l"}, {0x143, 0x14B, U"n"},  {0x14C, 0x151, U"o"}, {0x152, 0x153, U"oe"},
        {0x154, 0x159, U"r"}, {0x15A, 0x161, U"s"},  {0x162, 0x167, U"t"}, {0x168, 0x173, U"u"},
        {0x174, 0x175, U"w"}, {0x176, 0x178, U"y"},  {0x179, 0x17E, U"z"}, {0x17F, 0x17F, U"s"},
        {0x300, 0x36F, U""},  // an accent that stands alone
    };
    const auto* const found =
        std::ranges::find_if(families, [&](const Family& family) { return small <= family.last; });
    const bool isMember = found != std::end(families) && small >= found->first;
    return isMember ? found->base : std::u32string_view(&small, 1);
}

std::u32string BaseLetters(std::string_view utf8) {
    std::u32string letters;
    letters.reserve(utf8.size());
    ForEachCharacter(utf8, [&](std::optional<char32_t> codePoint, std::string_view bytes) {
        // Bytes that are no character come after all that are.
        const char32_t small = codePoint ? LowerCodePoint(*codePoint)
                                         : lastCodePoint + 1 + static_cast<unsigned char>(bytes.front());
        letters += BaseOf(small);
    });
    return letters;
}

/// Bytes that stand in the order of the numbers they are of, also where some take one and others three.
void AppendInOrder(std::string& bytes, char32_t number) {
    constexpr char32_t firstOfThree = 0x80;
    if (number >= firstOfThree) {
        bytes += static_cast<char>(firstOfThree | number >> 16);
        bytes += static_cast<char>(number >> 8 & 0xFF);
    }
    bytes += static_cast<char>(number & 0xFF);
}

}  // namespace

std::string FromCodePage(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool upper = byte >= upperStart && byte < upperEnd;
        utf8 += Utf8(upper ? codePageUpper[byte - upperStart] : byte);
    }
    return utf8;
}

std::string ToCodePage(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    ForEachCharacter(utf8, [&](std::optional<char32_t> codePoint, std::string_view) {
        const auto byte = codePoint ? CodePageByte(*codePoint) : std::nullopt;
        bytes += byte ? static_cast<char>(*byte) : '?';
    });
    return bytes;
}

std::vector<std::string> Characters(std::string_view utf8) {
    std::vector<std::string> characters;
    ForEachCharacter(
        utf8, [&](std::optional<char32_t>, std::string_view bytes) { characters.emplace_back(bytes); });
    return characters;
}

std::vector<std::string> Graphemes(std::string_view utf8) {
    std::vector<std::string> letters;
    char32_t before = 0;
    ForEachCharacter(utf8, [&](std::optional<char32_t> codePoint, std::string_view bytes) {
        const char32_t c = codePoint.value_or(replacementCharacter);
        const bool endsFlag = IsFlagHalf(c) && IsFlagHalf(before);
        if (!letters.empty() && (ExtendsLetter(c) || before == joiner || endsFlag)) {
            letters.back() += bytes;
        } else {
            letters.emplace_back(bytes);
        }
        before = endsFlag ? 0 : c;
    });
    return letters;
}

std::string Utf8(char32_t codePoint) {
    if (codePoint > lastCodePoint || IsSurrogate(codePoint)) codePoint = replacementCharacter;
    const auto lead = [&](unsigned shift, char32_t mark) {
        return static_cast<char>(mark | codePoint >> shift);
    };
    const auto follow = [&](unsigned shift) { return static_cast<char>(0x80 | (codePoint >> shift & 0x3F)); };
    if (codePoint < 0x80) return {lead(0, 0)};
    if (codePoint < 0x800) return {lead(6, 0xC0), follow(0)};
    if (codePoint < 0x10000) return {lead(12, 0xE0), follow(6), follow(0)};
    return {lead(18, 0xF0), follow(12), follow(6), follow(0)};
}

std::string_view TrimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerCase(std::string_view utf8) {
    std::string lower;
    lower.reserve(utf8.size());
    ForEachCharacter(utf8, [&](std::optional<char32_t> codePoint, std::string_view bytes) {
        const char32_t small = codePoint ? LowerCodePoint(*codePoint) : 0;
        if (codePoint && small != *codePoint) {
            lower += Utf8(small);
        } else {
            lower += bytes;
        }
    });
    return lower;
}

std::string OrderKey(std::string_view utf8) {
    // The base letters rule, then accents, then case: each is looked at where all before it are the same.
    std::string key;
    key.reserve(3 * utf8.size() + 2);
    // What parts them is below every letter, a zero byte too.
    for (const char32_t letter : BaseLetters(utf8))
        AppendInOrder(key, letter + 1);
    key += '\0';
    key += LowerCase(utf8);
    key += '\0';
    return key.append(utf8);
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
    return BaseLetters(text).starts_with(BaseLetters(beginning));
}

bool ComesBefore(std::string_view a, std::string_view b) {
    if (!IsAscii(a) || !IsAscii(b)) return OrderKey(a) < OrderKey(b);
    const auto letterBefore = [](char x, char y) { return LowerAscii(x) < LowerAscii(y); };
    if (std::ranges::lexicographical_compare(a, b, letterBefore)) return true;
    if (std::ranges::lexicographical_compare(b, a, letterBefore)) return false;
    return a < b;
}

std::string_view FirstLine(std::string_view utf8) {
    static constexpr std::string_view lineSeparator = "\u2028", paragraphSeparator = "\u2029";
    const auto breakLength = [](std::string_view text) -> std::size_t {
        if (text.starts_with('\r') || text.starts_with('\n')) return 1;
        if (text.starts_with(lineSeparator) || text.starts_with(paragraphSeparator))
            return lineSeparator.size();
        return 0;
    };
    while (const std::size_t length = breakLength(utf8))
        utf8.remove_prefix(length);
    std::size_t end = 0;
    while (end < utf8.size() && breakLength(utf8.substr(end)) == 0)
        ++end;
    return utf8.substr(0, end);
}

std::vector<std::string> Lines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find_first_of("\r\n"), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
        const bool carriageReturnLineFeed = text.starts_with("\r\n");
        text.remove_prefix(std::min(text.size(), std::size_t{carriageReturnLineFeed ? 2U : 1U}));
    }
    return lines;
}

}  // namespace coinlet
