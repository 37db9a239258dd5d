#include "window/calculator/CalcKeyLayout.h"

namespace Tensarix {

namespace {

constexpr auto digit = CalcKeyRole::Digit, op = CalcKeyRole::Operator, equals = CalcKeyRole::Equals,
               clear = CalcKeyRole::Clear, function = CalcKeyRole::Function,
               accent = CalcKeyRole::Accent, plain = CalcKeyRole::Plain;

constexpr CalcKeyPlace places[] = {
    {"key_Sqr", 0, 0, function, "<i>x</i><sup>2</sup>"},
    {"key_Sqrt", 0, 1, function, "√<i>x</i>"},
    {"key_Cube", 0, 2, function, "<i>x</i><sup>3</sup>"},
    {"key_Cubt", 0, 3, function, "<sup>3</sup>√<i>x</i>"},
    {"key_Xy", 0, 4, accent, "<i>x</i><sup><i>y</i></sup>"},
    {"key_Root", 0, 5, accent, ""},
    {"key_Log", 1, 0, function, ""},
    {"key_aLog", 1, 1, function, ""},
    {"key_Ln", 1, 2, function, ""},
    {"key_aLn", 1, 3, function, ""},
    {"key_Rcp", 1, 4, function, "1/<i>x</i>"},
    {"key_Fact", 1, 5, function, "<i>n</i>!"},
    {"key_Dc", 2, 0, function, "<i>d</i>/<i>c</i>"},
    {"key_XtoY", 2, 1, function, "<i>x</i>↔<i>y</i>"},
    {"com_Random", 2, 2, function, ""},
    {"key_Cnst", 2, 3, function, ""},

    {"key_Sin", 0, 0, function, ""},
    {"key_Cos", 0, 1, function, ""},
    {"key_Tan", 0, 2, function, ""},
    {"key_iSin", 0, 3, function, ""},
    {"key_iCos", 0, 4, function, ""},
    {"key_iTan", 0, 5, function, ""},
    {"key_Sinh", 1, 0, function, ""},
    {"key_Cosh", 1, 1, function, ""},
    {"key_Tanh", 1, 2, function, ""},
    {"key_ArcSinh", 1, 3, function, ""},
    {"key_ArcCosh", 1, 4, function, ""},
    {"key_ArcTanh", 1, 5, function, ""},
    {"key_Sexa", 2, 0, function, ""},
    {"key_Asex", 2, 1, function, ""},
    {"key_PtoR", 2, 2, function, ""},
    {"key_RtoP", 2, 3, function, ""},

    {"key_Min", 0, 0, accent, ""},
    {"key_Mr", 0, 1, accent, ""},
    {"key_Kin", 0, 2, function, ""},
    {"key_Kout", 0, 3, function, ""},
    {"key_Mplus", 0, 4, function, ""},
    {"key_Mminus", 0, 5, function, ""},
    {"key_Data", 1, 0, accent, ""},
    {"key_Del", 1, 1, accent, ""},
    {"key_Dtn", 1, 2, function, ""},
    {"key_Ave", 1, 3, function, ""},
    {"key_XtoK", 1, 4, function, "<i>x</i>↔K"},
    {"key_KAC", 1, 5, function, ""},
    {"key_Dts", 2, 0, function, ""},
    {"key_Sqr1", 2, 1, function, ""},
    {"key_Sqr2", 2, 2, function, ""},
    {"key_Strd0", 2, 3, function, ""},
    {"key_Strd1", 2, 4, function, ""},

    {"key_EngL", 0, 0, function, ""},
    {"key_EngR", 1, 0, function, ""},
    {"key_Time", 2, 0, function, ""},

    {"key_7", 0, 0, digit, ""},
    {"key_8", 0, 1, digit, ""},
    {"key_9", 0, 2, digit, ""},
    {"key_Ers", 0, 3, clear, ""},
    {"key_C", 0, 4, clear, ""},
    {"key_AC", 0, 5, clear, ""},
    {"key_4", 1, 0, digit, ""},
    {"key_5", 1, 1, digit, ""},
    {"key_6", 1, 2, digit, ""},
    {"key_multiply", 1, 3, op, ""},
    {"key_divide", 1, 4, op, ""},
    {"key_PI", 1, 5, function, ""},
    {"key_1", 2, 0, digit, ""},
    {"key_2", 2, 1, digit, ""},
    {"key_3", 2, 2, digit, ""},
    {"key_plus", 2, 3, op, ""},
    {"key_minus", 2, 4, op, ""},
    {"key_Frc", 2, 5, function, ""},
    {"key_0", 3, 0, digit, ""},
    {"key_dot", 3, 1, digit, ""},
    {"key_PM", 3, 2, digit, ""},
    {"key_exp", 3, 3, function, ""},
    {"key_equal", 3, 4, equals, "", 2},
    {"HelpButton", 4, 0, plain, "", 3},
    {"ExitButton", 4, 3, plain, "", 3},
};

} // namespace

std::span<const CalcKeyPlace> Calc_Key_Places() {
    return places;
}

} // namespace Tensarix
