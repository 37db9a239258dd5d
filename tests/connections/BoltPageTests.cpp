#include "StandIns.h"
#include "common/ReplaceFile.h"
#include "connections/BoltPage.h"

#include <gtest/gtest.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct BoltPageTest : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};
    std::unique_ptr<BoltPage> page;

    BoltPage& Start() {
        page = std::make_unique<BoltPage>(desk);
        page->Start();
        return *page;
    }
    // Opens the editor and fills it, and leaves it by Enter.
    void Begin(int row, int col, const std::string& text) {
        page->cFlex.Move_To(row, col);
        page->cFlex.OnKeyDown(Keys::F2);
        page->EdiTxt.Set_Text(text);
    }
    void Type(int row, int col, const std::string& text) {
        Begin(row, col, text);
        page->EdiTxt.OnKeyDown(Keys::Enter);
    }
    void Delete(int row, int col) {
        page->cFlex.Move_To(row, col);
        page->cFlex.OnKeyDown(Keys::Delete);
    }
    std::string Row(int row) { return page->cFlex.Clip_Of(row, 1, row, BoltColumn::CPrime); }
    void Type_Row(int row, const std::vector<std::string>& texts) {
        int col = 1;
        for (const std::string& text : texts)
            Type(row, col++, text);
    }
    const std::string& Cell(int row, int col) { return page->cFlex.Text(row, col); }
    const std::string& Remark(int row) { return page->cFlex.Remark(row, BoltColumn::C); }
    // What happens at the first yield of the next search.
    void Meanwhile(std::function<void()> what) {
        machine.Events.OnYield = [what = std::move(what), first = true]() mutable {
            if (std::exchange(first, false))
                what();
            return true;
        };
    }
    std::filesystem::path File() { return machine.Data.Path / boltFileName; }
};

const std::string noTexts(BoltColumn::Count - 2, '\t'); // of a row
const std::vector<std::string> sixInLine{"6", "1", "3", "3", "4", "0"};
const std::vector<std::string> overshooting{"6", "2", "3", "3", "6", "75"};

} // namespace

TEST_F(BoltPageTest, ARowIsComputedWhenItsLastInputIsThere) {
    BoltPage& p = Start();
    Type_Row(5, {"6", "1", "3", "3", "4"});
    EXPECT_EQ(Cell(5, 7), "");
    Type(5, 6, "0");
    EXPECT_EQ(Cell(5, 1) + Cell(5, 7) + Cell(5, 8) + Remark(5), "6.000  4.558  25.093  ");
    EXPECT_EQ(p.cFlex.Row(), 6); // Enter goes down
    p.cFlex.Move_To(5, 3);
    EXPECT_EQ(p.ccFlex.Text(0, 1) + p.xxFlex.Text(1, 1) + p.xxFlex.Text(3, 1),
              "6.000  0.000°  25.093  ");
    p.cFlex.OnKeyDown(Keys::Delete);
    EXPECT_EQ(Cell(5, 7) + Cell(5, 8), "");
    EXPECT_EQ(p.xxFlex.Text(2, 1) + p.ccFlex.Text(2, 1), "");
}

// The centre is the one that the search for C has found: no drawing would search so long again.
TEST_F(BoltPageTest, TheDrawingHasTheCentreOfTheSearchForC) {
    Start();
    const auto searched = [this](int row) {
        page->cFlex.Move_To(row, BoltColumn::C);
        return page->GroupSketch.Shows().Sentence.find("the search's own centre") !=
               std::string::npos;
    };
    Type_Row(2, {"30", "8", "3", "3", "6", "75"}); // 397 passes
    EXPECT_FALSE(searched(1));
    EXPECT_TRUE(searched(2));
    Type(2, 5, "5"); // found anew
    EXPECT_TRUE(searched(2));
    page->SaveButton.Click();
    Start(); // read with its results
    EXPECT_FALSE(searched(2));
}

