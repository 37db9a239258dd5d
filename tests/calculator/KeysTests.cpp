// The table of all keys, and the ways in besides them: keyboard, clipboard, clock, help.
#include "Kept.h"
#include "calculator/CalcHelpModule.h"
#include "calculator/CalcNumbers.h"
#include "calculator/CalcTestSupport.h"

#include <gtest/gtest.h>

using namespace Tensarix;

namespace {

CalcTime Time_Of_Day(int hours, int minutes, int seconds) {
    using namespace std::chrono;
    return local_days{year{2026} / January / 5} + std::chrono::hours{hours} +
           std::chrono::minutes{minutes} + std::chrono::seconds{seconds};
}

// The keys of CalcMainFrm as the user meets them, one row a key: its name, caption, tool tip, the
// characters that press it, and what the panel shows after a line of keys with this one by name.
const struct KeyRow {
    const char *Name, *Caption, *ToolTip, *Typed;
    const char *Before, *After; // keyed before it and behind it
    const char* Shown;          // what opened, and the panel
} rows[] = {
    {"key_7", "7", "Numeral 7", "7", "1", "", "17."},
    {"key_8", "8", "Numeral 8", "8", "1", "", "18."},
    {"key_9", "9", "Numeral 9", "9", "1", "", "19."},
    {"key_Ers", "Back", "Erase Input", "\b", "123", "", "12."},
    {"key_C", "C", "Cancel Input", "\x1B", "2 + 3", "4 =", "6."},
    {"key_AC", "AC", "Clear Calculation", "\x7F", "2 + 3", "4 =", "4."},
    {"key_4", "4", "Numeral 4", "4", "1", "", "14."},
    {"key_5", "5", "Numeral 5", "5", "1", "", "15."},
    {"key_6", "6", "Numeral 6", "6", "1", "", "16."},
    {"key_multiply", "×", "Multiply", "*x", "8", "2 =", "16."},
    {"key_divide", "÷", "Divide", "/", "8", "2 =", "4."},
    {"key_PI", "PI", "Constant PI", "pP", "", "", "3.14159265358979"},
    {"key_1", "1", "Numeral One", "1", "1", "", "11."},
    {"key_2", "2", "Numeral Two", "2", "1", "", "12."},
    {"key_3", "3", "Numeral Three", "3", "1", "", "13."},
    {"key_plus", "+", "Plus", "+", "8", "2 =", "10."},
    {"key_minus", "−", "Minus", "-", "8", "2 =", "6."},
    {"key_Frc", "ab/c", "Fraction Input", "f", "1", "2", "1/2."},
    {"key_0", "0", "Numeral Zero", "0", "1", "", "10."},
    {"key_dot", ".", "Decimal Point", ".,", "1", "5", "1.5"},
    {"key_PM", "±", "Toogle Number Sign", "n_", "12", "", "-12."},
    {"key_exp", "EXP", "Exponent", "eE", "12", "3", "12. 03"},
    {"key_equal", "=", "Equals", "=\r\n", "1 + 2", "", "3."},
    {"HelpButton", "Help", "", "?", "5", "", "Help|5."},
    {"ExitButton", "Exit", "", "", "5", "", "Exit|5."},

    {"key_Sqr", "x²", "Square", "", "3", "", "9."},
    {"key_Sqrt", "√x", "Square Root", "r", "9", "", "3."},
    {"key_Cube", "x³", "Cube", "", "3", "", "27."},
    {"key_Cubt", "³√x", "Cube Root", "", "8", "", "2."},
    {"key_Xy", "xʸ", "Raise to the Power", "^", "2", "5 =", "32."},
    {"key_Root", "Root", "Root Extractor", "", "32", "5 =", "2."},
    {"key_Log", "Log", "Logarithm", "", "1000", "", "3."},
    {"key_aLog", "aLog", "Anti-Logarithm", "", "2", "", "100."},
    {"key_Ln", "Ln", "Natural Logarithm", "", "2", "", "0.69314718055995"},
    {"key_aLn", "aLn", "Anti-Natural Logarithm", "", "2", "", "7.38905609893065"},
    {"key_Rcp", "1/x", "Reciprocal", "i", "8", "", "0.125"},
    {"key_Fact", "n!", "Factorial", "!", "5", "", "120."},
    {"key_Dc", "d/c", "Fraction Converter", "", "0.125", "", "1/8."},
    {"key_XtoY", "x↔y", "Input Swap", "", "2 - 3", "=", "1."},
    {"com_Random", "Rnd#", "Random number generator", "", "", "", "0.008"},
    {"key_Cnst", "Cnst", "Scientific Constant", "", "2 * 5 frc 7", "=",
     "Scientific Constant|58000."},

    {"key_Sin", "Sin", "Sine", "s", "30", "", "0.5"},
    {"key_Cos", "Cos", "Cosine", "c", "60", "", "0.5"},
    {"key_Tan", "Tan", "Tangent", "t", "45", "", "1."},
    {"key_iSin", "iSin", "Inverse Sine", "S", "0.5", "", "30."},
    {"key_iCos", "iCos", "Inverse Cosine", "C", "1 pm", "", "180."},
    {"key_iTan", "iTan", "Inverse Tangent", "T", "1", "", "45."},
    {"key_Sinh", "Sinh", "Hyperbolic Sine", "", "1", "", "1.1752011936438"},
    {"key_Cosh", "Cosh", "Hyperbolic Cosine", "", "1", "", "1.54308063481524"},
    {"key_Tanh", "Tanh", "Hyperbolic Tangent", "", "1", "", "0.76159415595577"},
    {"key_ArcSinh", "iSinh", "Inverse Hyperbolic Sine", "", "2", "", "1.44363547517881"},
    {"key_ArcCosh", "iCosh", "Inverse Hyperbolic Cosine", "", "2", "", "1.31695789692482"},
    {"key_ArcTanh", "iTanh", "Inverse Hyperbolic Tangent", "", "0.5", "", "0.54930614433406"},
    {"key_Sexa", "Sexa", "Angle Input", "'", "12 key_Sexa 30", "", "12.5"},
    {"key_Asex", "Asex", "Angular Display", "\"", "12.51", "", "12°30'36\"."},
    {"key_PtoR", "P→R", "Polar to Rectangular", "", "2", "60 =", "1."},
    {"key_RtoP", "R→P", "Rectangular to Polar", "", "3", "4 =", "5."},

    {"key_Min", "Min", "Memory Inut", "", "5", "", "5. MEM"},
    {"key_Mr", "MR", "Memory Recall", "m", "5 key_Min 7", "", "5. MEM"},
    {"key_Kin", "Kin", "Memory In", "", "5", "", "Memory IN|5. R5"},
    {"key_Kout", "Kout", "Memory Recall", "", "5 key_Kin 7", "", "Memory RECALL|5. R5"},
    {"key_Mplus", "M+", "Memory Plus", "", "5", "", "Memory ADD|5. R5"},
    {"key_Mminus", "M−", "Memory Minus", "", "5", "", "Memory MINUS|5. R-5"},
    {"key_Data", "Data", "Add data", "", "5", "", "5. D1"},
    {"key_Del", "Del", "Delete data", "", "5 data 6 data", "", "Data|6. D1"},
    {"key_Dtn", "Cnt", "Data count", "", "5 data 7 data", "", "2. D2"},
    {"key_Ave", "Mean", "Data mean", "", "5 data 7 data", "", "6. D2"},
    {"key_XtoK", "x↔K", "Memory Swap", "", "5 key_Kin 7", "", "Memory SWAP|5. R57"},
    {"key_KAC", "KAC", "Memory Delete", "", "5 key_Kin", "", "Memory DELETE|5."},
    {"key_Dts", "Sx", "Sum of data", "", "5 data 7 data", "", "12. D2"},
    {"key_Sqr1", "Sx1", "Sum of data raise to the power 2", "", "5 data 7 data", "", "144. D2"},
    {"key_Sqr2", "Sx2", "Sum of square of data", "", "5 data 7 data", "", "74. D2"},
    {"key_Strd0", "Sdx", "Population standard deviaton", "", "5 data 7 data", "", "1. D2"},
    {"key_Strd1", "Sdxn", "Sample standard deviation", "", "5 data 7 data", "",
     "1.4142135623731 D2"},

    {"StdButton", "Normal Mode", "", "", "FxnButton 5", "", "5."},
    {"FxnButton", "Fixed Mode", "", "", "5", "", "5.00 FIX"},
    {"ScnButton", "Scientific Mode", "", "", "5", "", "5.00 00 SCI"},
    {"DegButton", "Degree Mode", "", "", "RadButton 30", "sin", "0.5"},
    {"RadButton", "Radian Mode", "", "", "1", "iTan", "0.78539816339745 RADIAN"},
    {"GradButton", "Gradian Mode", "", "", "1", "iTan", "50. GRADIAN"},
    {"key_EngL", "Eng-", "", "", "12.5 exp 7", "", "0.0125 10"},
    {"key_EngR", "-Eng", "", "", "12.5 exp 7", "", "12500. 04"},
    {"key_Time", "Time", "Display CLock", "", "5", "", "MONDAY, JAN 05, 2026|12:00:00 PM"},
};

struct KeyTest : DialogTest {
    KeyTest() {
        Form.Host.Now = [] { return Time_Of_Day(12, 0, 0); };
        Form.Host.Yield = [this] {
            Opened = Form.Panel.DateBox;
            return false;
        };
    }

