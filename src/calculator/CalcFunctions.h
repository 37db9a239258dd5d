// The function keys of one number: each takes DisplayValue and ends in a result or a message.
#pragma once

#include "calculator/CalcMainFrm.h"

namespace Tensarix {

// What becomes of the entry before a function runs.
enum class EntryBefore {
    Finish, // a fraction takes its value, the entry ends
    Drop,   // the key brings a number of its own
    Keep    // the key decides itself
};

struct FunctionKey {
    std::string_view Token;
    EntryBefore Before;
    void (*Run)(CalcMainFrm& form); // may fail; then ErrorText, at first FailureText, is shown
    std::string_view FailureText;   // empty shows as "*Error*"
};

// Null if no function has that token.
const FunctionKey* Find_Function(std::string_view token);

// 1 for 0. Not finite beyond the range of a double.
double Factorial(double whole);

} // namespace Tensarix
