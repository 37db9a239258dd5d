// Lists of keys, and the panel that must stand after them. The exponent follows
// the mantissa after a blank or "-".
#include "calculator/CalcDisplay.h"
#include "calculator/CalcResults.h"
#include "calculator/CalcTestSupport.h"
#include "calculator/CalcWaiting.h"

#include <array>

using namespace Tensarix;

namespace {

// The panel, "K" in constant calculation, and the remark.
std::string Panel_After(const std::string& keys) {
    CalcTest calc;
    calc.Keys(keys);
    const CalcPanel& panel = calc.Form.Panel;
    EXPECT_EQ(calc.Vars.Display.ErrorLatched, panel.DisplayBox.front() == '*') << keys;
    return calc.Shown() + (panel.CCalc_Indicator.empty() ? "" : " ") + panel.CCalc_Indicator +
           (panel.Remark.Text.empty() ? "" : " (" + panel.Remark.Text + ")");
}

void Expect_Panels(const std::string& table) {
    Expect_Each(table, Panel_After);
}

} // namespace

TEST(CalcPanel, NumberEntry) {
    Expect_Panels(R"(
        -> 0.       12.50 -> 12.50          0007 -> 7.              000 -> 0.   0.005 -> 0.005
        .5 -> 0.5   ..5 -> 0.5              1.2.3 -> 1.23
        1234567890123456 -> 123456789012345.            pm 1234567890123456 -> 123456789012345.
        1 pm 234567890123456 -> -123456789012345.       1234567890.123456 -> 1234567890.12345
        123456789012345 dot -> 123456789012345.         0.12345678901234567 -> 0.12345678901234
        5 C 7 -> 7.             12 pm pm -> 12.         0 pm -> 0.              0. pm -> 0.
        0.0 pm 5 -> 0.05        2 sqr pm -> -4.         PI pm 2 -> 2.           5 xtract 6 -> 56.
        5 nonsense 6 -> 56.
    )");
}

TEST(CalcPanel, ExponentEntry) {
    Expect_Panels(R"(
        exp 5 -> 5.             1 exp 5 -> 1. 05        1 exp 1 2 3 -> 1. 23    1 exp . 5 -> 1. 05
        1 exp 5 pm -> 1.-05     1 exp 5 pm pm -> 1. 05              1 exp pm 5 -> 1.-05
        1 exp 5 exp 3 -> 1. 53              1 exp 5 PI -> 1. 05     2.5 exp 3 + 1 = -> 2501.
        # loses its sign
        12 pm exp -> 12. 00
        12 pm 3 exp -> -123. 00             12 pm 3 exp 2 = -> -12300.
        12 sqr pm exp -> -144.              1 exp 5 + 2 exp 3 -> 2. 03
        1 exp 5 pm + 2 exp 3 -> 2. 03       1 exp 5 sqr 2 exp -> 2. 00
        1 exp 5 pm sqr 2 exp -> 2. 00       1 exp 5 C 2 exp -> 2. 00
        1 exp 5 key_PtoR 3 -> 3.            123456789012345 exp 99 -> 123456789012345. 99
    )");
}

TEST(CalcPanel, Erasing) {
    Expect_Panels(R"(
        ers -> 0.   5 pm ers -> 0.          52 pm ers -> -5.        1.5 ers -> 1.
        1. ers -> 1.            1. ers 5 -> 15.         1.25 ers -> 1.2         5 ers 7 -> 7.
        2 + 5 ers = -> 2.       0.5 pm ers ers -> 0.    1 exp 53 ers -> 1. 05
        1 exp 5 ers -> 1. 00    1 exp 5 ers ers -> 1.   1 exp 5 ers ers 2 -> 12.
        1 exp 53 pm ers -> 1.-05
        # a last 0 takes the sign with it
        1 exp 50 pm ers -> 1. 05
        2 + 3 = ers -> 5.
    )");
}

