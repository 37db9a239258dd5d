// How a long search lets the event loop turn, and how its caller gives it up.
#pragma once

#include <exception>
#include <functional>
#include <utility>

namespace Tensarix {

// Leaves a search at once, at whatever depth: its result is no longer wanted, because the program
// is closing or a newer search took its place. Not a Failure, so that no failing step swallows it.
class SearchAbandoned final : public std::exception {
  public:
    const char* what() const noexcept override { return "search abandoned"; }
};

// The yield of one search. The engines call it at every element and pass; every stride-th call asks
// the caller's `turn`, which lets pending events run (it may look at the clock first) and returns
// false to abandon the search.
class SearchYield {
  public:
    explicit SearchYield(std::function<bool()> turn, int stride = 1)
        : turn_(std::move(turn)), stride_(stride > 0 ? stride : 1), left_(stride_) {}

    void operator()() {
        if (--left_ <= 0)
            Ask();
    }

  private:
    void Ask() {
        left_ = stride_;
        if (!turn_())
            throw SearchAbandoned();
    }

    std::function<bool()> turn_;
    int stride_;
    int left_;
};

// Strides that keep the yield under a few per cent of the search and the event loop within a
// millisecond: a bolt search yields once a pass, a weld search three times an element.
inline constexpr int boltYieldStride = 16;
inline constexpr int weldYieldStride = 256;

} // namespace Tensarix
