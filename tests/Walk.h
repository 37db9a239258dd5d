// Walks over thousands of cases take all of them as released. Under the sanitizers, which look for
// faults of memory and not of figures, one in so many.
#pragma once

namespace Tensarix::Tests {

#ifdef __SANITIZE_ADDRESS__
inline constexpr int walkStep = 8;
#else
inline constexpr int walkStep = 1;
#endif

} // namespace Tensarix::Tests