TEST(CalcPanel, Operators) {
    Expect_Panels(R"(
        2 + 3 * 4 * 5 = -> 62.              2 - 3 * 4 = -> -10.     2 - 3 / 4 * 5 = -> -1.75
        2 + 3 * 4 xy 2 = -> 50.             2 - 24 / 2 xy 3 = -> -1.
        2 * 3 xy 2 = -> 18.     36 / 3 xy 2 = -> 4.     2 xy 3 * 3 xy 2 = -> 72.
        2 xy 3 / 2 xy 2 = -> 2.             2 xy 3 xy 2 = -> 64.    1 + 64 root 3 = -> 5.
        10 - 64 root 3 = -> 6.              4 + 2 * 9 root 2 = -> 10.
        4 + 6 / 9 root 2 = -> 6.            2 + -> 2.
        # a total is shown only while the operator repeats
        2 + 3 * -> 3.
        2 * 3 + -> 3.           2 + 3 + -> 5.           2 * 3 * -> 6.           2 + 3 + 4 -> 4.
        + 5 = -> 5.             * 5 = -> 0.             5 = -> 5.   5 = = -> 5.
        2 + 3 = + 4 = -> 9.     2 + 3 = 7 + 1 = -> 8.   2 + * 3 = -> 6.
        # the number shown, not the total, goes on
        2 + 3 * + 4 = -> 7. (By operator priority: 9)
        2 + 3 C 4 = -> 6.       2 + 3 C = -> 2.         9 - 4 pm = -> 13.       2 - 3 x-y = -> 1.
        2 - 3 x-y x-y = -> -1.              2 + 9 sqrt = -> 5.      0.1 + 0.2 = -> 0.3
        1 / 3 = -> 0.33333333333333
        # counts 10 as its whole part
        29 / 3 = -> 9.6666666666667
        28 / 3 = -> 9.33333333333333        1 / 30 = -> 3.33333333333333-02
    )");
}

// What the undo of three operands cannot reach, and the two formulas of the
// root: kept as they are.
TEST(CalcPanel, RequiredWrongResults) {
    Expect_Panels(R"(
        6 / 4 root 2 = -> 24. (By operator priority: 3)             6 / 4 root 0 = -> 1.5
        6 * 4 root 2 = -> 48. (By operator priority: 12)
        3 * 6 / 4 root 2 = -> 72. (By operator priority: 9)
        1 + 3 xy 2 * 4 = -> 40. (By operator priority: 37)
        10 - 3 xy 2 / 4 = -> 0.25 (By operator priority: 7.75)
        1 + 2 * 3 xy 2 xy 2 = -> 171. (By operator priority: 163)   12 pm exp 2 = -> 1200.
        # so near to zero counts as zero
        0.000000001 exp 3 pm sin -> 0.
    )");
    EXPECT_EQ(Panel_After("RadButton 400 sin"),
              Shown_After("RadButton 40 sin") + " (Taken at 40: turns of 360 go off in any unit)");
    EXPECT_EQ(Panel_After("RadButton 359 sin"), Shown_After("359 RadButton sin"));
}

TEST(CalcPanel, ConstantCalculation) {
    Expect_Panels(R"(
        2 * * -> 2. K           2 * * 3 = -> 6. K       2 * * 3 = 4 = -> 8. K
        2 * * 3 = 4 = = -> 16. K            2 * * * -> 2.           2 * * * * -> 2. K
        2 * * * 3 = -> 6.       2 * * + -> 2.           2 * * 3 = + 4 = -> 10.
        2 * * 3 = AC -> 0.      2 / / 3 = -> 1.5 K      2 + + 3 = = = -> 9. K   5 - - 8 = -> 3. K
        2 xy xy 3 = -> 9. K     2 root root 9 = -> 3. K             2 + 3 + + 4 = -> 9. K
        0 / / 5 = -> *Divide by Zero* K     0 root root 5 = -> *Divide by Zero* K
        0 xy xy 0 = -> *Divide by Zero* K   0.5 xy xy 8 pm = -> *Error* K
        1 exp 60 * * 1 exp 60 = -> *Infinity* K
    )");
}

