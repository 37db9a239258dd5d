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
TENSARIX_AVX2 __m256d _ZGVdN4v_log(__m256d);
TENSARIX_AVX2 __m256d _ZGVdN4v_atan(__m256d);
}

namespace {

constexpr std::size_t Lanes = 4;

// The C library's forms also use fused multiplication.
const bool HasVectors = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");

// Up to three values at the end of an array, in a whole vector. The lanes behind them hold -1 or 1,
// which no function here takes for a special case.
struct Tail {
    Tail(const double* values, std::size_t count, double filling) {
        for (std::size_t k = 0; k < Lanes; ++k)
            lanes[k] = k < count ? values[k] : filling;
    }
    void To(double* values, std::size_t count) const {
        for (std::size_t k = 0; k < count; ++k)
            values[k] = lanes[k];
    }
    alignas(32) double lanes[Lanes];
};

// By way of the logarithm, which takes half the time of the power function and costs a few more
// units in the last place where the logarithm is large.
TENSARIX_AVX2 inline __m256d Raised(__m256d value, __m256d power) {
    return _ZGVdN4v_exp(_mm256_mul_pd(power, _ZGVdN4v_log(value)));
}

TENSARIX_AVX2 inline __m256d Saturated(__m256d value, __m256d power) {
    return Raised(_mm256_sub_pd(_mm256_set1_pd(1.0), _ZGVdN4v_exp(value)), power);
}

TENSARIX_AVX2 void Saturate_Vectors(double* values, std::size_t count, double exponent) {
    const __m256d power = _mm256_set1_pd(exponent);
    std::size_t k = 0;
    for (; k + Lanes <= count; k += Lanes)
        _mm256_storeu_pd(values + k, Saturated(_mm256_loadu_pd(values + k), power));
    if (k < count) {
        Tail tail(values + k, count - k, -1.0);
        _mm256_store_pd(tail.lanes, Saturated(_mm256_load_pd(tail.lanes), power));
        tail.To(values + k, count - k);
    }
}

TENSARIX_AVX2 void Raise_Vectors(double* values, std::size_t count, double exponent) {
    const __m256d power = _mm256_set1_pd(exponent);
    std::size_t k = 0;
    for (; k + Lanes <= count; k += Lanes)
        _mm256_storeu_pd(values + k, Raised(_mm256_loadu_pd(values + k), power));
    if (k < count) {
        Tail tail(values + k, count - k, 1.0);
        _mm256_store_pd(tail.lanes, Raised(_mm256_load_pd(tail.lanes), power));
        tail.To(values + k, count - k);
    }
}

TENSARIX_AVX2 void Arctangent_Vectors(double* values, std::size_t count) {
    std::size_t k = 0;
    for (; k + Lanes <= count; k += Lanes)
        _mm256_storeu_pd(values + k, _ZGVdN4v_atan(_mm256_loadu_pd(values + k)));
    if (k < count) {
        Tail tail(values + k, count - k, 1.0);
        _mm256_store_pd(tail.lanes, _ZGVdN4v_atan(_mm256_load_pd(tail.lanes)));
        tail.To(values + k, count - k);
    }
}

} // namespace
#endif

void Saturate_Each(double* values, std::size_t count, double exponent) {
#ifdef TENSARIX_VECTOR_LIBM
    if (HasVectors)
        return Saturate_Vectors(values, count, exponent);
#endif
    for (std::size_t k = 0; k < count; ++k)
        values[k] = std::pow(1 - std::exp(values[k]), exponent);
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
