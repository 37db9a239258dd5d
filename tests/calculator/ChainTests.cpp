// Generated calculations, all with fixed seeds: operator chains against plain evaluation by
// priority, and random keys that must leave the panel in one of its forms.
#include "Largest.h"
#include "calculator/CalcNumbers.h"
#include "calculator/CalcTestSupport.h"
#include "common/NumberText.h"

#include <cmath>
#include <random>
#include <regex>

using namespace Tensarix;

namespace {

using Random = std::mt19937;

int Pick(Random& random, int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

struct Chain {
    std::vector<double> Numbers;
    std::vector<std::string> Operators;

    void Add(Random& random, const std::string& op) {
        Operators.push_back(op);
        Numbers.push_back((11 + Pick(random, 20)) / 10.0);
    }

    std::string Keys() const {
        std::string keys = General_Text(Numbers[0]);
        for (std::size_t i = 0; i < Operators.size(); ++i)
            keys += " " + Operators[i] + " " + General_Text(Numbers[i + 1]);
        return keys + " =";
    }
};

// Sums of products, where a power or a root stands at the end of a product; a root behind "*" and
// "/" only where a sum precedes it. What else is keyed may exceed the reach of the undo.
Chain Random_Chain(Random& random) {
    Chain chain;
    chain.Numbers.push_back((11 + Pick(random, 20)) / 10.0);
    const int terms = 1 + Pick(random, 4);
    for (int term = 0; term < terms; ++term) {
        if (term > 0)
            chain.Add(random, Pick(random, 2) == 0 ? "+" : "-");
        const int factors = Pick(random, 4);
        for (int i = 0; i < factors; ++i)
            chain.Add(random, Pick(random, 2) == 0 ? "*" : "/");
        const int ending = Pick(random, 3);
        if (ending == 1)
            chain.Add(random, "xy");
        else if (ending == 2 && (term > 0 || factors == 0))
            chain.Add(random, "root");
    }
    return chain;
}

std::string Any_Operator(Random& random) {
    const char* const all[] = {"+", "-", "*", "/", "xy", "root"};
    return all[Pick(random, static_cast<int>(std::size(all)))];
}

// Powers first, then products, then sums, each from the left.
double By_Priority(const Chain& chain) {
    double sum = 0, product = 0, factor = chain.Numbers[0];
    char sumSign = '+', productSign = ' ';
    const auto closeFactor = [&] {
        product = productSign == '*'   ? product * factor
                  : productSign == '/' ? product / factor
                                       : factor;
    };
    for (std::size_t i = 0; i < chain.Operators.size(); ++i) {
        const std::string& op = chain.Operators[i];
        const double number = chain.Numbers[i + 1];
        if (op == "xy" || op == "root") {
            factor = std::pow(factor, op == "xy" ? number : 1 / number);
            continue;
        }
        closeFactor();
        productSign = op[0];
        if (op == "+" || op == "-") {
            sum += sumSign == '+' ? product : -product;
            sumSign = op[0];
            productSign = ' ';
        }
        factor = number;
    }
    closeFactor();
    return sum + (sumSign == '+' ? product : -product);
}

} // namespace

TEST(CalcChains, FollowThePriorityOfTheOperators) {
    Random random(7);
    int withPowers = 0;
    Tests::Largest deviation;
    for (int i = 0; i < 4000; ++i) {
        const Chain chain = Random_Chain(random);
        const std::string keys = chain.Keys();
        withPowers += keys.find("xy") != std::string::npos ? 1 : 0;
        CalcTest calc;
        calc.Keys(keys);
        const double expected = By_Priority(chain);
        ASSERT_NEAR(calc.Vars.Pending.Running.value_or(NAN), expected,
                    1e-9 * std::max(1.0, std::abs(expected)))
            << keys;
        ASSERT_EQ(calc.Form.Panel.Remark.Text, "") << keys;
        const double off = std::abs(*calc.Vars.Pending.Running - expected);
        deviation.Take(off / std::max(1.0, std::abs(expected)), keys);
    }
    EXPECT_GT(withPowers, 1000);
    deviation.Record("total");
}

// Any operators in any order, also beyond the reach of the undo: a total that the priority doesn't
// give has its remark, and no other has one.
TEST(CalcChains, ATotalAgainstThePriorityHasARemark) {
    Random random(17);
    int against = 0, compared = 0;
    for (int i = 0; i < 4000; ++i) {
        Chain chain;
        chain.Numbers.push_back(2);
        for (int count = 1 + Pick(random, 6); count > 0; --count)
            chain.Add(random, Any_Operator(random));
        CalcTest calc;
        calc.Keys(chain.Keys());
        if (calc.Vars.Display.ErrorLatched || !std::isfinite(By_Priority(chain)))
            continue;
        const double expected = By_Priority(chain),
                     off = std::abs(*calc.Vars.Pending.Running - expected);
        const double part = off / std::max(1.0, std::abs(expected));
        if (part > 1e-11 && part < 1e-6) // digits that the undo has lost
            continue;
        ASSERT_EQ(calc.Form.Panel.Remark.Text,
                  part < 1e-6 ? "" : "By operator priority: " + Number_Text(expected))
            << chain.Keys();
        against += part < 1e-6 ? 0 : 1;
        ++compared;
    }
    EXPECT_GT(against, 500);
    EXPECT_GT(compared, 3000);
    RecordProperty("remarks", std::to_string(against) + " of " + std::to_string(compared));
}

// In long double, with angles in degrees.
TEST(CalcFunctions, AgreeWithTheLibraryToThirteenDigits) {
    using Real = long double;
    static const Real degree = std::acos(Real{-1}) / 180;
    const std::tuple<const char*, double, double, Real (*)(Real)> functions[] = {
        {"sqr", -1e6, 1e6, [](Real x) { return x * x; }},
        {"cube", -1e4, 1e4, [](Real x) { return x * x * x; }},
        {"sqrt", 0.01, 1e9, [](Real x) { return std::sqrt(x); }},
        {"cubt", -1e9, 1e9, [](Real x) { return std::cbrt(x); }},
        {"rcp", 0.01, 2, [](Real x) { return 1 / x; }},
        {"log", 2, 1e9, [](Real x) { return std::log10(x); }},
        {"ln", 2, 1e9, [](Real x) { return std::log(x); }},
        {"alog", -9, 9, [](Real x) { return std::pow(Real{10}, x); }},
        {"aln", -20, 20, [](Real x) { return std::exp(x); }},
        {"sin", -359, 359, [](Real x) { return std::sin(x * degree); }},
        {"cos", -359, 359, [](Real x) { return std::cos(x * degree); }},
        {"tan", -80, 80, [](Real x) { return std::tan(x * degree); }},
        {"iSin", -0.99, 0.99, [](Real x) { return std::asin(x) / degree; }},
        {"iCos", -0.99, 0.99, [](Real x) { return std::acos(x) / degree; }},
        {"iTan", -1e3, 1e3, [](Real x) { return std::atan(x) / degree; }},
        {"sinh", -20, 20, [](Real x) { return std::sinh(x); }},
        {"cosh", -20, 20, [](Real x) { return std::cosh(x); }},
        {"tanh", -9, 9, [](Real x) { return std::tanh(x); }},
        {"isinh", 0.5, 1e3, [](Real x) { return std::asinh(x); }},
        {"icosh", 1.5, 1e3, [](Real x) { return std::acosh(x); }},
        {"itanh", -0.99, 0.99, [](Real x) { return std::atanh(x); }},
    };
    Random random(23);
    for (const auto& [token, low, high, exactly] : functions) {
        Tests::Largest deviation;
        for (int i = 0; i < 300; ++i) {
            const double part = double(random()) / 4294967296.0;
            const std::string text = Format_Number(low + part * (high - low), "0.0########");
            CalcTest calc;
            ASSERT_TRUE(Key_In_Number(calc.Form, text));
            calc.Keys(token);
            ASSERT_FALSE(calc.Vars.Display.ErrorLatched) << text << token;
            const Real exact = exactly(Text_Number(text));
            const double off = static_cast<double>(std::abs(calc.Vars.Display.LastResult - exact) /
                                                   std::max(Real{1}, std::abs(exact)));
            EXPECT_LT(off, 1e-13) << text << token;
            deviation.Take(off, text);
        }
        deviation.Record(token);
    }
}

// A number, with or without an exponent; or alone a fraction, an angle, or a message. The user
// takes any row of each dialog, or leaves it.
TEST(CalcFuzz, ThePanelHoldsOneOfItsForms) {
    const std::regex forms(R"(-?\d+\.\d*([ -]\d\d)?|-?\d+([ /][\d.]*){1,2})"
                           R"(|-?\d+°\d+'\d+(\.|\.\d+)?"\.?)"
                           R"(|\*(Error|Divide by Zero|Invalid Power|Infinity)\*)"
                           R"(|\*(Out of Range|Undefined|Empty Data)\*)");
    Random random(11);
    const std::span<const CalcKey> keys = Calc_Keys();
    for (int run = 0; run < 600; ++run) {
        DialogTest calc;
        std::string pressed;
        for (int i = 0; i < 60; ++i) {
            // Mostly digits and operators, so that long calculations come about.
            const CalcKey& key = Pick(random, 2) == 0
                                     ? keys[static_cast<std::size_t>(Pick(random, 23))]
                                     : keys[random() % keys.size()];
            if (key.Name == "key_AC" && Pick(random, 4) != 0)
                continue;
            calc.Row = Pick(random, 3);
            calc.Leave = Pick(random, 4) == 0;
            calc.Yes = Pick(random, 2) == 0;
            pressed += std::string{key.Name} + " ";
            Press(calc.Form, key);
            ASSERT_TRUE(std::regex_match(calc.Shown(), forms)) << pressed << ": " << calc.Shown();
            ASSERT_LE(calc.Vars.Entry.EntryText.size(), 24u) << pressed;
            ASSERT_TRUE(std::isfinite(calc.Vars.Display.DisplayValue.value_or(0))) << pressed;
            const std::string copied = Display_As_Number(calc.Form);
            const bool latched = calc.Vars.Display.ErrorLatched;
            ASSERT_TRUE(latched ? copied.empty() : Is_Numeric(copied)) << pressed;
            if (latched && Pick(random, 2) == 0)
                KeyPress(calc.Form, "AC");
        }
    }
}

// What stands on the panel is the number that the next key takes, apart from its rounding.
TEST(CalcFuzz, ThePanelShowsTheNumberInWork) {
    Random random(13);
    const char* const tokens[] = {"1", "2",  "7",    "0",   "dot",  "+",   "-",   "*",   "/",
                                  "=", "pm", "sqrt", "sqr", "rcp",  "ers", "C",   "exp", "ln",
                                  "9", "PI", "xy",   "x-y", "root", "sin", "alog"};
    int compared = 0;
    for (int i = 0; i < 60000; ++i) {
        static CalcTest calc;
        KeyPress(calc.Form, tokens[random() % std::size(tokens)]);
        if (calc.Vars.Display.ErrorLatched) {
            KeyPress(calc.Form, "AC");
            continue;
        }
        const double shown = Leading_Value(Display_As_Number(calc.Form));
        const double value = *calc.Vars.Display.DisplayValue;
        if (std::abs(value) < 1e-99) // shown as zero
            continue;
        ++compared;
        ASSERT_NEAR(shown, value, 1e-13 * std::abs(value) + 1e-14) << calc.Shown();
    }
    EXPECT_GT(compared, 30000);
}
