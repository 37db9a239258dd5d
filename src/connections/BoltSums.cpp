#include "connections/BoltSums.h"

#include <algorithm>
#include <cmath>

#include "connections/BoltFunctions.h"
#include "connections/VectorForms.h"

namespace Tensarix {
namespace {

constexpr std::size_t Padding = 4;

double Plain_Farthest(RotatedBolts& bolts, double Ro) {
    double dmax = 0;
    for (std::size_t k = 0; k < bolts.count; ++k) {
        const double X = Ro + bolts.w[k];
        bolts.d[k] = std::sqrt(X * X + bolts.u[k] * bolts.u[k]);
        dmax = std::max(dmax, bolts.d[k]);
    }
    return dmax;
}

void Add_Plain(const RotatedBolts& bolts, std::size_t first, std::size_t count, double Ro,
               double dmax, BoltSums& sums) {
    static const double Rmax = Bolt_Force(UltimateBoltDeformation);
    for (std::size_t k = first; k < first + count; ++k) {
        const double d = bolts.d[k];
        const double share = Bolt_Force((UltimateBoltDeformation * d) / dmax) / Rmax;
        sums.SM += share * d;
        // A bolt on the centre has no direction: its step fails and adds nothing.
        if (d > 0)
            sums.SV += share * ((Ro + bolts.w[k]) / d);
        sums.SD += d * d;
    }
}

#ifdef TENSARIX_VECTOR_LIBM
static_assert(Padding == VectorLanes);

TENSARIX_AVX2 double Vector_Farthest(RotatedBolts& bolts, double Ro) {
    const __m256d centre = _mm256_set1_pd(Ro);
    __m256d largest = _mm256_setzero_pd();
    for (std::size_t k = 0; k < bolts.count; k += VectorLanes) {
        const __m256d X = _mm256_add_pd(centre, _mm256_loadu_pd(bolts.w.data() + k));
        const __m256d u = _mm256_loadu_pd(bolts.u.data() + k);
        const __m256d d = _mm256_sqrt_pd(_mm256_add_pd(_mm256_mul_pd(X, X), _mm256_mul_pd(u, u)));
        _mm256_storeu_pd(bolts.d.data() + k, d);
        largest = _mm256_max_pd(largest, d);
    }
    const __m128d half =
        _mm_max_pd(_mm256_castpd256_pd128(largest), _mm256_extractf128_pd(largest, 1));
    return _mm_cvtsd_f64(_mm_max_sd(half, _mm_unpackhi_pd(half, half)));
}

// The first so many lanes.
TENSARIX_AVX2 inline __m256d Lanes_Below(std::size_t count) {
    const __m256i lane = _mm256_set_epi64x(3, 2, 1, 0);
    return _mm256_castsi256_pd(
        _mm256_cmpgt_epi64(_mm256_set1_epi64x(static_cast<long long>(count)), lane));
}

TENSARIX_AVX2 inline double Sum_Of(__m256d lanes) {
    const __m128d half = _mm_add_pd(_mm256_castpd256_pd128(lanes), _mm256_extractf128_pd(lanes, 1));
    return _mm_cvtsd_f64(_mm_add_sd(half, _mm_unpackhi_pd(half, half)));
}

TENSARIX_AVX2 void Add_Vectors(const RotatedBolts& bolts, std::size_t first, std::size_t count,
                               double Ro, double dmax, BoltSums& sums) {
    const __m256d zero = _mm256_setzero_pd();
    const __m256d centre = _mm256_set1_pd(Ro);
    const __m256d power = _mm256_set1_pd(BoltPower);
    const __m256d decay = _mm256_set1_pd(BoltExponentFactor * UltimateBoltDeformation / dmax);
    __m256d SM = zero, SV = zero, SD = zero;
    for (std::size_t k = 0; k < count; k += VectorLanes) {
        const __m256d d = _mm256_loadu_pd(bolts.d.data() + first + k);
        const __m256d X = _mm256_add_pd(centre, _mm256_loadu_pd(bolts.w.data() + first + k));
        const __m256d counted = Lanes_Below(count - k);
        const __m256d share = _mm256_and_pd(Saturated(_mm256_mul_pd(decay, d), power), counted);
        // A bolt on the centre has no direction: its step fails and adds nothing.
        const __m256d cosine =
            _mm256_and_pd(_mm256_div_pd(X, d), _mm256_cmp_pd(d, zero, _CMP_GT_OQ));
        SM = _mm256_add_pd(SM, _mm256_mul_pd(share, d));
        SV = _mm256_add_pd(SV, _mm256_mul_pd(share, cosine));
        SD = _mm256_add_pd(SD, _mm256_and_pd(_mm256_mul_pd(d, d), counted));
    }
    static const double fullShare = UltimateBoltForce / Bolt_Force(UltimateBoltDeformation);
    sums.SM += fullShare * Sum_Of(SM);
    sums.SV += fullShare * Sum_Of(SV);
    sums.SD += Sum_Of(SD);
}
#endif

} // namespace

RotatedBolts::RotatedBolts(std::size_t bolts)
    : count(bolts), u((bolts + Padding - 1) / Padding * Padding), w(u.size()), d(u.size()) {}

void RotatedBolts::Close() {
    for (std::size_t k = 0; k < u.size(); ++k) {
        if (k >= count) {
            u[k] = u[0];
            w[k] = w[0];
        }
        reach = std::max({reach, std::abs(u[k]), std::abs(w[k])});
    }
}

double Farthest_Bolt(RotatedBolts& bolts, double Ro) {
#ifdef TENSARIX_VECTOR_LIBM
    if (Has_Vectors())
        return Vector_Farthest(bolts, Ro);
#endif
    return Plain_Farthest(bolts, Ro);
}

void Add_Bolts(const RotatedBolts& bolts, std::size_t first, std::size_t count, double Ro,
               double dmax, BoltSums& sums) {
#ifdef TENSARIX_VECTOR_LIBM
    if (Has_Vectors())
        return Add_Vectors(bolts, first, count, Ro, dmax, sums);
#endif
    Add_Plain(bolts, first, count, Ro, dmax, sums);
}

} // namespace Tensarix
