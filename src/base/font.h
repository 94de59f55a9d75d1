#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

/// The font of whatever names none.
constexpr std::string_view standardFontName = "Arial";
constexpr double standardFontSize = 8.25;  ///< Points.

constexpr int pixelsPerInch = 96, pointsPerInch = 72;

/// A font as a surface or a control asks for it. A name that the system lacks is given by the platform's
/// substitute; nobody is told.
struct FontSpec {
    std::string name{standardFontName};
    double size = standardFontSize;  ///< Points. Sizes not above 0 (and NaN) count as the standard one.
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

/// What a text takes of room, in pixels.
struct TextExtent {
    int width = 0;   ///< Sum of the advances.
    int height = 0;  ///< Height of a line of this font; the same for every text, the empty one too.
};

/// A text as coverage: 0 is paper, 255 is ink. Row by row, `width` bytes a row.
/// The mask's top left pixel lies at (left, top) from the point that the text is drawn at, which is the top
/// left corner of its cell; parts of letters may reach out of the cell, so `left` and `top` may be negative.
struct TextMask {
    int left = 0, top = 0;
    int width = 0, height = 0;
    std::vector<std::uint8_t> coverage;
};

/// What is looked at of a text: pixels from the point that it is drawn at, `right` and `bottom` excluded.
struct TextWindow {
    int left = 0, top = 0, right = 0, bottom = 0;
};

/// How the edges of letters are drawn.
enum class Edges {
    Crisp,  ///< Each pixel is ink or not (0 or 255), so that a letter can be filled afterwards.
    Smooth  ///< Half-tones along the edges.
};

/// Makes texts into masks and tells their size. One line at a time: control characters draw nothing.
class FontEngine {
public:
    virtual ~FontEngine() = default;

    virtual TextExtent Measure(const FontSpec& font, std::string_view text) const = 0;

    /// The mask of `text`, turned by `angle` degrees counter-clockwise about the cell's top left corner.
    /// A text without ink gives a mask of no size.
    virtual TextMask Render(const FontSpec& font, std::string_view text, Edges edges,
                            double angle = 0) const = 0;

    /// What Render gives, but of a text too large to be seen at once the mask may lack what lies outside
    /// `window`: letters needn't cost more than what is seen of them, however large they are.
    virtual TextMask RenderSeen(const FontSpec& font, std::string_view text, Edges edges, double angle,
                                const TextWindow& /*window*/) const {
        return Render(font, text, edges, angle);
    }

    /// The names of the fonts that the screen offers, sorted, each once; "Arial" is always one of them.
    virtual std::vector<std::string> Families() const = 0;

    /// Makes the font of a file usable by its family name for as long as the program runs. Returns the family
    /// name, or an empty text if the file is no font. From now on that name stands for this font, whatever
    /// font is installed, or was added before, under the same name. Adding a file again takes no memory.
    virtual std::string AddFontFile(const std::filesystem::path& file) = 0;

    /// The same without the fonts that were added, for the program's own captions: whatever a file calls
    /// itself, they keep their letters. It lives as long as this one.
    virtual const FontEngine& Installed() const { return *this; }

    /// The name under which whatever shows windows knows the font of a name: its own name, unless the font
    /// was added.
    virtual std::string KnownAs(std::string_view name) const { return std::string(name); }
};

}  // namespace coinlet