TEST(CalcPanel, ErrorsLatchUntilAC) {
    Expect_Panels(R"(
        1 / 0 = -> *Divide by Zero*         1 / 0 + -> *Divide by Zero*
        1 + 1 / 0 = -> *Divide by Zero*     0 xy 0 = -> *Divide by Zero*
        0 root 0 = -> *Divide by Zero*      8 pm xy 3 = -> -512.    8 pm root 3 = -> -2.
        4 pm root 2 = -> *Invalid Power*    4 pm xy 0.5 = -> *Invalid Power*    4 pm xy 2 = -> 16.
        8 pm xy 1 frc 3 pm = -> *Invalid Power*         4 pm xy 2 * 9 pm xy 2 = -> 1296.
        # the logarithm of a negative number
        2 pm xy 3 * 9 xy 2 = -> *Invalid Power*
        0 xy 1 pm = -> *Invalid Power*      5 root 0 = -> *Invalid Power*
        10 xy 400 = -> *Invalid Power*      10 xy 200 = -> *Infinity*
        1 exp 99 * 10 = -> *Infinity*       1 exp 99 * 9 = -> 9. 99
        9.4 exp 99 = -> 9.4 99              1 exp 99 pm / 10 = -> 0.
        1 exp 60 pm sqr -> 0.
        1 exp 60 pm sqr StdButton -> 1.-20 (The number is 1E-120: only two digits of its exponent are shown)
        1 exp 60 sqr -> *Infinity*
        123456789012345 exp 99 FxnButton -> 1.23456789012345 13 (The number is 1.23456789012345E+113: only two digits of its exponent are shown)
        9.999 exp 99 ScnButton -> 1.00 00 (The number is 9.999E+99: only two digits of its exponent are shown)
        9.999 exp 99 ScnButton StdButton -> 9.999 99
        ScnButton 9.999 exp 99 sqrt sqr -> 1.00 00 (The number is 9.99899999999999E+99: only two digits of its exponent are shown)
        1 / 0 = 5 + ers C pm exp PI sin frc mo -> *Divide by Zero*
        1 / 0 = key_Dc key_PtoR key_EngR key_Time key_Mplus key_Del -> *Divide by Zero*
        1 / 0 = FxnButton GradButton -> *Divide by Zero*            1 / 0 = AC 5 + 3 = -> 8.
        5 frc 0 sqrt -> *Divide by Zero*
    )");
}

TEST(CalcPanel, Functions) {
    Expect_Panels(R"(
        3 pm cube -> -27.       8 pm cubt -> -2.        2 sqrt -> 1.4142135623731
        1 pm sqrt -> *Error*    0 rcp -> *Error*        0 fact -> 1.
        2.5 fact -> *Error*     2.5 pm fact -> *Error*              1 pm fact -> *Out of Range*
        69 fact -> 1.71122452428141 98      70 fact -> *Infinity*   171 fact -> *Infinity*
        999999999999999 fact -> *Infinity*              0 log -> *Out of Range*
        0 ln -> *Out of Range*              1 pm ln -> *Out of Range*           2 pm alog -> 0.01
        200 alog -> *Infinity*              400 alog -> *Error*     1 aln ln -> 1.
        800 aln -> *Undefined*              1000 sinh -> *Undefined*
        1000 cosh -> *Undefined*            1000 tanh -> 1.         1000 pm tanh -> -1.
        0.5 icosh -> *Error*    1 itanh -> *Undefined*              1 pm itanh -> *Undefined*
        2 + 3 sqr * 2 = -> 20.              3 sqr 5 -> 5.
    )");
}

TEST(CalcPanel, Angles) {
    Expect_Panels(R"(
        180 sin -> 0.           360 sin -> 0.           90 cos -> 0.            270 cos -> 0.
        90 tan -> *Out of Range*            270 tan -> *Out of Range*
        450 tan -> *Out of Range*           90 pm tan -> *Out of Range*
        90.00000000001 tan -> -5783304834254.39         0 iCos tan -> -6.21843116382374 15
        180 tan -> 0.           1 iSin -> 90.           1 pm iSin -> -90.
        2 iSin -> *Undefined*   1 iCos -> 0.
        # pi of 15 digits, and no snapping downward
        0 iCos -> 90.0000000000001
        1.1 iCos -> *Undefined*             RadButton 3.14159265358979 sin -> 0.
        RadButton PI cos -> -1.             RadButton 1.5707963267949 tan -> *Out of Range*
        RadButton 1 pm iCos -> 3.14159265358979         GradButton 100 sin -> 1.
        GradButton 100 cos -> 0.            GradButton 50 tan -> 1.
        # all digits are right, where a processor's own cosine has six or seven
        RadButton 10.9955742875643 cos -> 2.44403693719019-14
        RadButton 1.5707963267949 pm cos -> -3.2694367339181-15
    )");
}

