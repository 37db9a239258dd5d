#include "common/Failure.h"
#include "controls/FlexGrid.h"

#include <gtest/gtest.h>

using namespace Tensarix;

namespace {

void Fill(FlexGrid& grid, int rows, int cols) {
    grid.Set_Rows(rows);
    grid.Set_Cols(cols);
    for (int row = 0; row < rows; ++row)
        for (int col = 0; col < cols; ++col)
            grid.Set_Text(row, col, std::to_string(row) + "." + std::to_string(col));
}

} // namespace

TEST(FlexGrid, WhatStaysKeepsWhatItHolds) {
    FlexGrid grid;
    Fill(grid, 4, 3);
    grid.Set_Style(2, 1, {.Align = Alignment::Right});
    grid.Set_Remark(2, 1, "stale");
    grid.Set_Remark(3, 2, "gone");
    grid.Set_Cols(5);
    grid.Set_Rows(3);
    grid.Set_Rows(4);
    EXPECT_EQ(grid.Text(2, 1) + grid.Remark(2, 1), "2.1stale");
    EXPECT_EQ(grid.Style(2, 1).Align, Alignment::Right);
    EXPECT_EQ(grid.Text(3, 2) + grid.Remark(3, 2) + grid.Text(2, 4), "");
    grid.Set_Cols(2);
    EXPECT_EQ(grid.Text(2, 1), "2.1");
    EXPECT_THROW(grid.Text(2, 2), Failure);
    EXPECT_THROW(grid.Set_Text(-1, 0, ""), Failure);
    EXPECT_THROW(grid.Set_Rows(0), Failure);
}

TEST(FlexGrid, WritingACellEndsItsRemark) {
    FlexGrid grid;
    Fill(grid, 3, 3);
    grid.Set_Remark(1, 1, "old", RemarkWeight::Unsafe);
    EXPECT_EQ(grid.Remark_Weight(1, 1), RemarkWeight::Unsafe);
    grid.Set_Text(1, 1, "new");
    EXPECT_EQ(grid.Remark(1, 1), "");
    EXPECT_EQ(grid.Remark_Weight(1, 1), RemarkWeight::Note);
    grid.Set_Remark(1, 1, "old");
    grid.Clear();
    EXPECT_EQ(grid.Remark(1, 1), "");
    EXPECT_EQ(grid.Rows(), 3);
}

TEST(FlexGrid, MovesRunTheHandlersInOrder) {
    FlexGrid grid;
    Fill(grid, 5, 4);
    std::string log;
    const auto note = [&](const char* what) {
        return [&log, &grid, what] {
            log += what + std::to_string(grid.Row()) + std::to_string(grid.Col()) + " ";
        };
    };
    grid.OnLeaveCell = note("leave");
    grid.OnSelChange = note("sel");
    grid.OnMouseDown = note("mouse");
    EXPECT_TRUE(grid.Move_To(2, 2));
    EXPECT_FALSE(grid.Move_To(2, 2));
    grid.Press(2, 2); // selects it again
    grid.Press(3, 1);
    grid.Go_To(4, 0, false);
    grid.Go_To(3, 0, true);
    EXPECT_EQ(log, "leave11 sel22 sel22 mouse22 leave22 sel31 mouse31 leave31 sel40 ");
    EXPECT_EQ(grid.Row_Sel(), 3);
}

TEST(FlexGrid, ClipGoesRowByRowWhateverWayTheSelectionWasMade) {
    FlexGrid grid;
    Fill(grid, 4, 4);
    grid.Move_To(2, 2);
    grid.Extend_To(1, 1);
    EXPECT_EQ(grid.Clip(), "1.1\t1.2\r2.1\t2.2");
    grid.Select_Range(0, 0, 3, 3);
    EXPECT_EQ(grid.Clip().substr(0, 16), "0.0\t0.1\t0.2\t0.3\r");
    grid.Move_To(3, 3);
    EXPECT_EQ(grid.Clip(), "3.3");
}

TEST(FlexGrid, PositionsStayInsideTheGrid) {
    FlexGrid grid;
    Fill(grid, 10, 6);
    int scrolls = 0;
    grid.OnScroll = [&] { ++scrolls; };
    grid.Set_Top_Row(99);
    EXPECT_EQ(grid.Top_Row(), 9);
    grid.Set_Left_Col(0);
    EXPECT_EQ(grid.Left_Col(), 1);
    grid.Move_To(9, 5);
    grid.Set_Rows(4);
    grid.Set_Cols(3);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(grid.Top_Row(), 3);
    EXPECT_EQ(scrolls, 1);
}

TEST(FlexGrid, TheCellsPlaceFollowsTheScrolling) {
    FlexGrid grid;
    Fill(grid, 6, 4);
    grid.Set_Row_Height_Min(350);
    grid.Set_Row_Height(0, 460);
    for (int col = 0; col < 4; ++col)
        grid.Set_Col_Width(col, 1000 + col);
    grid.Move_To(4, 3);
    EXPECT_EQ(grid.Cell_Place().Left, 1000 + 1001 + 1002);
    EXPECT_EQ(grid.Cell_Place().Top, 460 + 3 * 350);
    grid.Set_Top_Row(3);
    grid.Set_Left_Col(3);
    EXPECT_EQ(grid.Cell_Place().Left, 1000);
    EXPECT_EQ(grid.Cell_Place().Top, 460 + 350);
    EXPECT_EQ(grid.Cell_Place().Width, 1003);
}
