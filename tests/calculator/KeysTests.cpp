// The ways in besides the keys themselves: keyboard, clipboard, clock, help.
#include "calculator/CalcDisplay.h"
#include "calculator/CalcFunctions.h"
#include "calculator/CalcHelpModule.h"
#include "calculator/CalcMemory.h"
#include "calculator/CalcTestSupport.h"
#include "calculator/CalcText.h"

#include <gtest/gtest.h>

#include <set>

using namespace Tensarix;

TEST(CalcKeyTable, NamesAndTypedCharactersAreUnique) {
    std::set<std::string_view> names;
    std::set<char> typed;
    for (const CalcKey& key : CalcKeys()) {
        EXPECT_TRUE(names.insert(key.Name).second) << key.Name;
        for (const char c : key.Typed)
            EXPECT_TRUE(typed.insert(c).second) << key.Name;
        EXPECT_NE(key.Token.empty(), key.Direct == nullptr) << key.Name;
        EXPECT_NE(key.Caption, "") << key.Name;
    }
    EXPECT_EQ(names.size(), 83u);
}

// Every token of the table does something on a calculator with an entry.
TEST(CalcKeyTable, EveryTokenIsKnown) {
    for (const CalcKey& key : CalcKeys()) {
        if (key.Token.empty() || Find_Function(key.Token))
            continue;
        CalcTest calc;
        calc.Keys("15 exp 2");
        const std::string before = calc.Shown();
        calc.Vars.Entry.ExponentEntry = key.Token != "PI" && key.Token != "exp";
        calc.Keys(std::string{key.Name});
        const bool changed = calc.Shown() != before || !calc.Vars.Pending.Op1.empty() ||
                             calc.Vars.Entry.ExponentEntry || calc.Vars.Entry.EntryText.empty();
        EXPECT_TRUE(changed) << key.Name;
    }
}

TEST(CalcKeyboard, TypedCharactersPressKeys) {
    const struct {
        const char* Typed;
        const char* Shown;
    } cases[] = {
        {"12,5+2.5\r", "15."},
        {"2*3=", "6."},
        {"8/4\n", "2."},
        {"2^10=", "1024."},
        {"125\b", "12."},
        {"2+5\x1B"
         "4=",
         "6."},
        {"2+5\x7F=", "0."},
        {"p", "3.14159265358979"},
        {"1e5n", "1.-05"},
        {"5!", "120."},
        {"4i", "0.25"},
        {"1f4=", "0.25"},
        {"9r", "3."},
        {"30s", "0.5"},
    };
    for (const auto& c : cases) {
        CalcTest calc;
        for (const char* typed = c.Typed; *typed; ++typed) {
            const CalcKey* key = Key_For_Character(static_cast<unsigned char>(*typed));
            ASSERT_NE(key, nullptr) << c.Typed;
            Press(calc.Form, *key);
        }
        EXPECT_EQ(calc.Shown(), c.Shown) << c.Typed;
    }
    for (const char32_t typed : {U'\0', U'z', U'(', U' ', U'\xD7', U'\x20AC', U'\U00010031'})
        EXPECT_EQ(Key_For_Character(typed), nullptr);
}

TEST(CalcClipboard, CopiesTheDisplayAsAPlainNumber) {
    const struct {
        const char* Keys;
        const char* Copied;
    } cases[] = {
        {"", "0"},
        {"12", "12"},
        {"12.50 pm", "-12.50"},
        {"1.5 exp 7 pm", "1.5E-07"},
        {"ScnButton 1500 =", "1.50E+03"},
        {"FxnButton 1 / 3 =", "0.33"},
        {"2.5 key_Dc", "2.5"},
        {"30.25 asex", "30.25"},
        {"1 / 0 =", ""},
    };
    for (const auto& c : cases) {
        CalcTest calc;
        calc.Keys(c.Keys);
        EXPECT_EQ(Display_As_Number(calc.Form), c.Copied) << c.Keys;
    }
}