TEST(CalcPanel, SexagesimalAndPolar) {
    Expect_Panels(R"(
        12 sexa 30 sexa 36 sexa -> 12.51    12 sexa 30 sexa 36 sexa 5 sexa -> 5.
        12 sexa + 30 sexa -> 30.            12 sexa 3 ers 30 sexa -> 30.
        12 sexa key_Min 30 sexa -> 30.      12 sexa 7.5 sexa -> 12.125
        1 frc 2 sexa -> 0.5     30.2528 asex -> 30°15'10.08"        390 asex -> 30°0'0".
        30.25 pm asex -> -30°15'0".
        # loses its sign
        0.5 pm asex -> 0°30'0". (The angle is negative)
        123.456789 pm asex -> -123.456789   30.25 asex + 1 = -> 31.25
        2 + 30.25 asex = -> 32.25           3 key_PtoR 0 = -> 3.    3 key_PtoR 0 = x-y -> 0.
        2 key_PtoR 30 = x-y -> 1.           3 key_RtoP 4 = x-y -> 53.130102354156
        # the angle still waits
        3 key_PtoR 900 sqrt = + 1 = -> 31. (By operator priority: 3.59807621135332)
        # no quadrant
        3 pm key_RtoP 4 pm = x-y -> 53.130102354156
        3 pm key_RtoP 4 = -> 5. (The angle (x-y) is half a turn off: x is negative)
        3 key_RtoP 4 = AC 6 key_RtoP 8 = -> 10.         3 key_RtoP 4 = 6 key_RtoP 8 = -> 10.
        # only a fresh calculation has a second result
        3 key_RtoP 4 = 6 key_RtoP 8 = x-y -> 0.
        3 key_PtoR key_PtoR 0 = -> 3.       3 key_RtoP key_PtoR 4 = -> 5.
        1 + 3 key_RtoP 4 = -> 6.            3 key_RtoP 4 + 1 = -> 6.
        1 frc 2 key_RtoP 0 = -> 0.5         0 key_RtoP 5 = -> *Error*
        2 + 0 key_RtoP 5 = -> 7.
    )");
}

TEST(CalcPanel, Fractions) {
    Expect_Panels(R"(
        1 frc -> 1/.            1 frc 2 frc 3 -> 1 2/3.
        1 frc 2 frc 3 = -> 1.66666666666667             1 frc 2 frc 3 frc 4 -> 1 2/34.
        1 frc frc 2 -> 1/2.     1 frc 2 pm -> -1/2.     1 frc 2 frc 3 pm = -> -1.66666666666667
        5 pm frc 4 = -> -1.25   1 frc 2 + 1 frc 3 = -> 0.83333333333333
        5 frc 0 = -> *Divide by Zero*       5 frc = -> *Divide by Zero*
        1 frc 2 frc = -> *Divide by Zero*   2.5 frc 3 -> 2.53       frc 3 -> 3.
        0 frc 3 -> 3.           1 exp 5 frc 3 -> 1. 53              1 frc 2 dot 5 -> 1/25.
        1 frc 2 exp 5 -> 1/25.
        # "C" keys a zero into the fraction
        1 frc 2 C -> 1/20.
        FxnButton 1 frc 2 C 5 -> 1/205.     FxnButton 1 frc PI = -> 0.32
        12 frc 5 ers -> 12/.    12 frc 5 ers ers -> 12.             12 frc 5 ers ers 3 -> 123.
        12 pm frc ers exp -> -12. 00        1 frc ers -> 0.         1 frc 2 ers ers 7 -> 7.
        1 frc 2 pm ers ers -> 0.            1 frc 2 FxnButton -> 1/2.           1 frc 2 mo -> 0.
        1 frc 3 key_Min 5 -> 5.             0.333333333333333 key_Dc -> 1/3.
        0.142857142857142 key_Dc -> 1/7.    12.3333333333333 key_Dc -> 12 1/3.
        2.5 key_Dc key_Dc -> 5/2.           2.5 key_Dc key_Dc key_Dc -> 2 1/2.
        2.5 pm key_Dc key_Dc -> -5/2.       2.5 key_Dc + 1 = -> 3.5
        1234567890.5 key_Dc -> 1234567890 1/2.
        # 2469135781/2 is beyond the divisor
        1234567890.5 key_Dc key_Dc -> 1234567890 1/2.
        17 key_Dc -> 17.        1.0000000000001 key_Dc -> 1.0000000000001
        0.1234567891 key_Dc -> 0.1234567891             1 / 30 = key_Dc -> 3.33333333333333-02
        6 frc 4 key_Dc -> 3/2.              6 frc 6 key_Dc -> 1.    3 pm frc 3 key_Dc -> -1.
        1 frc 6 frc 4 key_Dc key_Dc -> 5/2.             1 frc 4 frc 4 key_Dc -> 2.
        5 frc key_Dc -> 5/.
    )");
}

