#pragma once

#include "filters/pixel_array.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace coinlet {

// The bytes of one pixel as unsigned 16-bit numbers, one lane each: what a filter carries from pixel to
// pixel. Only here do filters name single instructions: compilers don't find those for four lanes by
// themselves, and a chain of pixels is as slow as the instructions in it. Both kinds do the same.

/// For any processor.
struct PlainLanes {
    static PlainLanes Load(const std::uint16_t* from) {
        PlainLanes lanes;
        std::memcpy(lanes.values.data(), from, sizeof lanes.values);
        return lanes;
    }
    static PlainLanes All(int value) {
        PlainLanes lanes;
        lanes.values.fill(static_cast<std::uint16_t>(value));
        return lanes;
    }
    void Store(std::uint16_t* to) const { std::memcpy(to, values.data(), sizeof values); }

    /// The sum, which must stay below 65,536.
    friend PlainLanes operator+(PlainLanes a, PlainLanes b) {
        return Each(a, b, [](unsigned x, unsigned y) { return x + y; });
    }
    /// The difference, but not below 0.
    friend PlainLanes Less(PlainLanes a, PlainLanes b) {
        return Each(a, b, [](unsigned x, unsigned y) { return x > y ? x - y : 0; });
    }
    /// The product divided by 65,536.
    friend PlainLanes HighProduct(PlainLanes a, PlainLanes b) {
        return Each(a, b, [](unsigned x, unsigned y) { return x * y >> 16; });
    }
    friend PlainLanes Halved(PlainLanes a, int times) {
        return Each(a, a, [times](unsigned x, unsigned) { return x >> times; });
    }
    /// The lower of two below 32,768.
    friend PlainLanes Lower(PlainLanes a, PlainLanes b) {
        return Each(a, b, [](unsigned x, unsigned y) { return std::min(x, y); });
    }

    std::array<std::uint16_t, pixelBytes> values{};

private:
    template <class Operation>
    static PlainLanes Each(PlainLanes a, PlainLanes b, Operation operation) {
        for (std::size_t i = 0; i < a.values.size(); ++i)
            a.values[i] = static_cast<std::uint16_t>(operation(a.values[i], b.values[i]));
        return a;
    }
};

#ifdef __SSE2__

/// For processors with 16-byte registers: every x86-64.
struct RegisterLanes {
    static RegisterLanes Load(const std::uint16_t* from) { return {_mm_loadu_si64(from)}; }
    static RegisterLanes All(int value) { return {_mm_set1_epi16(static_cast<short>(value))}; }
    void Store(std::uint16_t* to) const { _mm_storeu_si64(to, values); }

    friend RegisterLanes operator+(RegisterLanes a, RegisterLanes b) {
        return {_mm_add_epi16(a.values, b.values)};
    }
    friend RegisterLanes Less(RegisterLanes a, RegisterLanes b) {
        return {_mm_subs_epu16(a.values, b.values)};
    }
    friend RegisterLanes HighProduct(RegisterLanes a, RegisterLanes b) {
        return {_mm_mulhi_epu16(a.values, b.values)};
    }
    friend RegisterLanes Halved(RegisterLanes a, int times) { return {_mm_srli_epi16(a.values, times)}; }
    friend RegisterLanes Lower(RegisterLanes a, RegisterLanes b) {
        return {_mm_min_epi16(a.values, b.values)};
    }

    __m128i values;
};

using Lanes = RegisterLanes;

#else

using Lanes = PlainLanes;

#endif

}  // namespace coinlet
