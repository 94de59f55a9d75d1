// Typed numbers: a text gives the number that stands at its front, and a number is shown so that it can be
// typed again. The first eight bytes of the input are a number as well.
#include "base/numbers.h"

#include "fuzz/targets/targets.h"
#include "fuzz/texts.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace coinlet::test {
namespace {

using Limits = std::numeric_limits<int>;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The number at the front of a text, letter by letter: blanks, a sign, figures with a point among them or
/// before or behind them, and an exponent if figures follow its letter.
struct Front {
    double value = 0;
    bool isWhole = false;  ///< Nothing but blanks stands around it.
};
Front SlowFront(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    const auto skipDigits = [&] {
        const std::size_t from = at;
        while (at < text.size() && IsDigit(text[at]))
            ++at;
        return at - from;
    };
    std::size_t figures = skipDigits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        figures += skipDigits();
    }
    if (figures == 0) return {};
    const std::size_t behindFigures = at;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
        if (skipDigits() == 0) at = behindFigures;
    }
    const double value = std::strtod(std::string(text.substr(0, at)).c_str(), nullptr);
    const bool isBlankBehind = text.find_first_not_of(' ', at) == std::string_view::npos;
    return {value, isBlankBehind};
}

/// Beyond the range of a double, or so small that it has no full figures: there the text is none.
bool IsOutOfRange(double value) {
    return std::isinf(value) || std::abs(value) < std::numeric_limits<double>::min();
}

std::string FaultOfText(std::string_view text) {
    const Front told = SlowFront(text);
    const double value = Val(text);
    if (IsOutOfRange(told.value)) return value == 0 || value == told.value ? "" : "a number out of range";
    if (value != told.value) return "another number than the text has";
    double parsed = -1;
    if (ParseNumber(text, &parsed) != told.isWhole)
        return "a text is taken for a number, or a number for none";
    return !told.isWhole || parsed == value ? "" : "parsed, it is another number";
}

std::string FaultOfFormat(double value) {
    const std::string shown = FormatNumber(value);
    if (!std::isfinite(value)) return shown == "0" ? "" : "what is no number is shown as one";
    if (shown.find_first_not_of("-.0123456789") != std::string::npos) return "it isn't plain";
    const double again = Val(shown);
    // Half of the last of seven figures; the smallest numbers have fewer.
    constexpr double halfOfTheLast = 5.01e-7;
    if (std::abs(value) >= std::numeric_limits<double>::min() && !std::isinf(again) &&
        std::abs(again - value) > halfOfTheLast * std::abs(value))
        return "shown and typed again, it is another number";
    const bool isFraction = shown.find('.') != std::string::npos;
    if (isFraction && (shown.ends_with('0') || shown.ends_with('.'))) return "zeros at its end";
    return std::isinf(again) || again == 0 || FormatNumber(again) == shown ? "" : "shown twice, it differs";
}

std::string FaultOfWhole(double value) {
    const int rounded = RoundHalfEven(value), cut = Truncate(value);
    if (std::isnan(value)) return rounded == 0 && cut == 0 ? "" : "what is no number isn't 0";
    if (value >= Limits::max()) return rounded == Limits::max() && cut == rounded ? "" : "not the highest";
    if (value <= Limits::min()) return rounded == Limits::min() && cut == rounded ? "" : "not the lowest";
    const double below = std::floor(value), rest = value - below;
    const bool isUp = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0);
    if (rounded != below + (isUp ? 1 : 0)) return "it isn't rounded";
    return cut == (value < 0 ? std::ceil(value) : below) ? "" : "it isn't cut";
}

std::string FaultOfSingle(double value) {
    constexpr double most = std::numeric_limits<float>::max();
    const float single = Single(value);
    if (std::isnan(value)) return std::isnan(single) ? "" : "single, it is a number";
    if (std::abs(value) >= most)
        return single == std::copysign(most, value) ? "" : "single, it isn't the largest";
    return single == static_cast<float>(value) ? "" : "single, it is another number";
}

std::string FaultOfNumber(double value) {
    for (const auto fault : {FaultOfFormat, FaultOfWhole, FaultOfSingle})
        if (std::string wrong = fault(value); !wrong.empty()) return wrong;
    return "";
}

Outcome Read(File file) {
    std::string wrong = FaultOfText(AsText(file));
    double value = 0;
    std::memcpy(&value, file.data(), std::min(file.size(), sizeof value));
    if (wrong.empty()) wrong = FaultOfNumber(value);
    if (wrong.empty()) wrong = FaultOfNumber(Val(AsText(file)));
    return {true, wrong};
}

}  // namespace

Reader NumbersReader() {
    std::vector<Bytes> files;
    for (const char* const text : {"12 px", " -3.5e2 ", "+.5", "1e400", "-1e-400", "0.1", "inf", "2147483648",
                                   "- 1", "1e", "0x10", "33333333.33333333", "1234567.5", "2.5", "."})
        files.push_back(TextFile(text));
    return {"typed numbers", files, Read};
}

}  // namespace coinlet::test