    // What opened last, the panel with whatever is not at rest in it, the first register, the data.
    std::string Seen() const {
        const CalcPanel& panel = Form.Panel;
        std::string text = (Opened.empty() ? "" : Opened + "|") + Shown();
        for (const std::string_view mode :
             {Indicator_Text(panel.DispMode_Indicator), Indicator_Text(panel.Mode_Indicator)})
            if (mode != "NORM" && mode != "DEGREE")
                text.append(" ").append(mode);
        text += (panel.Mem_Indicator.empty() ? "" : " ") + panel.Mem_Indicator;
        if (const double value = Vars.Memory.Registers[0].Value; value != 0)
            text += " R" + Number_Text(value);
        if (const auto& data = Vars.Statistics.DataList; !data.empty())
            text += " D" + std::to_string(data.size());
        return text;
    }
};

} // namespace

TEST(CalcKeyTable, EveryKeyDoesWhatItSays) {
    ASSERT_EQ(Calc_Keys().size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const KeyRow& row = rows[i];
        const CalcKey& key = Calc_Keys()[i];
        EXPECT_EQ(key.Name, row.Name);
        EXPECT_EQ(key.Caption, row.Caption);
        EXPECT_EQ(key.ToolTip, row.ToolTip);
        EXPECT_EQ(key.Typed, row.Typed);
        EXPECT_EQ(key.Token.empty(), key.Direct != nullptr);
        for (const char c : key.Typed)
            EXPECT_EQ(Key_For_Character(static_cast<unsigned char>(c)), &key) << row.Name;
        KeyTest calc;
        calc.Keys(std::string{row.Before} + " " + row.Name + " " + row.After);
        EXPECT_EQ(calc.Seen(), row.Shown) << row.Name;
    }
    for (const char32_t typed : {U'\0', U'z', U'(', U' ', U'\xD7', U'\x20AC', U'\U00010031'})
        EXPECT_EQ(Key_For_Character(typed), nullptr);
}