TEST_F(BoltPageTest, TextsThatAreNoNumbersOrOutOfRange) {
    Start();
    using Case = std::pair<const char*, const char*>;
    for (const auto& [typed, kept] :
         {Case{"abc", "0.000  "}, Case{"1.2.3", "1.200  "}, Case{".5", "0.500  "},
          Case{"3.1234567", "3.12346  "}, Case{"   ", "   "},
          Case{"1E999", "0.000  "}}) { // beyond the range: no number
        Type(1, 3, typed);
        EXPECT_EQ(Cell(1, 3), kept) << typed;
    }
    Type_Row(2, {"40000", "1", "3", "3", "4", "0"}); // beyond 16 bits: counts as 0
    EXPECT_EQ(Cell(2, 7), "0.000  ");
    Type_Row(5, {"2048", "1025", "3", "3", "4", "0"}); // beyond 2^21 bolts
    EXPECT_EQ(Cell(5, 7) + Cell(5, 8), "0.000  0.000  ");
    EXPECT_EQ(Remark(5), tooManyBoltsRemark);
    Type(5, BoltColumn::ex, "0");
    EXPECT_EQ(Cell(5, 7) + Remark(5), "2,099,200.000  ");
    EXPECT_EQ(page->cFlex.Remark(5, BoltColumn::CPrime), tooManyBoltsRemark);
    Type_Row(3, {"1", "1", "3", "3", "4", "0"});
    EXPECT_EQ(Cell(3, 7) + Cell(3, 8), "0.000  0.000  ");
    Type_Row(4, {"2", "2", "1E300", "3", "1E300", "0"});
    EXPECT_NE(Cell(4, 7), "");
}

TEST_F(BoltPageTest, TheKeysOfTheEditor) {
    BoltPage& p = Start();
    p.cFlex.Move_To(1, 1);
    p.cFlex.OnKeyPress('x');
    EXPECT_FALSE(p.EdiTxt.Visible());
    p.cFlex.OnKeyPress('1');
    EXPECT_TRUE(p.EdiTxt.Visible());
    p.EdiTxt.Set_Text("1.5");
    EXPECT_EQ(p.EdiTxt.OnKeyPress('.'), 0);
    EXPECT_EQ(p.EdiTxt.OnKeyPress('7'), '7');
    p.EdiTxt.OnKeyDown(Keys::Tab);
    EXPECT_EQ(Cell(1, 1), "1.500  ");
    EXPECT_EQ(p.cFlex.Col(), 2);
    for (int col : {0, 7, 8}) {
        p.cFlex.Move_To(1, col);
        p.cFlex.OnKeyPress('1');
        p.cFlex.OnKeyDown(Keys::Delete);
        p.cFlex.OnDblClick();
        EXPECT_FALSE(p.EdiTxt.Visible()) << col;
    }
    EXPECT_EQ(Cell(1, 0), "1");
}

TEST_F(BoltPageTest, AnUnbalancedResultCarriesARemark) {
    BoltPage& p = Start();
    Type_Row(1, {"3", "1", "3", "3", "8", "0"});
    EXPECT_EQ(Cell(1, 7), "3.000  ");
    EXPECT_EQ(p.cFlex.Remark(0, BoltColumn::C), farthestBoltRemark);
    EXPECT_TRUE(Remark(1).starts_with("Use C = "));
    p.cFlex.Move_To(1, 1);
    EXPECT_EQ(p.RowRemark.Caption(), Remark(1));
    p.SaveButton.Click();
    machine.Events.Waiting.clear();
    Start();
    EXPECT_TRUE(Remark(1).empty()); // found when there is nothing else to do
    machine.Events.Be_Idle();
    EXPECT_FALSE(Remark(1).empty()); // a saved result is no better
    EXPECT_EQ(page->RowRemark.Caption(), Remark(1));
    EXPECT_TRUE(Remark(2).empty());
    Start();
    Type(1, BoltColumn::ex, "0");
    machine.Events.Be_Idle();
    EXPECT_TRUE(Remark(1).empty()); // its own
}

