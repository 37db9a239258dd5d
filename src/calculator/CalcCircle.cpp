#include "calculator/CalcCircle.h"

namespace Tensarix {

#if defined(_WIN32) && LDBL_MANT_DIG == 64

namespace {

// The processor takes turns off an angle with 66 bits of pi, which leaves six right digits where
// the result is near zero. So the angle is brought within an eighth of a turn before: a right angle
// in three parts, of which whole multiples of the first two are exact (W. J. Cody, W. Waite,
// Software Manual for the Elementary Functions, 1980).
constexpr long double rightAngle[] = {0x1.921fb544p+0L, 0x1.0b4611a6p-34L,
                                      2.0222662487959507323996846e-21L};
constexpr long double rightAnglesPerRadian = 0.636619772367581343075535053490057448L;

struct Reduced {
    long double Rest; // radians, at most an eighth of a turn either way
    int Quarter;      // right angles taken off, but for whole turns
};

Reduced Reduce(double radians) {
    const long double angles = std::nearbyint(radians * rightAnglesPerRadian);
    long double rest = radians;
    for (const long double part : rightAngle)
        rest -= angles * part;
    return {rest, static_cast<int>(static_cast<long long>(angles) & 3)};
}

double Sine_Of(Reduced angle) {
    const long double size = angle.Quarter % 2 == 0 ? std::sin(angle.Rest) : std::cos(angle.Rest);
    return static_cast<double>(angle.Quarter < 2 ? size : -size);
}

} // namespace

double Circle_Sine(double radians) {
    return Sine_Of(Reduce(radians));
}

double Circle_Cosine(double radians) {
    const auto [rest, quarter] = Reduce(radians);
    return Sine_Of({rest, (quarter + 1) % 4});
}

#endif

} // namespace Tensarix