TEST(CalcClipboard, CopiesTheDisplayAsAPlainNumber) {
    Expect_Each(R"(
        -> 0        12 -> 12    12.50 pm -> -12.50      1.5 exp 7 pm -> 1.5E-07
        ScnButton 1500 = -> 1.50E+03        FxnButton 1 / 3 = -> 0.33           2.5 key_Dc -> 2.5
        30.25 asex -> 30.25     1 / 0 = ->
    )",
                [](const std::string& keys) {
                    CalcTest calc;
                    return Display_As_Number(calc.Keys(keys).Form);
                });
}

TEST(CalcClipboard, TakesANumberAsIfKeyed) {
    Expect_Each(R"(
        12.50 -> 12.50          +12 -> 12.   -0.05 -> -0.05          .5 -> 0.5   0 -> 0.   -0 -> 0.
        1e5 -> 1. 05            1.5E-07 -> 1.5-07       -2E5 -> -2. 05          -0.05e3 -> -5. 01
        -0e5 -> 0.   1E+099 -> 1. 99         3.14159265358979323846 -> 3.14159265358979
        1234567890123456 -> 1.23456789012346 15
        -1234567890123456 -> -1.23456789012346 15       0.0000000000000123 -> 1.23-14
    )",
                [](const std::string& text) {
                    CalcTest calc, sum;
                    calc.Keys("2 + 77 exp 3");
                    EXPECT_TRUE(Key_In_Number(calc.Form, " " + text)) << text;
                    std::string shown = calc.Shown();
                    sum.Keys("2 + 1 frc 3");
                    Key_In_Number(sum.Form, text);
                    EXPECT_EQ(calc.Keys("- 2 =").Shown(), sum.Keys("- 2 =").Shown()) << text;
                    return shown;
                });
}