TEST_F(BoltPageTest, TheLineUnderTheTableNamesEachRowNotToUse) {
    BoltPage& p = Start();
    EXPECT_EQ(p.Verdicts.Text(),
              "Type m, n, sv, sh, ex and Ø: a row is computed when it is complete");
    Type_Row(1, sixInLine);
    EXPECT_EQ(p.Verdicts.Text(), "All rows in equilibrium within 2.5 %");
    Type_Row(3, {"3", "1", "3", "3", "8", "0"});
    Type_Row(4, {"4", "2", "3", "3", "8", "30"});
    EXPECT_EQ(p.Verdicts.Text(), "Row 3: use C = 0.732 (shown 3.000). Row 4: use C = 3.147 (shown "
                                 "3.253).");
    EXPECT_EQ(p.Verdicts.Rows().at(3).Weight, RemarkWeight::Unsafe);
    p.Verdicts.OnChoose(3);
    EXPECT_EQ(p.cFlex.Row(), 3);
    EXPECT_EQ(p.RowRemark.Caption_Weight(), RemarkWeight::Unsafe);
    std::string meanwhile;
    Meanwhile([&] { meanwhile = p.Verdicts.Text(); });
    Type(3, 5, "9");
    EXPECT_TRUE(meanwhile.starts_with("Row 3: computing")) << meanwhile;
    Delete(4, 3);
    Delete(3, 3);
    EXPECT_EQ(p.Verdicts.Text(), "All rows in equilibrium within 2.5 %");
    p.cFlex.Set_Text(1, BoltColumn::C, "4.000  "); // as another program may have saved it
    p.SaveButton.Click();
    Start();
    machine.Events.Be_Idle();
    EXPECT_EQ(page->Verdicts.Text(), "Row 1: 4.000 is on the safe side of C = 4.474.");
    EXPECT_EQ(page->Verdicts.Rows().at(1).Weight, RemarkWeight::Note);
}

TEST_F(BoltPageTest, AddAndRemoveRows) {
    BoltPage& p = Start();
    EXPECT_EQ(p.cFlex.Rows(), 16);
    EXPECT_FALSE(p.RemRowButton.Enabled());
    p.AddRowButton.Click();
    p.AddRowButton.Click();
    EXPECT_EQ(p.cFlex.Rows(), 18);
    EXPECT_EQ(p.cFlex.Top_Row(), 7);
    EXPECT_EQ(Cell(p.cFlex.Row(), 0), "17");
    EXPECT_EQ(p.cFlex.Style(17, 1), p.cFlex.Style(1, 1));
    EXPECT_EQ(p.cFlex.Style(17, 8), p.cFlex.Style(1, 8));
    Type_Row(17, sixInLine);
    p.cFlex.Move_To(17, 2);
    p.cFlex.OnKeyDown(Keys::F2);
    p.RemRowButton.Click(); // with what is being typed there
    p.RemRowButton.Click();
    EXPECT_FALSE(p.EdiTxt.Visible() || p.RemRowButton.Enabled());
    EXPECT_EQ(p.ccFlex.Text(0, 1), "");
    p.RemRowButton.OnClick();
    EXPECT_EQ(p.cFlex.Rows(), 16);
    p.AddRowButton.Click();
    EXPECT_EQ(Cell(16, 1), "");
    p.Save_Settings();
    EXPECT_EQ(machine.Store.Get("cFlexRows"), "17");
}

TEST_F(BoltPageTest, TheSavedCountOfRows) {
    using Case = std::pair<const char*, int>;
    for (const auto& [saved, rows] :
         {Case{"20", 20}, Case{"20.5", 20}, Case{"3", 16}, Case{"-5", 16}, Case{"abc", 16},
          Case{"1E9", 16}, Case{"32768", 32768}}) {
        machine.Store.Set("cFlexRows", saved);
        EXPECT_EQ(Start().cFlex.Rows(), rows) << saved;
    }
    page->AddRowButton.Click(); // a row that could not be saved
    EXPECT_EQ(page->cFlex.Rows(), 32768);
}

TEST_F(BoltPageTest, SaveAndTheNextStart) {
    BoltPage& p = Start();
    p.SaveButton.Click();
    EXPECT_EQ(machine.Boxes.Shown.back(), "For Your Info:|No Entries to Save ! |exclamation");
    Type_Row(5, sixInLine);
    Type_Row(6, {"6", "1"}); // not complete: not saved
    p.AddRowButton.Click();
    Type_Row(16, sixInLine);
    Begin(16, 5, "0"); // still in the editor
    p.SaveButton.Click();
    EXPECT_EQ(machine.Boxes.Shown.back(), "Warning:|Entries succesfully Saved ! |information");
    const std::size_t messages = machine.Boxes.Shown.size();
    p.Save_Settings();

    Start();
    EXPECT_EQ(Cell(5, 7) + Cell(6, 1) + Cell(16, 5) + Cell(16, 7), "4.558  0.000  6.000  ");
    machine.Store.Set("cFlexRows", "16");
    Start();
    EXPECT_EQ(page->cFlex.Rows(), 16); // row 16 is beyond the grid now
    EXPECT_EQ(Cell(5, 7), "4.558  ");
    EXPECT_EQ(machine.Boxes.Shown.size(), messages);
}

