#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace coinlet {

struct Context;
class ListBox;

/// The fields of a line of the PMS colour table, by their place.
enum PmsFieldNumbers : std::size_t {
    pmsCode,
    pmsCyan,
    pmsMagenta,
    pmsYellow,
    pmsBlack,
    pmsRed,
    pmsGreen,
    pmsBlue,
    pmsHex,
    pmsFieldCount,
};
using PmsFields = std::array<std::string_view, pmsFieldCount>;

/// Fills the hidden list `PMSlist` with the lines of "Data/PMS-Colors.txt" as they stand; lines of blanks are
/// left out. A file that can't be read leaves the list empty.
void LoadPmsColors(Context& context);

/// The nine fields of a line, which they point into; nothing if it has fewer.
std::optional<PmsFields> SplitPmsLine(std::string_view line);
/// The code that a line starts with, up to its first comma.
std::string PmsCodeOf(std::string_view line);

/// A channel read from a text, as a whole number: that of " 12" is 12, of "abc" 0; out of range it is the
/// nearest there is.
std::int16_t PmsChannel(std::string_view text);

/// The number of the first line with that colour, or -1. Red and green are compared as texts, so that a field
/// with a blank or a leading zero matches no number; blue is compared as a number. Lines with fewer than nine
/// fields are passed over.
int FindPmsColour(const ListBox& table, std::string_view red, std::string_view green, std::int16_t blue);

/// What a colour is called: "PMS " and its code, or "RGB " and its channels if the table hasn't got it.
std::string PmsColourName(const ListBox& table, const std::string& red, const std::string& green,
                          std::int16_t blue);

}  // namespace coinlet
