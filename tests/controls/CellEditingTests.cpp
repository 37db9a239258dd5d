#include "controls/CellEditing.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace Tensarix {
namespace {

constexpr int enterKey = Keys::Enter;

// A grid of three columns: a list in 1, a text box in 2. It notes what the page is told.
struct Sheet {
    FlexGrid Grid;
    TextBox Box;
    ComboBox List;
    FocusPoint Elsewhere;
    std::vector<std::string> Log;
    bool Valid = true;
    std::function<void()> OnTurn, OnValidate, OnCommit;
    CellEditing Editing{Grid, [this] {
                            Log.emplace_back("turn");
                            Run(OnTurn);
                        }};

    Sheet() {
        Grid.Set_Rows(4);
        Grid.Set_Cols(4);
        Grid.Set_Fixed(1, 1);
        for (const char* item : {"", " W8x10 ", "W8x13"})
            List.Add(item);
        Editing.Add(CellEditing::TextCells{
            Box, [](int, int col) { return col == 2; },
            [](int key) { return key == 'x' ? 0 : key; }, [](int key) { return key; },
            [this] { Changes.push_back(Box.Text()); },
            [this] {
                Log.push_back("validate " + Box.Text());
                Run(OnValidate);
                if (!Valid)
                    Box.Set_Text("good");
                Valid = true;
            },
            [this](const std::string& before) {
                Log.push_back("commit " + before + ">" + Grid.Text(Grid.Row(), 2) + " at " +
                              std::to_string(Grid.Row()) + (Box.Visible() ? " shown" : ""));
                Run(OnCommit);
            },
            [](const std::string& text) {
                return text == "x" ? std::nullopt : std::optional{"<" + text + ">"};
            }});
        Editing.Add(CellEditing::ComboCells{
            List, [](int, int col) { return col == 1; },
            [this](bool useCombo) { Log.emplace_back(useCombo ? "list" : "cell"); },
            [this] { Log.emplace_back("dropped " + List.Text()); }});
        Grid.Move_To(2, 2);
        Grid.Focus.Set();
        Log.clear();
    }

    void Type(const std::string& text) {
        Grid.OnKeyPress('1');
        Box.Set_Text(text);
        Box.Set_SelStart(Box.Length());
        Log.clear();
    }
    std::string Cell() const { return Grid.Text(2, 2); }
    std::string Where() const {
        return std::to_string(Grid.Row()) + "," + std::to_string(Grid.Col());
    }