TEST_F(BoltPageTest, ClearAsksAndDeletesTheFile) {
    BoltPage& p = Start();
    p.ClearButton.Click();
    EXPECT_EQ(machine.Boxes.Shown.back(), "Warning:|No Entries to Clear ! |exclamation");
    Type_Row(1, sixInLine);
    Type(2, 1, "9");
    p.SaveButton.Click();
    machine.Boxes.Answer = false;
    p.ClearButton.Click();
    EXPECT_EQ(machine.Boxes.Shown.back(),
              "Warning:|Are you sure you really want to clear Entries?|stop");
    EXPECT_EQ(Cell(1, 7), "4.558  ");
    machine.Boxes.Answer = true;
    p.ClearButton.Click();
    EXPECT_EQ(Row(1) + Row(2), noTexts + noTexts);
    EXPECT_EQ(Cell(1, 0), "1");
    EXPECT_TRUE(std::filesystem::is_empty(machine.Data.Path));
}

TEST_F(BoltPageTest, CompleteRowsThatAreNotSavedAreCounted) {
    BoltPage& p = Start();
    EXPECT_EQ(p.UnsavedNote.Caption(), "");
    Type_Row(1, sixInLine);
    Type_Row(3, {"6", "1"});
    EXPECT_EQ(p.UnsavedNote.Caption(), "1 row not saved");
    Type_Row(2, sixInLine);
    std::filesystem::remove(File());
    std::filesystem::create_directory(File());
    p.SaveButton.Click(); // in vain
    EXPECT_EQ(p.UnsavedNote.Caption(), "2 rows not saved");
    std::filesystem::remove(File());
    p.SaveButton.Click();
    EXPECT_EQ(p.UnsavedNote.Caption(), "");
    EXPECT_EQ(Start().UnsavedNote.Caption(), "");
    Type(2, BoltColumn::ex, "5");
    EXPECT_EQ(page->UnsavedNote.Caption(), "1 row not saved");
    Type(2, BoltColumn::ex, "4");
    EXPECT_EQ(page->UnsavedNote.Caption(), "");
}

TEST_F(BoltPageTest, ABlockOfRowsIsPastedWholeOrNotAtAll) {
    BoltPage& p = Start();
    p.cFlex.Move_To(2, 1);
    machine.Clip.Set_Text("6\t1\t3\t3\t4\t0\n4\t2\t3\t3\t8\t30\n");
    p.cFlex.OnPaste();
    EXPECT_EQ(Cell(2, 1) + Cell(3, 6), "6.000  30.000  ");
    EXPECT_EQ(Cell(2, 7) + Cell(3, 7), "4.558  3.253  ");
    machine.Clip.Set_Text("1\t2\n3\t1E999\n");
    p.cFlex.OnPaste();
    EXPECT_EQ(machine.Boxes.Shown.back(),
              "Warning|Invalid input for row 3. Nothing was pasted.|stop");
    EXPECT_EQ(Cell(2, 1), "6.000  ");
    p.cFlex.Select_Range(2, 1, 3, 6);
    p.cFlex.OnKeyDown(Keys::Delete);
    EXPECT_EQ(Row(2) + Row(3), noTexts + noTexts);
}

// An edit and a clearing come back with their results.
TEST_F(BoltPageTest, UndoBringsInputsBackAndComputesThem) {
    BoltPage& p = Start();
    Type_Row(2, sixInLine);
    Type_Row(9, sixInLine);
    const auto table = [&] { return p.cFlex.Clip_Of(1, 0, p.cFlex.Rows() - 1, 8); };
    const std::string whole = table();
    Type(9, BoltColumn::ex, "8");
    EXPECT_NE(table(), whole);
    p.cFlex.OnUndo();
    EXPECT_EQ(table(), whole);
    EXPECT_EQ(p.cFlex.Row(), 9);
    p.ClearButton.Click();
    EXPECT_EQ(CountBoltRows(p.cFlex), 0);
    p.cFlex.OnUndo();
    EXPECT_EQ(table(), whole);
    EXPECT_EQ(p.xxFlex.Text(2, 1), "4.558  "); // the current row's
    for (int step = 0; step < 12; ++step)
        p.cFlex.OnUndo();
    EXPECT_EQ(p.cFlex.Clip_Of(1, 1, 15, 8).find_first_not_of("\t\r"), std::string::npos);
    p.cFlex.OnUndo(); // there is nothing left
}

