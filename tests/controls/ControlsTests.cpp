#include "common/Failure.h"
#include "controls/Controls.h"
#include "controls/TypedName.h"

#include <gtest/gtest.h>

using namespace Tensarix;

TEST(ComboBox, HandlersRunAtOnceAndOnlyOnAChange) {
    ComboBox combo;
    std::vector<int> seen;
    combo.OnChange = [&] { seen.push_back(combo.ListIndex()); };
    combo.Add("W44x335");
    combo.Add("W44x290");
    EXPECT_EQ(combo.ListIndex(), -1);
    combo.Select(1);
    combo.Select(1);
    EXPECT_EQ(combo.Text(), "W44x290");
    EXPECT_THROW(combo.Select(2), Failure);
    EXPECT_THROW(combo.Select(-2), Failure);
    EXPECT_EQ(combo.ListIndex(), 1);
    combo.Select(-1);
    EXPECT_EQ(combo.Text(), "");
    combo.Clear();
    EXPECT_EQ(seen, (std::vector<int>{1, -1}));
}

TEST(ComboBox, TypedTextIsNoPosition) {
    ComboBox combo;
    int changes = 0;
    combo.OnChange = [&] { ++changes; };
    combo.Add("12.5");
    combo.Set_Text("12.5");
    EXPECT_EQ(combo.ListIndex(), -1);
    combo.Select(0); // the same text, but now a position
    EXPECT_EQ(changes, 2);
}

TEST(ComboBox, ATypedBeginningFindsTheNearestDesignation) {
    ComboBox combo;
    for (const char* item :
         {"W18x311", "W18x55", "W18x50", "W12x305", "W12x30", "W12x26", "HSS8x8x5/8", "HSS8x8x1/2"})
        combo.Add(item);
    const auto found = [&](const char* typed) {
        const int position = Find_By_Typing(combo, typed);
        return position < 0 ? std::string{} : combo.Item(position);
    };
    EXPECT_EQ(found("w18x5"), "W18x50");
    EXPECT_EQ(found("W12X30"), "W12x30");
    EXPECT_EQ(found("w12x305"), "W12x305");
    EXPECT_EQ(found("w12"), "W12x26");
    EXPECT_EQ(found("w13"), "");
    EXPECT_EQ(found("hss 8*8*.5"), "HSS8x8x1/2"); // as where any section is searched
    EXPECT_EQ(found("8x8x1/2"), "");              // no beginning
}

TEST(OptionButton, OneOfAGroupIsChosen) {
    OptionButton first, second;
    OptionButton::Group({&first, &second});
    std::string log;
    first.OnClick = [&] { log += "1"; };
    second.OnClick = [&] { log += second.Value() && !first.Value() ? "2" : "?"; };
    first.Select();
    second.Select();
    second.Select();
    EXPECT_EQ(log, "12");
}

TEST(FocusPoint, TheOneThatLosesItIsToldFirst) {
    TextBox span, factor;
    std::string log;
    span.Focus.OnGotFocus = [&] { log += "+span "; };
    span.Focus.OnLostFocus = [&] { log += factor.Focus.Has() ? "-span " : "?"; };
    factor.Focus.OnGotFocus = [&] { log += "+factor "; };
    factor.Focus.OnLostFocus = [&] { log += "-factor "; };
    span.Focus.Set();
    span.Focus.Set();
    factor.Focus.Set();
    factor.Focus.Release();
    EXPECT_EQ(log, "+span -span +factor -factor ");
}

// The handler of the box that is left may take the focus back.
TEST(FocusPoint, AHandlerMayKeepTheFocus) {
    TextBox span, factor;
    std::string log;
    span.Focus.OnLostFocus = [&] {
        log += "-span ";
        if (log.size() < 10)
            span.Focus.Set();
    };
    factor.Focus.OnGotFocus = [&] { log += "+factor "; };
    factor.Focus.OnLostFocus = [&] { log += "-factor "; };
    span.Focus.Set();
    factor.Focus.Set();
    EXPECT_TRUE(span.Focus.Has());
    EXPECT_EQ(log, "-span -factor ");
}

TEST(TextBox, TheCaretCountsCharactersAndStaysInside) {
    TextBox box;
    box.Set_Text("\xC3\x98 30");
    EXPECT_EQ(box.Length(), 4);
    box.Set_SelStart(9);
    EXPECT_EQ(box.SelStart(), 4);
    box.Set_Text("5");
    EXPECT_EQ(box.SelStart(), 1);
}
