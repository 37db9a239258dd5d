#include "StandIns.h"
#include "connections/BoltPage.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

// An edit and a clearing come back with their results; a search that is overtaken writes nothing.
TEST(BoltUndoTest, InputsComeBackAndAreComputed) {
    TestMachine machine;
    Desk desk(machine.Host);
    BoltPage page(desk);
    page.Start();
    const auto type = [&](int row, int col, const std::string& text) {
        page.cFlex.Move_To(row, col);
        page.cFlex.OnKeyDown(Keys::F2);
        page.EdiTxt.Set_Text(text);
        page.EdiTxt.OnKeyDown(Keys::Enter);
    };
    int col = 1;
    for (const char* text : {"6", "1", "3", "3", "4", "0"}) {
        type(2, col, text);
        type(9, col++, text);
    }
    const auto table = [&] { return page.cFlex.Clip_Of(1, 0, page.cFlex.Rows() - 1, 8); };
    const std::string whole = table();
    EXPECT_EQ(page.cFlex.Text(9, BoltColumn::C), "4.558  ");
    type(9, 5, "8");
    EXPECT_NE(table(), whole);
    page.cFlex.OnUndo();
    EXPECT_EQ(table(), whole);
    EXPECT_EQ(page.cFlex.Row(), 9);
    page.ClearButton.Click();
    EXPECT_EQ(CountBoltRows(page.cFlex), 0);
    page.cFlex.OnUndo();
    EXPECT_EQ(table(), whole);
    EXPECT_EQ(page.xxFlex.Text(2, 1), "4.558  "); // the current row's
    for (int step = 0; step < 12; ++step)
        page.cFlex.OnUndo();
    EXPECT_EQ(page.cFlex.Clip_Of(1, 1, 15, 8).find_first_not_of("\t\r"), std::string::npos);
    page.cFlex.OnUndo(); // there is nothing left
}
