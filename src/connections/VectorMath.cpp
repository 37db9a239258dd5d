#include "connections/VectorMath.h"

#include <cmath>

#include "connections/VectorForms.h"

namespace Tensarix {

#ifdef TENSARIX_VECTOR_LIBM
namespace {

constexpr std::size_t Lanes = VectorLanes;

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
    alignas(32) double lanes[Lanes]{};
};

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
    if (Has_Vectors())
        return Saturate_Vectors(values, count, exponent);
#endif
    for (std::size_t k = 0; k < count; ++k)
        values[k] = std::pow(1 - std::exp(values[k]), exponent);
}

void Raise_Each(double* values, std::size_t count, double exponent) {
#ifdef TENSARIX_VECTOR_LIBM
    if (Has_Vectors())
        return Raise_Vectors(values, count, exponent);
#endif
    for (std::size_t k = 0; k < count; ++k)
        values[k] = std::pow(values[k], exponent);
}

void Arctangent_Each(double* values, std::size_t count) {
#ifdef TENSARIX_VECTOR_LIBM
    if (Has_Vectors())
        return Arctangent_Vectors(values, count);
#endif
    for (std::size_t k = 0; k < count; ++k)
        values[k] = std::atan(values[k]);
}

} // namespace Tensarix
