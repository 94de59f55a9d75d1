#include "base/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace coinlet {

namespace {

double ClampToInt(double value) {
    if (std::isnan(value)) return 0;
    constexpr double least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    return std::clamp(value, least, most);
}

std::string_view SkipBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Takes the number off the front of `text`. A sign may stand before it, a plus too.
std::optional<double> TakeNumber(std::string_view& text) {
    const bool negative = text.starts_with('-');
    std::string_view rest = text;
    if (negative || rest.starts_with('+')) rest.remove_prefix(1);
    // Only what looks like figures goes to the library, which would read "inf", "nan" and a second sign.
    if (rest.empty() || !(IsDigit(rest.front()) || rest.front() == '.')) return {};
    double value = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
    if (error != std::errc{}) return {};
    text = rest.substr(static_cast<std::size_t>(end - rest.data()));
    return negative ? -value : value;
}

}  // namespace

int RoundHalfEven(double value) {
    const double clamped = ClampToInt(value);
    const int whole = static_cast<int>(clamped);
    if (whole == clamped) return whole;  // Most coordinates are whole, and walks over pictures ask for many.
    return static_cast<int>(std::nearbyint(clamped));  // The rounding mode is never changed from its default.
}

int Truncate(double value) {
    return static_cast<int>(ClampToInt(value));
}

float Single(double value) {
    constexpr double most = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -most, most));
}

double Val(std::string_view text) {
    text = SkipBlanks(text);
    return TakeNumber(text).value_or(0);
}

bool ParseNumber(std::string_view text, double* value) {
    text = SkipBlanks(text);
    const auto number = TakeNumber(text);
    if (!number || !SkipBlanks(text).empty()) return false;
    *value = *number;
    return true;
}

std::string FormatNumber(double value) {
    if (!std::isfinite(value) || value == 0) return "0";

    // "d.dddddde+xx": seven figures and the place of the point, to be written out without the exponent.
    constexpr int figureCount = 7;
    char buffer[32];
    const auto [end, error] = std::to_chars(std::begin(buffer), std::end(buffer), std::abs(value),
                                            std::chars_format::scientific, figureCount - 1);
    const std::string_view scientific(buffer, static_cast<std::size_t>(end - buffer));
    const auto mark = scientific.find('e');
    std::string figures(1, scientific.front());
    figures += scientific.substr(2, mark - 2);
    figures.erase(figures.find_last_not_of('0') + 1);
    const int exponent = static_cast<int>(Val(scientific.substr(mark + 1)));

    std::string text = value < 0 ? "-" : "";
    if (exponent < 0)
        return text + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + figures;
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (figures.size() <= whole) return text + figures + std::string(whole - figures.size(), '0');
    return text + figures.substr(0, whole) + "." + figures.substr(whole);
}

}  // namespace coinlet