TEST(CalcClipboard, RefusesEverythingElseWithoutATrace) {
    for (const char* text : {"", " ", "12x", "1,234", "1 2", "--5", "1E100", "1E-100", "1E999",
                             "-0.05E-99", "nan", "inf", "0x10", "12'-6\"", "*Error*"}) {
        CalcTest calc;
        calc.Keys("2 + 3");
        EXPECT_FALSE(Key_In_Number(calc.Form, text)) << text;
        EXPECT_EQ(calc.Shown(), "3.") << text;
        EXPECT_EQ(calc.Keys("4 =").Shown(), "36.") << text;
    }
    CalcTest latched;
    latched.Keys("1 / 0 =");
    EXPECT_FALSE(Key_In_Number(latched.Form, "5"));
    EXPECT_EQ(latched.Shown(), "*Divide by Zero*");
}

TEST(CalcClock, RunsUntilAKeyAndTheNumberReturns) {
    const struct {
        CalcTime Now;
        const char* Time;
    } times[] = {{Time_Of_Day(0, 4, 9), "12:04:09 AM"},
                 {Time_Of_Day(11, 59, 59), "11:59:59 AM"},
                 {Time_Of_Day(12, 0, 0), "12:00:00 PM"},
                 {Time_Of_Day(23, 5, 7), "11:05:07 PM"}};
    for (const auto& time : times)
        for (const char* key : {"5", "key_Time", "key_Kout", "AC", "key_EngR", "key_Mplus", "sin",
                                "key_PtoR", "key_Dc", "HelpButton", "DegButton"}) {
            CalcTest calc;
            calc.Keys("1.5 exp 7 +");
            calc.Form.Host.Now = [&] { return time.Now; };
            int turns = 0;
            calc.Form.Host.Yield = [&] {
                EXPECT_EQ(calc.Shown(), time.Time);
                EXPECT_EQ(calc.Form.Panel.DateBox, "MONDAY, JAN 05, 2026");
                EXPECT_EQ(Display_As_Number(calc.Form), "15000000");
                if (++turns == 3)
                    calc.Keys(key);
                return turns < 9;
            };
            calc.Keys("key_Time");
            EXPECT_EQ(turns, 3) << key;
            EXPECT_EQ(calc.Shown(), "15000000.") << key;
            EXPECT_EQ(calc.Form.Panel.DateBox, "");
            EXPECT_EQ(calc.Keys("1 =").Shown(), "15000001.") << key; // the key did nothing else
        }
}

