#include "connections/VectorMath.h"

#include <cmath>

#if defined(__x86_64__) && defined(__GLIBC__)
#if __GLIBC_PREREQ(2, 35)
#define TENSARIX_VECTOR_LIBM
#include <immintrin.h>
#endif
#endif

namespace Tensarix {

#ifdef TENSARIX_VECTOR_LIBM
#define TENSARIX_AVX2 __attribute__((target("avx2")))

// The C library's vector forms under their names of the x86 vector function interface: four
// doubles in, four out.
extern "C" {
TENSARIX_AVX2 __m256d _ZGVdN4v_exp(__m256d);
TENSARIX_AVX2 __m256d _ZGVdN4vv_pow(__m256d, __m256d);
TENSARIX_AVX2 __m256d _ZGVdN4v_atan(__m256d);
}

namespace {

constexpr std::size_t Lanes = 4;

// The C library's forms also use fused multiplication.
const bool HasVectors = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");

TENSARIX_AVX2 __m256i Mask_Of(std::size_t count) {
    const __m256i lane = _mm256_set_epi64x(3, 2, 1, 0);
    return _mm256_cmpgt_epi64(_mm256_set1_epi64x(static_cast<long long>(count)), lane);
}

// The lanes behind the end hold 1, which no function here takes for a special case.
TENSARIX_AVX2 __m256d Load_Some(const double* from, __m256i mask) {
    return _mm256_blendv_pd(_mm256_set1_pd(1.0), _mm256_maskload_pd(from, mask),
                            _mm256_castsi256_pd(mask));
}

TENSARIX_AVX2 void Exp_Vectors(double* values, std::size_t count) {
    std::size_t k = 0;
    for (; k + Lanes <= count; k += Lanes)
        _mm256_storeu_pd(values + k, _ZGVdN4v_exp(_mm256_loadu_pd(values + k)));
    if (k < count) {
        const __m256i mask = Mask_Of(count - k);
        _mm256_maskstore_pd(values + k, mask, _ZGVdN4v_exp(Load_Some(values + k, mask)));
    }
}

TENSARIX_AVX2 void Raise_Vectors(double* values, std::size_t count, double exponent) {
    const __m256d power = _mm256_set1_pd(exponent);
    std::size_t k = 0;
    for (; k + Lanes <= count; k += Lanes)
        _mm256_storeu_pd(values + k, _ZGVdN4vv_pow(_mm256_loadu_pd(values + k), power));
    if (k < count) {
        const __m256i mask = Mask_Of(count - k);
        _mm256_maskstore_pd(values + k, mask, _ZGVdN4vv_pow(Load_Some(values + k, mask), power));
    }
}

TENSARIX_AVX2 void Arctangent_Vectors(double* values, std::size_t count) {
    std::size_t k = 0;
    for (; k + Lanes <= count; k += Lanes)
        _mm256_storeu_pd(values + k, _ZGVdN4v_atan(_mm256_loadu_pd(values + k)));
    if (k < count) {
        const __m256i mask = Mask_Of(count - k);
        _mm256_maskstore_pd(values + k, mask, _ZGVdN4v_atan(Load_Some(values + k, mask)));
    }
}

} // namespace
#endif

void Exp_Each(double* values, std::size_t count) {
#ifdef TENSARIX_VECTOR_LIBM
    if (HasVectors)
        return Exp_Vectors(values, count);
#endif
    for (std::size_t k = 0; k < count; ++k)
        values[k] = std::exp(values[k]);
}

void Raise_Each(double* values, std::size_t count, double exponent) {
#ifdef TENSARIX_VECTOR_LIBM
    if (HasVectors)
        return Raise_Vectors(values, count, exponent);
#endif
    for (std::size_t k = 0; k < count; ++k)
        values[k] = std::pow(values[k], exponent);
}

void Arctangent_Each(double* values, std::size_t count) {
#ifdef TENSARIX_VECTOR_LIBM
    if (HasVectors)
        return Arctangent_Vectors(values, count);
#endif
    for (std::size_t k = 0; k < count; ++k)
        values[k] = std::atan(values[k]);
}

} // namespace Tensarix