    std::vector<std::string> Changes;
};

using Lines = std::vector<std::string>;

TEST(CellEditing, WhatOpensTheEditorAndWithWhichText) {
    const std::tuple<const char*, void (*)(Sheet&), const char*, int> cases[] = {
        {"a digit replaces", [](Sheet& s) { s.Grid.OnKeyPress('7'); }, "7", 1},
        {"a blank keeps", [](Sheet& s) { s.Grid.OnKeyPress(' '); }, "5'-6\"", 5},
        {"Enter keeps", [](Sheet& s) { s.Grid.OnKeyPress(13); }, "5'-6\"", 5},
        {"F2 keeps", [](Sheet& s) { s.Grid.OnKeyDown(Keys::F2); }, "5'-6\"", 5},
        {"a double click keeps", [](Sheet& s) { s.Grid.OnDblClick(); }, "5'-6\"", 5},
        {"another script", [](Sheet& s) { s.Grid.OnKeyPress(0x0665); }, "\xD9\xA5", 1},
    };
    for (const auto& [name, act, text, caret] : cases) {
        SCOPED_TRACE(name);
        Sheet sheet;
        sheet.Grid.Set_Text(2, 2, "5'-6\"     ");
        act(sheet);
        EXPECT_TRUE(sheet.Box.Visible() && sheet.Box.Focus.Has());
        EXPECT_EQ(sheet.Box.Text(), text);
        EXPECT_EQ(sheet.Box.SelStart(), caret);
        EXPECT_EQ(sheet.Log, Lines{}) << "opening computes nothing";
    }
}

TEST(CellEditing, WhatDoesNotOpenTheEditor) {
    Sheet sheet;
    sheet.Grid.OnKeyPress(Keys::Escape);
    sheet.Grid.OnKeyPress('x'); // refused by the filter
    sheet.Grid.Move_To(2, 3);   // no editor's cell
    sheet.Grid.OnKeyPress('7');
    sheet.Grid.OnKeyDown(Keys::F2);
    sheet.Grid.OnDblClick();
    sheet.Grid.OnKeyDown(Keys::Delete);
    EXPECT_FALSE(sheet.Box.Visible() || sheet.List.Visible());
    EXPECT_EQ(sheet.Log, Lines{});
}

TEST(CellEditing, TheEditorLiesInsideItsCell) {
    Sheet sheet;
    sheet.Grid.Set_Place({100, 200, 0, 0});
    sheet.Grid.Set_Row_Height(2, 350);
    sheet.Grid.Set_Col_Width(2, 2100);
    sheet.Grid.OnKeyPress('7');
    const Placement box = sheet.Box.Place();
    const Placement cell = sheet.Grid.Cell_Place();
    EXPECT_EQ(box.Height, 350 - 55);
    EXPECT_EQ(box.Left, cell.Left + 100);
    EXPECT_EQ(box.Top, cell.Top + 200 + 55);
    EXPECT_EQ(box.Width, 2100);

    sheet.Grid.Move_To(2, 1);
    sheet.Grid.OnMouseDown();
    EXPECT_EQ(sheet.List.Place().Left, sheet.Grid.Cell_Place().Left + 100 + 10);
    EXPECT_EQ(sheet.List.Place().Top, sheet.Grid.Cell_Place().Top + 200 + 10);
    EXPECT_EQ(sheet.List.Place().Width, sheet.Grid.Cell_Place().Width - 10);
}

TEST(CellEditing, KeysCommitFirstAndMoveSecond) {
    const std::tuple<int, int, int, const char*, Lines> cases[] = {
        {enterKey, 2, 2, "3,2", {"validate 12", "validate 12", "commit >12 at 2", "turn"}},
        {enterKey, 3, 2, "3,2", {"validate 12", "validate 12", "commit >12 at 3", "turn"}},
        {Keys::Down, 2, 2, "3,2", {"validate 12", "commit >12 at 2", "turn"}},
        {Keys::Up, 2, 2, "1,2", {"validate 12", "commit >12 at 2", "turn"}},
        {Keys::Up, 1, 2, "1,2", {"validate 12", "commit >12 at 1", "turn"}},
        {Keys::Right, 2, 2, "2,3", {"validate 12", "commit >12 at 2", "turn"}},
        {Keys::Tab, 2, 2, "3,1", {"validate 12", "validate 12", "commit >12 at 2", "turn"}},
        {Keys::Tab, 3, 2, "3,2", {"validate 12", "validate 12", "commit >12 at 3", "turn"}},
        {Keys::BackTab, 2, 2, "2,1", {"validate 12", "validate 12", "commit >12 at 2", "turn"}},
    };
    for (const auto& [key, row, col, where, log] : cases) {
        SCOPED_TRACE("key " + std::to_string(key) + " in row " + std::to_string(row));
        Sheet sheet;
        sheet.Grid.Move_To(row, col);
        sheet.Type("12");
        sheet.Box.OnKeyDown(key);
        EXPECT_EQ(sheet.Where(), where);
        EXPECT_EQ(sheet.Log, log);
        EXPECT_EQ(sheet.Grid.Text(row, 2), "12");
        EXPECT_FALSE(sheet.Box.Visible());
        EXPECT_TRUE(sheet.Grid.Focus.Has());
    }
}

TEST(CellEditing, ArrowsLeaveTheTextOnlyAtItsEndsAndEscapeThrowsItAway) {
    Sheet sheet;
    sheet.Type("12");
    sheet.Box.Set_SelStart(1);
    sheet.Box.OnKeyDown(Keys::Left);
    sheet.Box.OnKeyDown(Keys::Right);
    EXPECT_TRUE(sheet.Box.Visible());
    sheet.Box.OnKeyDown(Keys::Escape);
    EXPECT_FALSE(sheet.Box.Visible());
    EXPECT_EQ(sheet.Cell() + sheet.Box.Text(), "");
    EXPECT_EQ(sheet.Log, Lines{});
    sheet.Type("12");
    sheet.Box.Set_SelStart(0);
    sheet.Box.OnKeyDown(Keys::Left);
    EXPECT_EQ(sheet.Where(), "2,1");
    EXPECT_EQ(sheet.Cell(), "12");
}

TEST(CellEditing, EveryOtherWayOutCommitsOnce) {
    const std::function<void(Sheet&)> ways[] = {
        // clang-format off
        [](Sheet& s) { s.Grid.Move_To(1, 3); }, [](Sheet& s) { s.Grid.Focus.Set(); },
        [](Sheet& s) { s.Elsewhere.Set(); }, [](Sheet& s) { s.Box.Focus.Release(); },
        [](Sheet& s) { s.Grid.Focus.Set(); s.Grid.Press(1, 3); },
        // clang-format on
    };
    for (const auto& way : ways) {
        Sheet sheet;
        sheet.Grid.Set_Text(2, 2, "old");
        sheet.Type("12");
        way(sheet);
        EXPECT_EQ(sheet.Log, (Lines{"validate 12", "commit old>12 at 2"}));
        EXPECT_FALSE(sheet.Box.Visible());
    }
}

TEST(CellEditing, AnInvalidTextIsReportedOnceHoweverTheFocusMoves) {
    for (const int key : {enterKey, int{Keys::Tab}, int{Keys::Down}, 0}) {
        SCOPED_TRACE(key);
        Sheet sheet;
        sheet.Type("bad");
        sheet.Valid = false;
        int reports = 0;
        sheet.OnValidate = [&] {
            if (sheet.Valid)
                return;
            ++reports;
            sheet.Elsewhere.Set(); // the message takes the focus and gives it back
            sheet.Grid.Focus.Set();
        };
        if (key == 0)
            sheet.Grid.Press(1, 2);
        else
            sheet.Box.OnKeyDown(key);
        EXPECT_EQ(reports, 1);
        EXPECT_EQ(sheet.Cell(), "good");
    }
}

TEST(CellEditing, ABlankTextEmptiesTheCellWithoutValidation) {
    Sheet sheet;
    sheet.Grid.Set_Text(2, 2, "old");
    sheet.Type("  ");
    sheet.Box.OnKeyDown(enterKey);
    EXPECT_EQ(sheet.Log, (Lines{"commit old>   at 2", "turn"}));

    sheet.Grid.Move_To(2, 2);
    sheet.Grid.Set_Text(2, 2, "old");
    sheet.Log.clear();
    sheet.Grid.OnKeyDown(Keys::Delete);
    EXPECT_EQ(sheet.Log, Lines{"commit old> at 2"});
    EXPECT_EQ(sheet.Box.Text(), "");
}

TEST(CellEditing, WhoGoesOnDuringALongCommitIsNotMoved) {
    Sheet sheet;
    sheet.Type("12");
    sheet.OnTurn = [&] {
        sheet.OnTurn = nullptr;
        sheet.Grid.Press(1, 2);
        sheet.Grid.OnKeyPress('4');
    };
    sheet.Box.OnKeyDown(enterKey);
    EXPECT_EQ(sheet.Where() + ": " + sheet.Box.Text(), "1,2: 4");
    EXPECT_TRUE(sheet.Box.Visible());
    EXPECT_EQ(sheet.Grid.Text(1, 2) + "|" + sheet.Cell(), "|12");
}

TEST(CellEditing, TheBoxFollowsTheScrollAndTheListCloses) {
    Sheet sheet;
    sheet.Type("12");
    const double top = sheet.Box.Place().Top;
    sheet.Grid.Set_Top_Row(2);
    EXPECT_LT(sheet.Box.Place().Top, top);
    EXPECT_EQ(sheet.Box.Text(), "12");
    EXPECT_TRUE(sheet.Box.Visible());

    sheet.Grid.Move_To(2, 1);
    sheet.Grid.OnMouseDown();
    sheet.List.Select(2);
    sheet.Log.clear();
    sheet.Grid.Set_Top_Row(1);
    EXPECT_FALSE(sheet.List.Visible());
    EXPECT_EQ(sheet.Grid.Text(2, 1), "");
    EXPECT_EQ(sheet.Log, Lines{"dropped W8x13"}) << "nothing is committed, nothing computed";

    sheet.Grid.OnMouseDown();
    sheet.List.Select(2);
    sheet.Elsewhere.Set(); // out of the grid: the list stays as it is
    EXPECT_EQ(sheet.Grid.Text(2, 1), "");
    sheet.Grid.Focus.Set();
    EXPECT_EQ(sheet.Grid.Text(2, 1), "W8x13");
}

TEST(CellEditing, DeleteEmptiesTheMarkedCells) {
    Sheet sheet;
    for (int row = 1; row < 4; ++row)
        for (int col = 0; col < 4; ++col)
            sheet.Grid.Set_Text(row, col, std::to_string(10 * row + col));
    sheet.Grid.Select_Range(2, 3, 1, 0); // marked from its lower right corner
    sheet.Grid.OnKeyDown(Keys::Delete);
    EXPECT_EQ(sheet.Log, (Lines{"cell", "commit 12> at 1", "cell", "commit 22> at 2"}));
    EXPECT_EQ(sheet.Where() + "," + std::to_string(sheet.Grid.Row_Sel()), "2,3,1");
    EXPECT_EQ(sheet.Grid.Clip(), "10\t\t\t13\r20\t\t\t23");
    EXPECT_EQ(sheet.Grid.Text(3, 2), "32");
}

TEST(CellEditing, ABlockIsPastedAsAWholeOrNotAtAll) {
    Sheet sheet;
    sheet.Grid.Move_To(2, 3); // no cell to edit: the block starts with the row's first one
    EXPECT_EQ(sheet.Editing.Paste("W8x13\t1\tmore\r\n\t 2 \n \n"), "");
    EXPECT_EQ(sheet.Grid.Clip(), "W8x13\t<1>\r\t<2>");
    EXPECT_EQ(sheet.Log, (Lines{"cell", "commit ><1> at 2", "cell", "commit ><2> at 3"}));
    sheet.Grid.Move_To(1, 2);
    EXPECT_EQ(sheet.Editing.Paste("1\nx\nx\t"), "Invalid input for row 2, 3.");
    sheet.Grid.Move_To(2, 2);
    EXPECT_EQ(sheet.Editing.Paste("1\n2\n3"),
              "There are 3 rows to paste, but only 2 from row 2 on.");
    EXPECT_EQ(sheet.Grid.Text(2, 2), "<1>");

    sheet.OnCommit = [&] { // who goes on meanwhile keeps his place, and a row may have gone
        sheet.OnCommit = nullptr;
        sheet.Grid.Move_To(1, 3);
        sheet.Grid.Set_Rows(3);
    };
    EXPECT_EQ(sheet.Editing.Paste("7\n8"), "");
    EXPECT_EQ(sheet.Where(), "1,3");
    EXPECT_EQ(sheet.Grid.Text(2, 2), "<7>");
}

TEST(CellEditing, TheListFindsItsItemByTheTrimmedText) {
    const std::pair<const char*, int> cases[] = {
        {"", -1}, {"   ", -1}, {"W8x10", 1}, {" W8x13  ", 2}, {"W8", -1}};
    for (const auto& [text, position] : cases) {
        Sheet sheet;
        sheet.Grid.Move_To(2, 1);
        sheet.Grid.Set_Text(2, 1, text);
        EXPECT_EQ(Combo_Find_Item(sheet.Grid, sheet.List), position) << text;
        sheet.Grid.OnKeyPress('W');
        EXPECT_EQ(sheet.List.ListIndex(), position) << text;
        EXPECT_TRUE(sheet.List.Focus.Has());
    }
}

TEST(CellEditing, TheOrderOfEventsOfTheList) {
    Sheet sheet;
    sheet.Grid.Move_To(2, 1);
    sheet.Grid.OnMouseDown();
    EXPECT_EQ(sheet.Log, Lines{});
    sheet.List.Select(1); // computed at once, though the cell has not got the text
    EXPECT_EQ(sheet.Log, Lines{"list"});
    EXPECT_EQ(sheet.Grid.Text(2, 1), "");
    sheet.List.OnKeyDown(Keys::Down); // walks the items
    EXPECT_TRUE(sheet.List.Visible());
    sheet.List.OnKeyDown(enterKey);
    EXPECT_EQ(sheet.Log, (Lines{"list", "list", "turn"}));
    EXPECT_EQ(sheet.Grid.Text(2, 1) + sheet.Where(), " W8x10 3,1");

    sheet.Log.clear();
    sheet.Grid.OnDblClick();
    sheet.List.Select(2);
    sheet.List.OnKeyDown(Keys::Escape);
    EXPECT_EQ(sheet.Log, (Lines{"list", "cell"}));
    EXPECT_EQ(sheet.Grid.Text(3, 1), "");

    sheet.Log.clear();
    sheet.Grid.Move_To(2, 1);
    sheet.Grid.OnKeyDown(Keys::Delete);
    EXPECT_EQ(sheet.Grid.Text(2, 1), "");
    EXPECT_EQ(sheet.List.ListIndex(), -1);
    EXPECT_EQ(sheet.Log, Lines{"cell"});
}

TEST(CellEditing, TabWalksTheCellsThatCanBeEdited) {
    Sheet sheet;
    sheet.Grid.Move_To(1, 1);
    Lines walked;
    while (sheet.Grid.OnTab(false))
        walked.push_back(sheet.Where());
    EXPECT_EQ(walked, (Lines{"1,2", "2,1", "2,2", "3,1", "3,2"}));
    EXPECT_TRUE(sheet.Grid.OnTab(true));
    EXPECT_EQ(sheet.Where(), "3,1");
}

} // namespace
} // namespace Tensarix
