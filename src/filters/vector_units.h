#pragma once

#include <array>

namespace coinlet {

/// Instructions that filters are built for, from those that every processor of the kind has to the widest.
/// Every choice gives the same picture.
enum class VectorUnits { Common, Avx2, Avx512 };

inline constexpr std::array allVectorUnits{VectorUnits::Common, VectorUnits::Avx2, VectorUnits::Avx512};

/// Whether this processor has them, and this build offers them.
bool ProcessorHas(VectorUnits units);
/// The last of `allVectorUnits` that the processor has.
VectorUnits WidestVectorUnits();

// One body of code, translated once for each kind of units: `flatten` pulls all that the work calls into a
// function that may use them. What isn't pulled in, because it stands in another file or nothing is being
// optimised, runs with the common instructions. So nothing built for a wide unit has a name that a linker
// could give to others, and nothing is chosen before the program has started.
//
// The work must not hand out vectors wider than 16 bytes by value. Wide units could round a product and a sum
// in one step; the build's flags forbid that, so every choice computes the same numbers.
#if defined(__x86_64__) && defined(__GNUC__)

template <class Work>
[[gnu::flatten]] void WithCommonUnits(Work work) {
    work();
}

template <class Work>
[[gnu::target("avx2,bmi,bmi2"), gnu::flatten]] void WithAvx2(Work work) {
    work();
}

template <class Work>
[[gnu::target("avx2,bmi,bmi2,avx512f,avx512bw,avx512dq,avx512vl"), gnu::flatten]] void WithAvx512(Work work) {
    work();
}

#else

template <class Work>
void WithCommonUnits(Work work) {
    work();
}

template <class Work>
void WithAvx2(Work work) {
    work();
}

template <class Work>
void WithAvx512(Work work) {
    work();
}

#endif

/// Runs the work once, built for these units. Only for units that the processor has. What the work captures
/// by value is its own: then no byte that it writes can be, to a compiler, a change of what it captured.
template <class Work>
void WithVectorUnits(VectorUnits units, Work work) {
    switch (units) {
        case VectorUnits::Common:
            return WithCommonUnits(work);
        case VectorUnits::Avx2:
            return WithAvx2(work);
        case VectorUnits::Avx512:
            return WithAvx512(work);
    }
}

}  // namespace coinlet
