// A calculator that is driven by a line of keys.
#pragma once

#include "calculator/CalcKeys.h"

#include <sstream>
#include <string>

namespace Tensarix {

struct CalcTest {
    CalcVariables Vars;
    CalcMainFrm Form{Vars, {}, {}};

    CalcTest() { Open(Form); }

    // Words parted by blanks: control names, tokens, and numbers, which are keyed digit by digit.
    CalcTest& Keys(const std::string& line) {
        std::istringstream words(line);
        for (std::string word; words >> word;)
            Key(word);
        return *this;
    }

    void Key(const std::string& word) {
        if (const CalcKey* key = Find_Key(word))
            Press(Form, *key);
        else if (word.find_first_not_of("0123456789.") == std::string::npos)
            for (const char c : word)
                KeyPress(Form, c == '.' ? "dot" : std::string(1, c));
        else
            KeyPress(Form, word);
    }

    // Mantissa and exponent as they stand side by side.
    std::string Shown() const { return Form.Panel.DisplayBox + Form.Panel.ExpoBox; }
};

inline std::string Shown_After(const std::string& line) {
    return CalcTest().Keys(line).Shown();
}

} // namespace Tensarix