TEST(CalcPanel, DisplayModes) {
    Expect_Panels(R"(
        FxnButton 1 / 3 = -> 0.33           FxnButton 1 / 3 = * 3 = -> 1.00
        FxnButton 2 rcp + 2 rcp sqr = -> 0.75           FxnButton 12.3456 -> 12.3456
        12.3456 FxnButton 7 -> 12.34567     1.005 FxnButton -> 1.01
        FxnButton 1 exp 20 = -> 1. 20       ScnButton 1500 = -> 1.50 03
        ScnButton 0.015 = -> 1.50-02        ScnButton 0.015 = StdButton -> 0.015
        ScnButton 9.999 = -> 1.00 01        1 exp 15 pm = -> 1.-15
        0 + 0.00000000000001 = -> 0.00000000000001      1 exp 14 = -> 100000000000000.
        1 exp 15 = -> 1. 15     1.5 exp 7 key_EngR key_EngL -> 1.5 07
        1.5 exp 7 pm key_EngR -> 1500.-10   12.50 key_EngR -> 12.5 00
        FxnButton 20 alog key_EngR -> 1000. 17
        # every digit, where the display cut one
        1 / 3 = key_EngR key_EngR -> 333.333333333333-03
        5 cos key_EngR key_EngR -> 996.194698091746-03
        12.5 pm key_EngR key_EngR -> -12500.-03         12.5 key_EngR key_EngR + 1 = -> 13.5
        0 key_EngR -> 0.        1 exp 99 key_EngL -> 1. 99
        123456789012345 exp 3 key_EngR -> 123456789012345. 03
        30.25 asex key_EngR -> 30.25 00     1 frc 4 key_EngL -> 0.25 00
    )");
}

TEST(CalcPanel, MemoryAndStatistics) {
    Expect_Panels(R"(
        5 key_Min + mo = -> 10.             1 / 4 = key_Min 7 * mo = -> 1.75
        # the 12 waits
        2 + 12 key_Min = + 1 = -> 13. (By operator priority: 15)
        2 + 12 key_Min = mo + 1 = -> 13.    12 key_Min 5 -> 125.    1 frc 4 key_Min AC mo -> 0.25
        7 + 1 / 0 = key_Min AC mo -> 0.     dtn -> *Empty Data*     2 data 4 data AC dts -> 6.
        2 data 4 data 4 data 4 data 5 data 5 data 7 data 9 data ave -> 5.
        2 data 4 data 4 data 4 data 5 data 5 data 7 data 9 data strd0 -> 2.
        2 data 4 data 4 data 4 data 5 data 5 data 7 data 9 data strd1 -> 2.1380899352994
        # a sum of zero
        1 data 1 pm data strd0 -> *Error*
        5 data strd1 -> *Error*             5 data strd0 -> 0.      2 + 12 data -> 12.
        2 + 12 data 5 -> 5.     2 + 12 data = -> 14.    12 exp 2 data 5 -> 5.
        1 frc 4 data dts -> 0.25            5 frc 0 data AC dtn -> *Empty Data*
    )");
}

TEST(CalcPanel, WhatWaits) {
    Expect_Each(R"(
        5 ->        5 + 3 * 7 -> 5 + 3 ×    5 + 3 * 7 = ->          5 + 3 * - -> 5 + 3 −
        1 / 4 xy 2 root -> 1 ÷ 4 ^ 2 root   1 + 2 + 3 + 4 + 5 + 6 + -> … 2 + 3 + 4 + 5 + 6 +
        4 * * -> K × 4          4 * * 3 = -> K × 4      8 data 9 data -> n = 2   8 data 9 ->
        2 key_PtoR 3 -> r = 2, angle?       3 key_RtoP -> x = 3, y?             3 key_RtoP 4 = ->
        12 sexa -> 12°0'0", minutes?        12 sexa 30 sexa -> 12°30'0", seconds?
        12 sexa 30 sexa 36 sexa ->          2 + 1 / 0 = ->
    )",
                [](const std::string& keys) { return Waiting_Text(CalcTest().Keys(keys).Form); });
}