// The writer never makes such rows; the heads stay whatever a file says.
TEST_F(BoltPageTest, RowNumbersOfADamagedFile) {
    ScriptedMessages quiet;
    std::vector<BoltRow> rows;
    for (const std::int16_t number : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{-32768},
                                      std::int16_t{16}, std::int16_t{32767}, std::int16_t{15}})
        rows.push_back({number, {"x", "x", "x", "x", "x", "x", "x", "x"}});
    WriteBoltFile(rows, File(), quiet);
    Start();
    EXPECT_EQ(Cell(0, 5) + Cell(14, 1) + ", " + Cell(15, 8), "Load Eccentricity, x");
}

TEST_F(BoltPageTest, ARowThatIsBeingComputedShowsIt) {
    BoltPage& p = Start();
    std::string shown;
    Meanwhile([&] {
        p.cFlex.Move_To(1, 6);
        shown = p.RowRemark.Caption() + Cell(1, 7) + Cell(1, 8);
    });
    Type_Row(1, overshooting);
    EXPECT_EQ(shown, "Computing ...");
    EXPECT_EQ(Cell(1, 7), "12.000  ");
    EXPECT_NE(p.RowRemark.Caption(), "Computing ...");
}

// What happens to a row while it is being computed.
TEST_F(BoltPageTest, TheNewestInputsResultStands) {
    BoltPage& p = Start();
    const auto during = [&](std::function<void()> what) {
        for (int col = 1; col < BoltColumn::Count; ++col)
            p.cFlex.Set_Text(1, col, "");
        Meanwhile(std::move(what));
        Type_Row(1, overshooting);
    };
    during([&] { Type(1, 6, "0"); });
    EXPECT_EQ(Cell(1, 7) + Cell(1, 8), "7.310  54.167  ");

    during([&] { Type_Row(2, sixInLine); }); // each result in its own row
    EXPECT_EQ(Cell(1, 7) + Cell(2, 7), "12.000  4.558  ");

    during([&] { Delete(1, 4); });
    EXPECT_EQ(Cell(1, 7) + Cell(1, 8) + Remark(1), "");

    during([&] {
        Type_Row(1, sixInLine);
        p.ClearButton.Click();
    });
    EXPECT_EQ(Cell(1, 1) + Cell(1, 7) + Remark(1), "");
}

TEST_F(BoltPageTest, ARowRemovedWhileItIsComputed) {
    BoltPage& p = Start();
    p.AddRowButton.Click();
    Meanwhile([&] {
        p.RemRowButton.Click();
        p.AddRowButton.Click(); // an empty one in its place
    });
    Type_Row(16, overshooting);
    EXPECT_EQ(Row(16), noTexts);
}

// A click on the last row commits first; by the time the row is gone.
TEST_F(BoltPageTest, TheRowThatIsGoneToIsRemovedMeanwhile) {
    BoltPage& p = Start();
    p.AddRowButton.Click();
    Type_Row(1, {"6", "2", "3", "3", "6"});
    Begin(1, 6, "75");
    Meanwhile([&] { p.RemRowButton.Click(); });
    p.cFlex.Press(16, 1);
    EXPECT_EQ(p.cFlex.Rows(), 16);
    EXPECT_EQ(p.cFlex.Row(), 1);
    EXPECT_EQ(Cell(1, 7), "12.000  ");
}

TEST_F(BoltPageTest, ClosingEndsSearchesAtAnyDepthAndShowsNoMessage) {
    BoltPage& p = Start();
    Type_Row(2, sixInLine);
    int depth = 0;
    bool closing = false;
    machine.Events.OnYield = [&] {
        if (!closing && ++depth <= 5)
            Type_Row(2 + depth, overshooting);
        closing = true;
        return false;
    };
    p.cFlex.Move_To(1, 1);
    Type_Row(1, {"6", "2", "3", "3", "6"});
    Begin(1, 6, "75");
    p.SaveButton.Click(); // commits first, which starts the search
    EXPECT_EQ(depth, 6);
    EXPECT_TRUE(machine.Boxes.Shown.empty());
    EXPECT_EQ(Cell(1, 7), "");
}
