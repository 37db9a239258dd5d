#include "StandIns.h"
#include "common/Failure.h"
#include "shell/GridPopup.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

const std::string copyCell = "Copy -\xC2\xBB    ";

std::string Name(int row, int col) {
    return std::string{"r"}.append(std::to_string(row)).append("c").append(std::to_string(col)) +
           "  ";
}

// Five grids of the same cells: r0c0 and so on, with a line break in the head of column 2.
struct GridPopupTest : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};
    TabControl tab;
    std::array<FlexGrid, modeCount> grids;
    GridPopup popup{desk, tab, {&grids[0], &grids[1], &grids[2], &grids[3], &grids[4]}};
    int opened = 0;

    void SetUp() override {
        popup.OnOpen = [this] { ++opened; };
        for (FlexGrid& grid : grids) {
            grid.Set_Rows(4);
            grid.Set_Cols(3);
            for (int row = 0; row < 4; ++row)
                for (int col = 0; col < 3; ++col)
                    grid.Set_Text(row, col, Name(row, col));
            grid.Set_Text(0, 2, " Ix\n[in^4] ");
            grid.OnMouseDown = [this] { desk.GridClicked = true; };
        }
    }
    FlexGrid& Grid() { return grids[static_cast<std::size_t>(tab.Tab())]; }
    std::string Copied(const MenuItem& item) {
        machine.Clip.Held = "untouched";
        item.Click();
        return machine.Clip.Held;
    }
};

} // namespace

TEST_F(GridPopupTest, CaptionsAndEnablingOfEachTab) {
    struct {
        bool Cell0, Cell1;
    } const offered[] = {{true, false}, {true, true}, {true, true}, {true, false}, {false, false}};
    for (int mode = 0; mode < modeCount; ++mode) {
        tab.Select(mode);
        const auto& cells = offered[mode];
        desk.GridClicked = false;
        Grid().Move_To(2, 1);
        Tensarix::Run(Grid().OnPopup); // before anything was clicked
        EXPECT_FALSE(popup.mnuCopySelection1a.Enabled() || popup.mnuCopySelection1b.Enabled() ||
                     popup.mnuCopySelection1c.Enabled());
        EXPECT_EQ(popup.mnuCopySelection1b.Caption(), copyCell);
        EXPECT_EQ(Copied(popup.mnuCopySelection1a), "untouched");

        Grid().Press(2, 1);
        Tensarix::Run(Grid().OnPopup);
        EXPECT_TRUE(popup.mnuCopySelection1a.Enabled());
        EXPECT_EQ(popup.mnuCopySelection1b.Enabled(), cells.Cell0) << mode;
        EXPECT_EQ(popup.mnuCopySelection1c.Enabled(), cells.Cell1) << mode;
        EXPECT_EQ(popup.mnuCopySelection1b.Caption(), copyCell + (cells.Cell0 ? "r2c0  " : ""));
        EXPECT_EQ(popup.mnuCopySelection1c.Caption(), copyCell + (cells.Cell1 ? "r2c1  " : ""));
        EXPECT_EQ(Copied(popup.mnuCopySelection1b), cells.Cell0 ? "r2c0  " : "untouched");
        EXPECT_EQ(Copied(popup.mnuCopySelection1c), cells.Cell1 ? "r2c1  " : "untouched");

        // A selection that only holds blanks.
        Grid().Set_Text(2, 1, "   ");
        Grid().Set_Text(2, 2, "");
        Grid().Extend_To(2, 2);
        Tensarix::Run(Grid().OnPopup);
        EXPECT_FALSE(popup.mnuCopySelection1a.Enabled() || popup.mnuCopySelection1b.Enabled());
        EXPECT_EQ(popup.mnuCopySelection1b.Caption(), copyCell);
        EXPECT_TRUE(popup.mnuCopySelection1d.Enabled());
    }
    EXPECT_EQ(opened, 3 * modeCount);
}

TEST_F(GridPopupTest, ClipboardTexts) {
    const std::string body =
        "r1c0  \tr1c1  \tr1c2  \rr2c0  \tr2c1  \tr2c2  \rr3c0  \tr3c1  \tr3c2  ";
    const std::string plainHead = "r0c0  \tr0c1  \t Ix\n[in^4] \r"; // as it stands
    const std::string lineHead = "r0c0\tr0c1\tIx [in^4]\r";
    for (int mode = 0; mode < modeCount; ++mode) {
        tab.Select(mode);
        Grid().Press(2, 2);
        Grid().Extend_To(3, 1);
        Tensarix::Run(Grid().OnPopup);
        EXPECT_EQ(Copied(popup.mnuCopySelection1a), "r2c1  \tr2c2  \rr3c1  \tr3c2  ");
        EXPECT_EQ(Copied(popup.mnuCopySelection1d),
                  (mode == 0 || mode == 3 ? plainHead : lineHead) + body);
        EXPECT_EQ(Grid().Row(), 2);
        EXPECT_EQ(Grid().Col(), 2);
    }
    EXPECT_EQ(machine.Clip.Clears, 2 * modeCount);
    EXPECT_EQ(popup.mnuCopySelection1a.Caption(), "Copy Selection       ");
}

// The copy key does what the popup would allow, and the arrow keys choose as the mouse does.
TEST_F(GridPopupTest, Keys) {
    tab.Select(3);
    machine.Clip.Held = "untouched";
    Tensarix::Run(Grid().OnCopy);
    EXPECT_EQ(machine.Clip.Held, "untouched");
    Grid().Go_To(2, 1, false);
    Grid().Go_To(2, 2, true);
    Tensarix::Run(Grid().OnCopy);
    EXPECT_EQ(machine.Clip.Held, "r2c1  \tr2c2  ");
}

TEST_F(GridPopupTest, APageThatIsNotThereAndAClipboardThatFails) {
    struct Stuck final : Clipboard {
        void Clear() override { throw Failure("held by another program"); }
        void Set_Text(std::string_view) override { throw Failure("held by another program"); }
        std::string Text() override { return {}; }
    } stuck;
    Machine host{machine.Store,  stuck,          machine.Speech, machine.Boxes,      machine.Time,
                 machine.Events, machine.Window, machine.Guard,  machine.Host.Places};
    Desk other(host);
    GridPopup half(other, tab, {&grids[0], nullptr, nullptr, nullptr, nullptr});
    other.GridClicked = true;
    Tensarix::Run(grids[0].OnPopup);
    half.mnuCopySelection1a.Click();
    half.mnuCopySelection1d.Click();
    tab.Select(1);
    half.mnuCopySelection1a.Click();
    half.mnuCopySelection1d.Click();
    EXPECT_EQ(machine.Clip.Clears, 0);
}