TEST(CalcClock, DaysAndMonths) {
    std::string dates;
    CalcTest calc;
    calc.Form.Host.Yield = [&] {
        dates += calc.Form.Panel.DateBox.substr(0, calc.Form.Panel.DateBox.find(", 2")) + "; ";
        return false;
    };
    for (int month = 0; month < 12; ++month) {
        calc.Form.Host.Now = [month] { return Time_Of_Day(24 * 32 * month, 0, 0); };
        calc.Keys("key_Time");
    }
    EXPECT_EQ(dates, "MONDAY, JAN 05; FRIDAY, FEB 06; TUESDAY, MAR 10; SATURDAY, APR 11; "
                     "WEDNESDAY, MAY 13; SUNDAY, JUN 14; THURSDAY, JUL 16; MONDAY, AUG 17; "
                     "FRIDAY, SEP 18; TUESDAY, OCT 20; SATURDAY, NOV 21; WEDNESDAY, DEC 23; ");
}

TEST(CalcClock, KeysThatEndItAndGoOn) {
    CalcTest calc;
    calc.Form.Host.Now = [] { return Time_Of_Day(1, 2, 3); };
    const auto run = [&](const std::function<void()>& action) {
        int turns = 0;
        calc.Form.Host.Yield = [&] {
            action();
            return ++turns < 9;
        };
        calc.Keys("key_Time");
        EXPECT_EQ(calc.Form.Panel.DateBox, "");
        EXPECT_EQ(turns, 1);
    };
    calc.Keys("1 frc 4");
    run([&] { calc.Keys("key_Min"); });
    EXPECT_EQ(calc.Vars.Memory.MemValue, 0.25);
    run([&] { calc.Keys("FxnButton"); });
    EXPECT_EQ(calc.Shown(), "0.25");
    run([&] { EXPECT_TRUE(Key_In_Number(calc.Form, "12")); });
    EXPECT_EQ(calc.Shown(), "12.");
    run([&] { Close(calc.Form); });
    EXPECT_FALSE(calc.Vars.Display.ClockRunning);
    calc.Form.Host.Yield = [] { return false; }; // the program closes
    calc.Keys("key_Time");
    EXPECT_FALSE(calc.Vars.Display.ClockRunning);
}

TEST(CalcRandom, TakesTheLastDigitsOfTheDate) {
    // 46027.5 and the 10th decimal of a day: 15 digits of the serial number.
    const struct {
        CalcTime Now;
        const char* Shown;
    } cases[] = {
        {Time_Of_Day(12, 0, 0), "0.008"},                                   // "46027.5": 7.5 / 1000
        {Time_Of_Day(12, 0, 0) + std::chrono::microseconds{8640}, "0.001"}, // 46027.5000001
        {Time_Of_Day(12, 0, 0) + std::chrono::microseconds{10675}, "0.236"}, // 46027.5000001236
    };
    for (const auto& c : cases)
        for (const char* mode : {"StdButton", "ScnButton", "FxnButton"}) {
            CalcTest calc;
            calc.Form.Host.Now = [&] { return c.Now; };
            EXPECT_EQ(calc.Keys(std::string{mode} + " 2 + 1 frc 3 rand").Shown(), c.Shown);
        }
}

TEST(CalcNumbers, DigitRules) {
    const struct {
        const char *Text, *Fit, *Trimmed;
    } cases[] = {
        {"12", "12.", "12"},
        {"12.50", "12.5", "12.50"},
        {"-0.333333333333333", "-0.33333333333333", "-0.33333333333333"},
        {"123456789012.3456", "123456789012.346", "123456789012.346"},
        {"1234.50000000000000", "1234.5", "1234.5"},
        {"123456789012345.6", "123456789012346.", "123456789012346."},
        {"12345678901234567890", "12345678901234600000.", "1.23456789012346E+19"},
        {"1.5E+07", "1.5E+07", "1.5E+07"},
        {"1.234567890123456E+07", "1.23456789012346E+07", "1.23456789012346E+07"},
        {"1.234567890123456E-07", "1.23456789012346E-07", "1.234567890123456E-07"}, // "-" counts
        {"0.0000000000000012", "0.", "0."},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FitFifteen(c.Text), c.Fit) << c.Text;
        EXPECT_EQ(TrimFifteen(c.Text), c.Trimmed) << c.Text;
    }
    EXPECT_EQ(Number_Text(1e-15), "1E-15");
    EXPECT_EQ(Number_Text(-1.25e-14), "-1.25E-14");
    EXPECT_EQ(Number_Text(1e-14), "0.00000000000001");
    EXPECT_EQ(Number_Text(1.0 / 3), "0.333333333333333");
}

