#include "window/calculator/CalcKeyLayout.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr int pageColumns = 6;

constexpr auto digit = CalcKeyRole::Digit, op = CalcKeyRole::Operator, equals = CalcKeyRole::Equals,
               clear = CalcKeyRole::Clear, function = CalcKeyRole::Function,
               accent = CalcKeyRole::Accent, plain = CalcKeyRole::Plain;

// Every key that is more than a function under its plain caption.
constexpr CalcKeyLook looks[] = {
    {"key_0", digit, ""},
    {"key_1", digit, ""},
    {"key_2", digit, ""},
    {"key_3", digit, ""},
    {"key_4", digit, ""},
    {"key_5", digit, ""},
    {"key_6", digit, ""},
    {"key_7", digit, ""},
    {"key_8", digit, ""},
    {"key_9", digit, ""},
    {"key_dot", digit, ""},
    {"key_PM", digit, ""},
    {"key_plus", op, ""},
    {"key_minus", op, ""},
    {"key_multiply", op, ""},
    {"key_divide", op, ""},
    {"key_equal", equals, "", 2},
    {"key_Ers", clear, ""},
    {"key_C", clear, ""},
    {"key_AC", clear, ""},
    {"HelpButton", plain, "", 3},
    {"ExitButton", plain, "", 3},

    {"key_Sqr", function, "<i>x</i><sup>2</sup>"},
    {"key_Sqrt", function, "√<i>x</i>"},
    {"key_Cube", function, "<i>x</i><sup>3</sup>"},
    {"key_Cubt", function, "<sup>3</sup>√<i>x</i>"},
    {"key_Xy", accent, "<i>x</i><sup><i>y</i></sup>"},
    {"key_Root", accent, ""},
    {"key_Rcp", function, "1/<i>x</i>"},
    {"key_Fact", function, "<i>n</i>!"},
    {"key_Dc", function, "<i>d</i>/<i>c</i>"},
    {"key_XtoY", function, "<i>x</i>↔<i>y</i>"},

    {"key_Min", accent, ""},
    {"key_Mr", accent, ""},
    {"key_Data", accent, ""},
    {"key_Del", accent, ""},
    {"key_XtoK", function, "<i>x</i>↔K"},
    {"key_Dts", function, "Sx<br><small>Σ<i>x</i></small>"},
    {"key_Sqr2", function, "Sx2<br><small>Σ<i>x</i><sup>2</sup></small>"},
    {"key_Strd0", function, "Sdx<br><small>σ</small>"},
    {"key_Strd1", function, "Sdxn<br><small>s</small>"},
};

} // namespace

int Columns_Of(CalcPage page) {
    return page == CalcPage::Mode ? 1 : pageColumns;
}

CalcKeyLook Look_Of(const CalcKey& key) {
    const auto found =
        std::find_if(std::begin(looks), std::end(looks),
                     [&key](const CalcKeyLook& look) { return look.Name == key.Name; });
    return found == std::end(looks) ? CalcKeyLook{key.Name} : *found;
}

} // namespace Tensarix