TEST(CalcPanel, ResultsAreKeptWithTheirChains) {
    Expect_Each(R"(
        5 + 3 * 7 = -> 5 + 3 × 7 = 26       1 / 3 = -> 1 ÷ 3 = 0.333333333333333
        1 + 3 xy 2 * 4 = -> 1 + 3 ^ 2 × 4 = 40  (By operator priority: 37)
        2 / / 3 = -> 3 ÷ 2 = 1.5            2 + 3 = * 4 = -> 5 × 4 = 20
        5 = ->      5 + 1 / 0 = ->
        2 - 3 x-y = -> 3 − 2 = 1    2 - 3 x-y x-y = -> 2 − 3 = -1       2 + 3 * 4 x-y = ->
        3 key_PtoR 0 = x-y + 1 = -> 0 + 1 = 1
    )",
                [](const std::string& keys) {
                    CalcTest calc;
                    const std::vector<CalcResult>& results = calc.Keys(keys).Vars.Results;
                    return results.empty() ? "" : Result_Text(results.front());
                });
    CalcTest many;
    for (int i = 0; i < 105; ++i)
        many.Keys("AC " + std::to_string(i) + " + 1 =");
    EXPECT_EQ(many.Vars.Results.size(), 100u);
    EXPECT_EQ(many.Vars.Results.front().Value, 105);
    EXPECT_EQ(many.Vars.Results.back().Value, 6);
}

TEST(CalcPanel, IndicatorsAndPrecisionFollowTheButtons) {
    constexpr int same = -1;
    const std::tuple<const char*, int, const char*> steps[] = {
        // the precision behind the keys
        {"", same, "0. NORM DEGREE"},
        {"12.7 FxnButton", same, "12.70 FIX DEGREE 2"},
        {"", 0, "13. FIX DEGREE 0"},
        {"+ 1 =", same, "14. FIX DEGREE 0"},
        {"2 sqrt", same, "1. FIX DEGREE 0"},
        {"ScnButton", same, "1.41 00 SCI DEGREE 2"},
        {"1499 sqrt sqr", 0, "1. 03 SCI DEGREE 0"},
        {"", 14, "1.49900000000000 03 SCI DEGREE 14"},
        {"StdButton RadButton", same, "1499. NORM RADIAN"},
        {"FxnButton GradButton", same, "1499. FIX GRADIAN 0"},
        {"5 key_Min", same, "5. FIX GRADIAN 0 MEM"},
        {"AC key_Min", same, "0. FIX GRADIAN 0"},
    };
    CalcTest calc;
    const CalcPanel& panel = calc.Form.Panel;
    for (const auto& [keys, precision, expected] : steps) {
        calc.Keys(keys);
        if (precision != same)
            PrecBox_Change(calc.Form, precision);
        EXPECT_EQ(panel.PrecEnabled, panel.PrecIndex != -1) << expected;
        std::string text = calc.Shown() + " ";
        text.append(Indicator_Text(panel.DispMode_Indicator)).append(" ");
        text.append(Indicator_Text(panel.Mode_Indicator));
        text += panel.PrecEnabled ? " " + std::to_string(panel.PrecIndex) : "";
        EXPECT_EQ(text + (panel.Mem_Indicator.empty() ? "" : " ") + panel.Mem_Indicator, expected);
    }
}

TEST(CalcPanel, ReopeningKeepsWhatWasThere) {
    const std::array<const char*, 4> cases[] = {
        {"2 + 12.50", "12.5", "=", "14.5"},
        {"12", "12.", "3", "123."},
        {"1.5 exp 7", "1.5 07", "1 =", "1.5 71"},
        {"1 frc 2", "1/2.", "=", "0.5"},
        {"FxnButton 1 / 3 =", "0.33", "* 3 =", "1.00"},
        {"2 * *", "2.", "3 =", "6."},
        {"1 / 0 =", "0.", "5 =", "5."},
        {"ScnButton 1500 RadButton", "1.50 03", "PI cos", "-1.00 00"},
    };
    for (const auto& [before, reopened, after, shown] : cases) {
        CalcTest calc;
        calc.Keys(before);
        Close(calc.Form);
        CalcMainFrm again{calc.Vars, {}, {}};
        Open(again);
        EXPECT_EQ(again.Panel.DisplayBox + again.Panel.ExpoBox, reopened) << before;
        EXPECT_EQ(again.Panel.CCalc_Indicator, "");
        EXPECT_EQ(again.Panel.DispMode_Indicator, calc.Form.Panel.DispMode_Indicator);
        EXPECT_EQ(again.Panel.Mode_Indicator, calc.Form.Panel.Mode_Indicator);
        EXPECT_EQ(again.Panel.PrecIndex, calc.Form.Panel.PrecIndex);
        calc.Form.Panel = again.Panel;
        EXPECT_EQ(calc.Keys(after).Shown(), shown) << before;
    }
}
