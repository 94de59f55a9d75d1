#include "filters/vector_units.h"

#include <algorithm>

namespace coinlet {

bool ProcessorHas(VectorUnits units) {
#if defined(__x86_64__) && defined(__GNUC__)
    const bool avx2 =
        __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2");
    const bool avx512 = avx2 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                        __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
#else
    const bool avx2 = false, avx512 = false;
#endif
    switch (units) {
        case VectorUnits::Common:
            return true;
        case VectorUnits::Avx2:
            return avx2;
        case VectorUnits::Avx512:
            return avx512;
    }
    return false;
}

VectorUnits WidestVectorUnits() {
    static const VectorUnits widest =
        *std::find_if(allVectorUnits.rbegin(), allVectorUnits.rend(), ProcessorHas);
    return widest;
}

}  // namespace coinlet