TEST(CalcNumbers, Snapping) {
    EXPECT_EQ(Snap14(2.999999999999997), 3);
    EXPECT_EQ(Snap14(-2.999999999999997), -3);
    EXPECT_EQ(Snap14(2.99999999999), 2.99999999999);
    EXPECT_EQ(Snap14(0.00000000000001), 0.00000000000001);
    EXPECT_EQ(Snap12(2.9999999999995), 3);
    EXPECT_EQ(Snap12(3.0000000000001), 3.0000000000001);
    EXPECT_EQ(SnapWhole(2.99999999999999), 3);
    EXPECT_EQ(SnapWhole(3.00000000000001), 3);
    EXPECT_EQ(SnapWhole(-3), -3);
    EXPECT_DOUBLE_EQ(SnapWhole(-2.5), 2.5); // loses its sign
    EXPECT_TRUE(IsWhole(3.00000000000001));
    EXPECT_FALSE(IsWhole(3.000000000001));
}

TEST(CalcHelp, TopicsSpeechAndMark) {
    std::vector<std::string> spoken;
    CalcHelpFrm help("1.0", true, [&](std::string_view text) { spoken.emplace_back(text); });
    ASSERT_EQ(help.MenuBox.size(), 8u);
    EXPECT_EQ(help.HBox, "Select a menu option to see a brief description.");
    EXPECT_EQ(HelpTopic(8).Title + HelpTopic(19).Body + HelpTopic(21).Title + HelpTopic(0).Body,
              "");

    std::string all;
    for (int row = 0; row < 8; ++row) {
        help.Select_Row(row);
        all += "== " + help.MenuBox[static_cast<std::size_t>(row)] + "\n" + help.HBox + "\n-- " +
               spoken.back() + "\n";
    }
    std::erase(all, '\r');
    Tests::Expect_As_Kept("calculator_help.txt", all);
    EXPECT_NE(help.HBox.find("\r\n"), std::string::npos);
    help.Select_Row(6);
    help.Voice_Word(60, 4);
    EXPECT_FALSE(help.Mark);

    // Every word of the overview is marked where it stands.
    help.Select_Row(0);
    EXPECT_EQ(spoken.back().substr(0, 14), "Overview :::: ");
    for (std::size_t at = 14; at < spoken.back().size(); at = spoken.back().find(' ', at) + 1) {
        const std::string word = spoken.back().substr(at, spoken.back().find(' ', at) - at);
        help.Voice_Word(static_cast<int>(at), static_cast<int>(word.size()));
        ASSERT_TRUE(help.Mark);
        EXPECT_EQ(help.HBox.substr(help.Mark->Start, help.Mark->Length), word);
        if (spoken.back().find(' ', at) == std::string::npos)
            break;
    }
    help.Mark.reset();
    help.Voice_Word(0, 8);
    EXPECT_FALSE(help.Mark);

    help.Select_Row(7);
    EXPECT_NE(help.HBox.find("1.0"), std::string::npos);
    help.ExitButton();
    EXPECT_EQ(spoken.back(), "");
    CalcHelpFrm silent("1.0", false, [&](std::string_view) { FAIL(); });
    silent.Select_Row(0);
    silent.ExitButton();
    EXPECT_TRUE(silent.Closed);
}
