#include "player/values.h"

#include "base/numbers.h"
#include "player/failure.h"
#include "surface/colour.h"

#include <array>
#include <cmath>
#include <limits>

namespace coinlet::player {

namespace {

/// From here on a double doesn't hold every whole number.
constexpr double wholeNumbersEnd = 9007199254740992.0;

bool IsWhole(double number) {
    return std::abs(number) < wholeNumbersEnd && number == std::trunc(number);
}

std::optional<double> ParseChannels(std::string_view text) {
    std::array<int, 3> channels{};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const bool isLast = i + 1 == channels.size();
        const std::size_t end = isLast ? text.size() : text.find(',');
        double channel = 0;
        if (end == std::string_view::npos || !ParseNumber(text.substr(0, end), &channel)) return std::nullopt;
        if (!IsWhole(channel) || channel < 0 || channel > 255) return std::nullopt;
        channels[i] = static_cast<int>(channel);
        if (!isLast) text.remove_prefix(end + 1);
    }
    return RGB(channels[0], channels[1], channels[2]);
}

}  // namespace

std::string ShowNumber(double number) {
    return IsWhole(number) ? std::to_string(static_cast<long long>(number)) : FormatNumber(number);
}

std::string ShowColour(double colour) {
    if (!IsWhole(colour) || colour < 0 || colour > white) return ShowNumber(colour);
    const Colour value = static_cast<Colour>(colour);
    return std::to_string(Red(value)) + "," + std::to_string(Green(value)) + "," +
           std::to_string(Blue(value));
}

std::string ShowFlag(bool flag) {
    return flag ? "true" : "false";
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char letter : text) {
        if (letter == '\r') {
            quoted += "\\r";
        } else if (letter == '\n') {
            quoted += "\\n";
        } else {
            if (letter == '"' || letter == '\\') quoted += '\\';
            quoted += letter;
        }
    }
    return quoted + '"';
}

double ReadNumber(const std::string& text) {
    double number = 0;
    if (!ParseNumber(text, &number)) Fail("no number: " + Quoted(text));
    return number;
}

int ReadWhole(const std::string& text) {
    const double number = ReadNumber(text);
    if (!IsWhole(number) || std::abs(number) > std::numeric_limits<int>::max())
        Fail("no whole number: " + Quoted(text));
    return static_cast<int>(number);
}

bool ReadFlag(const std::string& text) {
    if (text != "true" && text != "false") Fail("neither true nor false: " + Quoted(text));
    return text == "true";
}

double ReadColour(const std::string& text) {
    if (text.find(',') == std::string::npos) return ReadNumber(text);
    const auto colour = ParseChannels(text);
    if (!colour) Fail("no colour: " + Quoted(text));
    return *colour;
}

std::string ShowValue(PropertyKind kind, const PropertyValue& value) {
    if (const bool* flag = std::get_if<bool>(&value)) return ShowFlag(*flag);
    if (const double* number = std::get_if<double>(&value))
        return kind == PropertyKind::Colour ? ShowColour(*number) : ShowNumber(*number);
    return std::get<std::string>(value);
}

PropertyValue ReadValue(PropertyKind kind, const std::string& text) {
    switch (kind) {
        case PropertyKind::Flag:
            return ReadFlag(text);
        case PropertyKind::Number:
        case PropertyKind::Colour:
            return ReadColour(text);
        case PropertyKind::Text:
            break;
    }
    return text;
}

bool SameValue(const PropertyValue& a, const PropertyValue& b) {
    const double* const first = std::get_if<double>(&a);
    const double* const second = std::get_if<double>(&b);
    if (!first || !second) return a == b;
    return ShowNumber(*first) == ShowNumber(*second);
}

}  // namespace coinlet::player
