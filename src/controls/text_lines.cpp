#include "controls/text_lines.h"

#include "base/text.h"
#include "controls/form.h"
#include "controls/text_box.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace coinlet {

namespace {

constexpr std::string_view lineEnd = "\r\n";

bool IsBlank(const std::string& letter) {
    return letter == " " || letter == "\t";
}

/// The advances of a font's letters, each measured once.
class Advances {
public:
    Advances(const FontSpec& font, const FontEngine& fonts) : font_(font), fonts_(fonts) {}

    int Of(const std::string& letter) {
        const auto [place, isNew] = known_.try_emplace(letter, 0);
        if (isNew) place->second = fonts_.Measure(font_, letter).width;
        return place->second;
    }

private:
    const FontSpec& font_;
    const FontEngine& fonts_;
    std::unordered_map<std::string, int> known_;
};

std::vector<std::string> Wrap(std::string_view text, int width, Advances& advances) {
    const std::vector<std::string> letters = Characters(text);
    std::vector<std::string> lines(1);
    long long used = 0;
    const auto startLine = [&] {
        lines.emplace_back();
        used = 0;
    };
    const auto take = [&](std::size_t letter) {
        lines.back() += letters[letter];
        used += advances.Of(letters[letter]);
    };
    for (std::size_t next = 0; next < letters.size();) {
        std::size_t wordEnd = next;
        long long wordWidth = 0;
        for (; wordEnd < letters.size() && !IsBlank(letters[wordEnd]); ++wordEnd)
            wordWidth += advances.Of(letters[wordEnd]);
        if (wordEnd > next && used + wordWidth > width && !lines.back().empty()) startLine();
        for (; next < wordEnd; ++next) {
            if (used + advances.Of(letters[next]) > width && !lines.back().empty()) startLine();
            take(next);
        }
        for (; next < letters.size() && IsBlank(letters[next]); ++next)
            take(next);
    }
    return lines;
}

}  // namespace

int WrapWidth(const TextBox& box) {
    const int scrollBar = box.VerticalScroll ? textBoxScrollBar : 0;
    return std::max(1, box.PixelWidth() - 2 * (textBoxFrame + textBoxMargin) - scrollBar);
}

std::vector<std::string> WrapLine(std::string_view text, int width, const FontSpec& font,
                                  const FontEngine& fonts) {
    Advances advances(font, fonts);
    return Wrap(text, width, advances);
}

std::vector<std::string> DisplayedLines(const TextBox& box) {
    const FontSpec font = box.CurrentFont();
    const int width = WrapWidth(box);
    Advances advances(font, box.OwnerForm().Fonts().Installed());
    std::vector<std::string> lines;
    std::string_view rest = box.Text();
    while (true) {
        const std::size_t end = rest.find(lineEnd);
        for (std::string& line : Wrap(rest.substr(0, end), width, advances))
            lines.push_back(std::move(line));
        if (end == std::string_view::npos) return lines;
        lines.back() += lineEnd;
        rest.remove_prefix(end + lineEnd.size());
    }
}

}  // namespace coinlet