TEST(CalcClipboard, TakesANumberAsIfKeyed) {
    const struct {
        const char* Text;
        const char* Shown;
    } cases[] = {
        {"12.50", "12.50"},
        {"  +12 ", "12."},
        {"-0.05", "-0.05"},
        {".5", "0.5"},
        {"0", "0."},
        {"-0", "0."},
        {"1e5", "1. 05"},
        {"1.5E-07", "1.5-07"},
        {"-2E5", "-2. 05"},
        {"-0.05e3", "-5. 01"},
        {"-0e5", "0."},
        {"1E+099", "1. 99"},
        {"3.14159265358979323846", "3.14159265358979"},
        {"1234567890123456", "1.23456789012346 15"},
        {"-1234567890123456", "-1.23456789012346 15"},
        {"0.0000000000000123", "1.23-14"},
    };
    for (const auto& c : cases) {
        CalcTest calc;
        calc.Keys("2 + 77 exp 3");
        EXPECT_TRUE(Key_In_Number(calc.Form, c.Text)) << c.Text;
        EXPECT_EQ(calc.Shown(), c.Shown) << c.Text;
        CalcTest sum;
        sum.Keys("2 + 1 frc 3");
        Key_In_Number(sum.Form, c.Text);
        sum.Keys("- 2 =");
        calc.Keys("- 2 =");
        EXPECT_EQ(calc.Shown(), sum.Shown()) << c.Text;
    }
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

namespace {

CalcTime At(int hours, int minutes, int seconds) {
    using namespace std::chrono;
    return local_days{year{2026} / January / 5} + std::chrono::hours{hours} +
           std::chrono::minutes{minutes} + std::chrono::seconds{seconds};
}

} // namespace

TEST(CalcClock, RunsUntilAKeyAndTheNumberReturns) {
    const struct {
        CalcTime Now;
        const char* Time;
    } times[] = {{At(0, 4, 9), "12:04:09 AM"},
                 {At(11, 59, 59), "11:59:59 AM"},
                 {At(12, 0, 0), "12:00:00 PM"},
                 {At(23, 5, 7), "11:05:07 PM"}};
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

TEST(CalcClock, KeysThatEndItAndGoOn) {
    CalcTest calc;
    calc.Form.Host.Now = [] { return At(1, 2, 3); };
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
        {At(12, 0, 0), "0.008"},                                    // "46027.5": 7.5 / 1000
        {At(12, 0, 0) + std::chrono::microseconds{8640}, "0.001"},  // 46027.5000001
        {At(12, 0, 0) + std::chrono::microseconds{10675}, "0.236"}, // 46027.5000001236
    };
    for (const auto& c : cases)
        for (const char* mode : {"StdButton", "ScnButton", "FxnButton"}) {
            CalcTest calc;
            calc.Form.Host.Now = [&] { return c.Now; };
            EXPECT_EQ(calc.Keys(std::string{mode} + " 2 + 1 frc 3 rand").Shown(), c.Shown);
        }
}

TEST(CalcText, DigitRules) {
    const struct {
        const char* Text;
        const char* Fit;
        const char* Trimmed;
    } cases[] = {
        {"12", "12.", "12"},
        {"12.50", "12.5", "12.50"},
        {"-0.333333333333333", "-0.33333333333333", "-0.33333333333333"},
        {"123456789012.3456", "123456789012.346", "123456789012.346"},
        {"1234.50000000000000", "1234.5", "1234.5"},
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

TEST(CalcText, Snapping) {
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
    EXPECT_EQ(help.MenuBox.front(), "Overview");
    EXPECT_EQ(help.MenuBox.back(), "About the Author");
    EXPECT_EQ(help.HBox, "Select a menu option to see a brief description.");
    EXPECT_EQ(HelpTopic(8).Title + HelpTopic(19).Body + HelpTopic(21).Title + HelpTopic(0).Body,
              "");

    help.Select_Row(6);
    EXPECT_NE(spoken.back().find("a.) 'x TO THE POWER y'    - Power key::::"), std::string::npos);
    EXPECT_NE(spoken.back().find("d.) SLASH      - Division key:"), std::string::npos);
    EXPECT_NE(spoken.back().find("f.)  DASH       - Subtraction key:"), std::string::npos);
    EXPECT_NE(spoken.back().find("to the 1 OVER y power."), std::string::npos);
    EXPECT_NE(spoken.back().find("Press  EQUAL  to display"), std::string::npos);
    EXPECT_EQ(spoken.back().find('\n'), std::string::npos);
    EXPECT_NE(help.HBox.find("Press '=' to display the final result.\r\n"), std::string::npos);
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
