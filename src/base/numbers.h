#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace coinlet {

/// The nearest whole number, a half going to the even neighbour: 0.5 -> 0, 1.5 -> 2, 2.5 -> 2.
/// NaN gives 0; values beyond the range of int give the nearest end of it.
int RoundHalfEven(double value);

/// The whole part, cut off towards zero: 2.9 -> 2, -2.9 -> -2. NaN gives 0; out of range is clamped as above.
int Truncate(double value);

/// The nearest number of single precision; one that is too large for it gives the largest of that sign.
float Single(double value);

/// The number that `text` starts with, leading blanks skipped: "12 px" -> 12, "abc" -> 0, "" -> 0.
/// The decimal sign is a point whatever the desktop's locale. "inf", "nan" and what is beyond the range of
/// double are no numbers here.
double Val(std::string_view text);

/// True if the whole of `text`, blanks at both ends aside, is one number; then `*value` holds it.
bool ParseNumber(std::string_view text, double* value);

/// A number as it is shown to the user: up to 7 significant digits, plain notation, no trailing zeros:
/// 100000 -> "100000", 0.1f -> "0.1", 1.0 / 3 -> "0.3333333". NaN and infinities give "0".
std::string FormatNumber(double value);

}  // namespace coinlet
