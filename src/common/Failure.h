// The failure rule: a statement that fails is skipped, its target keeps its value, the next one
// runs. What can fail throws Failure inside one statement; Attempt wraps that statement. A
// statement that none wraps hands its failure to whoever called: what follows there is skipped as
// well.
#pragma once

#include <cmath>
#include <exception>
#include <utility>

namespace Tensarix {

class Failure final : public std::exception {
  public:
    explicit Failure(const char* reason) noexcept : reason_(reason) {}
    const char* what() const noexcept override { return reason_; }

  private:
    const char* reason_; // a literal
};

// Runs one statement. False if it failed; whatever it had not yet assigned keeps its value.
template <typename Statement>
bool Attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// The value, if it is finite; arithmetic that is not finite is a failure.
inline double Finite(double value) {
    if (!std::isfinite(value))
        throw Failure("number out of range");
    return value;
}

// Attempt of one assignment, for inner loops: assigns only a finite value. Beware of expressions in
// which an infinity turns finite again, such as 1 / (1 / 0): keep each step on its own.
inline void Keep(double& target, double value) noexcept {
    if (std::isfinite(value))
        target = value;
}

} // namespace Tensarix
