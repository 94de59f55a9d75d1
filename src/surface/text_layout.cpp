#include "surface/text_layout.h"

#include "surface/text_stamp.h"

#include <algorithm>

namespace coinlet {
namespace {

// What lines are measured with.
struct Ruler {
    const FontEngine& fonts;
    const FontSpec& font;
    int Width(std::string_view text) const { return fonts.Measure(font, text).width; }
};

// The longest front part of `text` that ends with a word, or is all of it, and fits; at least one word.
std::string_view FrontThatFits(std::string_view text, const Ruler& ruler, std::int64_t width) {
    std::size_t taken = 0;
    while (taken < text.size()) {
        const auto word = text.find_first_not_of(' ', taken);
        const auto end =
            word == std::string_view::npos ? text.size() : std::min(text.find(' ', word), text.size());
        if (taken > 0 && ruler.Width(text.substr(0, end)) > width) break;
        taken = end;
    }
    return text.substr(0, taken);
}

void AddWrapped(std::string_view text, const Ruler& ruler, std::int64_t width,
                std::vector<std::string_view>& lines) {
    do {
        const std::string_view line = FrontThatFits(text, ruler, width);
        lines.push_back(line);
        text.remove_prefix(line.size());
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    } while (!text.empty());
}

}  // namespace

TextLayout LayOutText(const FontEngine& fonts, const FontSpec& font, std::string_view text,
                      std::optional<std::int64_t> width) {
    TextLayout layout;
    layout.lineHeight = fonts.Measure(font, {}).height;
    if (!width) {
        layout.lines = DrawnLines(text);
        return layout;
    }
    for (const std::string_view line : DrawnLines(text))
        AddWrapped(line, {fonts, font}, *width, layout.lines);
    return layout;
}

int WidestLine(const FontEngine& fonts, const FontSpec& font, const TextLayout& layout) {
    int widest = 0;
    for (const std::string_view line : layout.lines)
        widest = std::max(widest, fonts.Measure(font, line).width);
    return widest;
}

}  // namespace coinlet
