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

// The bytes of two pixels, from two rows, as unsigned 16-bit numbers, one lane each: what a filter carries
// from pixel to pixel. Only here do filters name single instructions: compilers don't find those for so few
// lanes by themselves, and a chain of pixels is as slow as the instructions in it. Both kinds do the same.

/// For any processor.
struct PlainLanes {
    static PlainLanes Load(const std::uint16_t* first, const std::uint16_t* second) {
        PlainLanes lanes;
        std::copy_n(first, pixelBytes, lanes.values.begin());
        std::copy_n(second, pixelBytes, lanes.values.begin() + pixelBytes);
        return lanes;
    }
    /// The second pixel is 0.
    static PlainLanes Load(const std::uint16_t* first) {
        PlainLanes lanes;
        std::copy_n(first, pixelBytes, lanes.values.begin());
        return lanes;
    }
    static PlainLanes All(int value) {
        PlainLanes lanes;
        lanes.values.fill(static_cast<std::uint16_t>(value));
        return lanes;
    }
    void Store(std::uint16_t* first, std::uint16_t* second) const {
        Store(first);
        std::copy_n(values.begin() + pixelBytes, pixelBytes, second);
    }
    /// The first pixel alone.
    void Store(std::uint16_t* first) const { std::copy_n(values.begin(), pixelBytes, first); }

    /// The first pixels of both.
    friend PlainLanes Firsts(PlainLanes a, PlainLanes b) { return Load(a.values.data(), b.values.data()); }
    /// The second pixel of one and the first of the other.
    friend PlainLanes SecondAndFirst(PlainLanes a, PlainLanes b) {
        return Load(a.values.data() + pixelBytes, b.values.data());
    }
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

    std::array<std::uint16_t, std::size_t{2} * pixelBytes> values{};

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
    static RegisterLanes Load(const std::uint16_t* first, const std::uint16_t* second) {
        return Firsts(Load(first), Load(second));
    }
    static RegisterLanes Load(const std::uint16_t* first) { return {_mm_loadu_si64(first)}; }
    static RegisterLanes All(int value) { return {_mm_set1_epi16(static_cast<short>(value))}; }
    void Store(std::uint16_t* first, std::uint16_t* second) const {
        Store(first);
        const __m128d doubles = _mm_castsi128_pd(values);
        const double upper = _mm_cvtsd_f64(_mm_unpackhi_pd(doubles, doubles));
        std::memcpy(second, &upper, sizeof upper);  // One instruction, where integers would take two.
    }
    void Store(std::uint16_t* first) const { _mm_storeu_si64(first, values); }

    friend RegisterLanes Firsts(RegisterLanes a, RegisterLanes b) {
        return {_mm_unpacklo_epi64(a.values, b.values)};
    }
    friend RegisterLanes SecondAndFirst(RegisterLanes a, RegisterLanes b) {
        return {_mm_castpd_si128(_mm_shuffle_pd(_mm_castsi128_pd(a.values), _mm_castsi128_pd(b.values), 1))};
    }
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
