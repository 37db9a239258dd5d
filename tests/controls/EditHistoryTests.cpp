#include "controls/CellEditing.h"
#include "controls/CellSearch.h"
#include "controls/TypedName.h"

#include <gtest/gtest.h>

#include <random>

using namespace Tensarix;

namespace {

// A table of twelve rows whose columns 1 and 2 can be typed into; the last one is computed.
struct Edited : testing::Test {
    FlexGrid grid;
    TextBox editor;
    CellEditing editing{grid, {}};
    int computed = 0;

    Edited() {
        grid.Set_Rows(13);
        grid.Set_Cols(4);
        editing.Add(CellEditing::TextCells{
            .Editor = editor,
            .Editable = [](int row, int col) { return row > 0 && (col == 1 || col == 2); },
            .Opens = [](int key) { return key; },
            .Types = [](int key) { return key; },
            .Changed = {},
            .Validate = {},
            .Committed =
                [this](const std::string&) {
                    grid.Set_Text(grid.Row(), 3, std::to_string(++computed));
                }});
        grid.Set_Text(5, 1, "loaded");
        editing.History.Start();
    }
    void Type(int row, int col, const std::string& text) {
        grid.Move_To(row, col);
        grid.OnDblClick();
        editor.Set_Text(text);
        editor.OnKeyDown(Keys::Enter);
    }
    std::string Inputs() { return grid.Clip_Of(1, 1, grid.Rows() - 1, 2); }
};

} // namespace

// Random edits of all kinds, and back over all of them: each step is as it was.
TEST_F(Edited, EveryStepComesBack) {
    std::mt19937 random(7);
    const auto below = [&random](unsigned end) { return static_cast<int>(random() % end); };
    std::vector<std::string> before;
    for (int step = 0; step < 120; ++step) {
        const std::string now = Inputs();
        const int row = 1 + below(12), col = 1 + below(2);
        switch (below(6)) {
        case 0: // emptied
            grid.Move_To(row, col);
            grid.OnKeyDown(Keys::Delete);
            break;
        case 1: // several at once
            for (int i = row; i < grid.Rows(); ++i)
                grid.Set_Text(i, 2, "p" + std::to_string(step));
            editing.History.Note();
            break;
        case 2: // left with Escape
            grid.Move_To(row, col);
            grid.OnDblClick();
            editor.Set_Text("given up");
            editor.OnKeyDown(Keys::Escape);
            break;
        default:
            Type(row, col, "t" + std::to_string(below(40)));
        }
        if (Inputs() != now) // what changes nothing is no step
            before.push_back(now);
    }
    ASSERT_GE(before.size(), 50u);
    for (; !before.empty(); before.pop_back()) {
        ASSERT_TRUE(editing.History.Can_Undo());
        const int computedBefore = computed;
        grid.OnUndo();
        ASSERT_GT(computed, computedBefore);
        ASSERT_EQ(Inputs(), before.back());
    }
    EXPECT_FALSE(editing.History.Can_Undo());
    EXPECT_TRUE(editing.History.Undo().empty());
    EXPECT_EQ(grid.Text(5, 1), "loaded");
}

TEST_F(Edited, RowsThatHaveGoneAreForgotten) {
    Type(2, 1, "a");
    Type(12, 1, "b");
    grid.Set_Rows(12);
    editing.History.Forget_Rows(12);
    grid.Set_Rows(13);
    EXPECT_EQ(editing.History.Undo(), (std::vector<std::pair<int, int>>{{2, 1}}));
    EXPECT_EQ(grid.Text(12, 1), "");
    EXPECT_FALSE(editing.History.Can_Undo());
}

TEST_F(Edited, OnlyTheOldestOfManyStepsAreLost) {
    for (int i = 0; i < 300; ++i)
        Type(1, 1, std::to_string(i));
    int undone = 0;
    while (!editing.History.Undo().empty())
        ++undone;
    EXPECT_EQ(undone, static_cast<int>(EditHistory::mostSteps));
}

TEST(TableSearchTest, RowsByNameAndByWhatTheyContain) {
    FlexGrid grid;
    grid.Set_Rows(6);
    grid.Set_Cols(3);
    grid.Set_Fixed(1, 2);
    const char* names[][2] = {{"W18x311", "W460x464"},
                              {"W18x55", "W460x82"},
                              {"W18x50", "W460x74"},
                              {"W8x31", "W200x46"}};
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 2; ++col)
            grid.Set_Text(row + 1, col, names[row][col]);
    grid.Set_Text(0, 2, "w18");
    EXPECT_EQ(Find_Row_By_Typing(grid, "w18x"), 3);   // the shortest, of these the last
    EXPECT_EQ(Find_Row_By_Typing(grid, "W 18x3"), 1); // blanks are free
    EXPECT_EQ(Find_Row_By_Typing(grid, "w460x8"), 2); // by the other name
    EXPECT_EQ(Find_Row_By_Typing(grid, "hp"), -1);

    grid.Set_Text(5, 2, "101.00 ");
    grid.Move_To(2, 2);
    using enum SearchWay;
    using Found = std::optional<FoundCell>;
    EXPECT_EQ(Find_Cell(grid, "w1 8", Here), Found({2, 0}));
    EXPECT_EQ(Find_Cell(grid, "w18", Next), Found({3, 0}));
    EXPECT_EQ(Find_Cell(grid, "0x4", Previous), Found({1, 1}));
    EXPECT_EQ(Find_Cell(grid, "0x46", Next), Found({4, 1})); // of the two the next
    EXPECT_EQ(Find_Cell(grid, "X55", Next), Found({2, 0}));  // round, to itself
    EXPECT_EQ(Find_Cell(grid, " ", Here), Found());
    EXPECT_EQ(Find_Cell(grid, "hp", Here), Found());
    EXPECT_EQ(Count_Rows_With(grid, "w18"), 3);
    grid.OnTab = [](bool) { return true; }; // is filled in: its names are not gone to
    EXPECT_EQ(Find_Cell(grid, "w18", Here), Found());
    EXPECT_EQ(Find_Cell(grid, "01", Previous), Found({5, 2}));
}
