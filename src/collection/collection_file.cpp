#include "collection/collection_file.h"

#include "base/file_reading.h"
#include "base/text.h"

#include <algorithm>

namespace coinlet {

namespace {

constexpr char quote = '"';
constexpr std::string_view lineEnd = "\r\n";
/// Far beyond what anybody types; what is larger is another kind of file.
constexpr std::size_t largestCollection = 64'000'000;

/// Reads values one after the other, as they are parted by commas and line ends.
class ValueReader {
public:
    explicit ValueReader(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }

    std::string_view Next() {
        SkipBlanks();
        std::string_view value;
        if (rest_.starts_with(quote)) {
            rest_.remove_prefix(1);
            // A quote that nobody closes takes its own line and none of the further ones with it.
            value = Take("\"\r\n");
            if (rest_.starts_with(quote)) rest_.remove_prefix(1);
        } else {
            value = Take(",\r\n");
        }
        SkipDelimiter();
        return value;
    }

private:
    std::string_view Take(std::string_view ends) {
        const std::string_view taken = rest_.substr(0, rest_.find_first_of(ends));
        rest_.remove_prefix(taken.size());
        return taken;
    }
    void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }
    void SkipDelimiter() {
        if (rest_.starts_with(lineEnd)) {
            rest_.remove_prefix(lineEnd.size());
        } else if (rest_.find_first_of(",\r\n") == 0) {
            rest_.remove_prefix(1);
        }
    }

    std::string_view rest_;
};

}  // namespace

std::vector<std::string> ParseCollection(std::string_view text) {
    std::vector<std::string> numbers;
    for (ValueReader values(text); !values.AtEnd();) {
        const std::string_view value = values.Next();
        if (!TrimBlanks(value).empty()) numbers.emplace_back(value);
    }
    return numbers;
}

std::string FormatCollection(const std::vector<std::string>& numbers) {
    std::string text;
    for (const std::string& number : numbers)
        text.append(1, quote).append(TrimBlanks(number)).append(1, quote).append(lineEnd);
    return text;
}

Collection ReadCollection(const fs::path& file) {
    if (IsMissing(file)) return {};
    const auto bytes = ReadFile(file, largestCollection);
    if (!bytes) return {.numbers = {}, .readable = false};
    return {.numbers = ParseCollection(FromCodePage(AsText(*bytes))), .readable = true};
}

void WriteCollection(const fs::path& file, const std::vector<std::string>& numbers, FileCalls& calls) {
    static_cast<void>(ReplaceFile(file, AsBytes(ToCodePage(FormatCollection(numbers))), calls));
}

}  // namespace coinlet
