// The vector forms of the C library's functions, for source files of this room that bring a way of
// their own for processors with AVX2. TENSARIX_VECTOR_LIBM tells whether there are any.
#pragma once

#if defined(__x86_64__) && defined(__GLIBC__)
#if __GLIBC_PREREQ(2, 35)
#define TENSARIX_VECTOR_LIBM
#endif
#endif

#ifdef TENSARIX_VECTOR_LIBM
#include <cstddef>
#include <immintrin.h>

#define TENSARIX_AVX2 __attribute__((target("avx2")))

namespace Tensarix {

// Four doubles in, four out, under their names of the x86 vector function interface.
// NOLINTBEGIN(bugprone-reserved-identifier): they are the C library's.
extern "C" {
TENSARIX_AVX2 __m256d _ZGVdN4v_exp(__m256d);
TENSARIX_AVX2 __m256d _ZGVdN4v_log(__m256d);
TENSARIX_AVX2 __m256d _ZGVdN4v_atan(__m256d);
}
// NOLINTEND(bugprone-reserved-identifier)

inline constexpr std::size_t VectorLanes = 4;

// The C library's forms also use fused multiplication.
inline bool Has_Vectors() {
    static const bool has = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
    return has;
}

// By way of the logarithm, which takes half the time of the power function and costs a few more
// units in the last place where the logarithm is large.
TENSARIX_AVX2 inline __m256d Raised(__m256d value, __m256d power) {
    return _ZGVdN4v_exp(_mm256_mul_pd(power, _ZGVdN4v_log(value)));
}

// (1 - e^value)^power
TENSARIX_AVX2 inline __m256d Saturated(__m256d value, __m256d power) {
    return Raised(_mm256_sub_pd(_mm256_set1_pd(1.0), _ZGVdN4v_exp(value)), power);
}

} // namespace Tensarix
#endif
