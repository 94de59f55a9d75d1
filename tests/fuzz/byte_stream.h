#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <span>
#include <string>

namespace coinlet::test {

/// Choices, numbers and texts made of the bytes of an input. At its end all is 0.
class ByteStream {
public:
    explicit ByteStream(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    bool AtEnd() const { return bytes_.empty(); }

    std::uint8_t Byte() {
        if (bytes_.empty()) return 0;
        const std::uint8_t byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }
    /// A number below `limit`, which is from 1 to 256.
    std::size_t Below(std::size_t limit) { return Byte() % limit; }
    bool Flag() { return Below(2) == 1; }
    template <class List>
    decltype(auto) Pick(List&& list) {
        return list[Below(std::size(list))];
    }

    /// Mostly from -40 to 160; else one at the ends of what fits, or any.
    int Whole() {
        using Limits = std::numeric_limits<int>;
        constexpr std::array<int, 10> extremes{Limits::min(), Limits::min() + 1,
                                               Limits::max(), Limits::max() - 1,
                                               -65536,        65535,
                                               65536,         32767,
                                               -32768,        1 << 30};
        constexpr int usual = 200, lowest = -40;
        const int byte = Byte();
        if (byte < usual) return byte + lowest;
        return byte < usual + 28 ? Pick(extremes) : Raw<int>();
    }
    /// The same as fractions, with what is no number or without an end.
    double Real() {
        using Limits = std::numeric_limits<double>;
        constexpr std::array<double, 12> extremes{Limits::infinity(),
                                                  -Limits::infinity(),
                                                  Limits::quiet_NaN(),
                                                  Limits::max(),
                                                  -Limits::max(),
                                                  Limits::denorm_min(),
                                                  -0.0,
                                                  0.5,
                                                  1e9,
                                                  -1e9,
                                                  2147483647.5,
                                                  -2147483648.5};
        constexpr int whole = 150, halves = 200;
        constexpr double lowest = -20;
        const int byte = Byte();
        if (byte < whole) return byte + lowest;
        if (byte < halves) return (byte - whole) / 2.0 + lowest;
        return byte < halves + 28 ? Pick(extremes) : Raw<double>();
    }
    template <class Number>
    Number Raw() {
        std::array<std::uint8_t, sizeof(Number)> raw{};
        for (std::uint8_t& byte : raw)
            byte = Byte();
        Number number;
        std::memcpy(&number, raw.data(), sizeof number);
        return number;
    }
    /// Up to `longest` bytes of any value, the length first.
    std::string Text(std::size_t longest) {
        std::string text(Below(longest + 1), ' ');
        for (char& c : text)
            c = static_cast<char>(Byte());
        return text;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

}  // namespace coinlet::test
