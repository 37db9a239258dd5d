#include "connections/BoltPage.h"

#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "connections/BoltDrawing.h"
#include "connections/Numbers.h"
#include "connections/SearchYield.h"
#include "measures/InputFunction.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr std::string_view inputPattern = "0.000##  ";
constexpr std::string_view resultPattern = "##,##0.000  ";
constexpr std::string_view computingRemark = "Computing ...";
constexpr int rowsBelowTop = 11; // an added row stands so many rows below the top

bool Is_Input(int row, int col) {
    return row > 0 && col >= BoltColumn::FirstInput && col <= BoltColumn::LastInput;
}

// Lays out one of the two small grids: names on the left, values on the right.
void Lay_Out_Values(FlexGrid& grid, std::initializer_list<const char*> names) {
    grid.Clear();
    grid.Set_Cols(2);
    grid.Set_Rows(static_cast<int>(names.size()));
    grid.Set_Fixed(0, 1);
    grid.Set_Row_Height_Min(340);
    grid.Set_Col_Width(0, 450);
    grid.Set_Col_Width(1, 1150);
    int row = 0;
    for (const char* name : names) {
        grid.Set_Style(row, 0, {.Align = Alignment::Centre, .Fore = Colours::SymbolText});
        grid.Set_Style(row, 1, {.Align = Alignment::Right});
        grid.Set_Text(row++, 0, name);
    }
    grid.Select_Range(0, 1, 0, 1);
    grid.Set_Highlight(false); // it shows, nothing is chosen in it
}

// Of a pasted text, which no key filter has passed.
std::optional<std::string> Pasted_Input(const std::string& text) {
    if (!Is_Numeric(text))
        return std::nullopt;
    return Format_Number(Text_Number(text), inputPattern);
}

std::string With_Blanks(const std::string& text, std::string_view behind) {
    const std::string value = Trim(text);
    return value.empty() ? value : value + std::string{behind};
}

} // namespace

bool IsBoltRowComplete(const FlexGrid& grid, int row) {
    for (int col = BoltColumn::FirstInput; col <= BoltColumn::LastInput; ++col)
        if (Trim(grid.Text(row, col)).empty())
            return false;
    return true;
}

int CountBoltRows(const FlexGrid& grid) {
    int count = 0;
    for (int row = 1; row < grid.Rows(); ++row)
        count += IsBoltRowComplete(grid, row) ? 1 : 0;
    return count;
}

void ModifyTextC(TextBox& editor) {
    editor.Set_Text(Typed_In_Pattern(editor.Text(), inputPattern));
}

BoltPage::BoltPage(Desk& desk)
    : desk_(desk), editing_(cFlex, [this] { desk_.Host.Events.Turn(); }) {
    AddRowButton.Set_Caption("Add Row");
    RemRowButton.Set_Caption("Remove Row");
    SaveButton.Set_Caption("Save Entries");
    ClearButton.Set_Caption("Clear Entries");
    AddRowButton.OnClick = [this] { AddRow_Click(); };
    RemRowButton.OnClick = [this] { RemRow_Click(); };
    SaveButton.OnClick = [this] { Save_Click(); };
    ClearButton.OnClick = [this] { Clear_Click(); };
    cFlex.OnSelChange = [this] { Show_Selected(); };
    cFlex.OnMouseDown = [this] { desk_.GridClicked = true; };
    Verdicts.OnChoose = [this](int row) { Choose_Row(row); };
    cFlex.OnPaste = [this] { Paste(); };
    Add_Editing();
}

void BoltPage::Add_Editing() {
    editing_.Add(CellEditing::TextCells{
        EdiTxt,
        Is_Input,
        Filter_Decimal,
        [this](int keyAscii) { return Filter_Single_Point(keyAscii, EdiTxt.Text()); },
        {},
        [this] { ModifyTextC(EdiTxt); },
        [this](const std::string&) { Calculate_C(cFlex.Row()); },
        Pasted_Input});
}

void BoltPage::Start() {
    Take_Row_Count();
    Init_cFlex();
    Init_valFlex();
    Show_No_Doubt();
    LoadBoltEntries();
    editing_.History.Start();
    Show_Selected();
}

void BoltPage::Take_Row_Count() {
    Attempt([this] {
        const double saved =
            Largest_Of({leastBoltRowCount, desk_.Saved.Number(Setting::cFlexRows)});
        if (saved > mostBoltRows + 1)
            throw Failure("too many rows");
        BoltRowCount = static_cast<float>(saved);
    });
}

void BoltPage::Save_Settings() const {
    desk_.Saved.Save(Setting::cFlexRows, General_Text(static_cast<double>(BoltRowCount)));
}

void BoltPage::Init_cFlex() {
    // For heads of three lines: what the table doesn't need is the drawing's.
    const double widths[BoltColumn::Count] = {550, 1300, 1300, 1250, 1250, 1100, 1500, 1150, 1150};
    const char* heads[BoltColumn::Count] = {"No.",
                                            "Number of Bolt Rows on the Vertical",
                                            "Number of Bolt Rows on the Horizontal",
                                            "Bolt Spacing on the Vertical",
                                            "Bolt Spacing on the Horizontal",
                                            "Load Eccentricity",
                                            "Load Angle from the Vertical [degrees]",
                                            "Bolt Group Coefficient\n[C]",
                                            "Bolt Group Coefficient\n[C']"};
    cFlex.Clear();
    cFlex.Set_Rows(Whole_32(static_cast<double>(BoltRowCount)));
    cFlex.Set_Cols(BoltColumn::Count);
    cFlex.Set_Fixed(1, 1);
    cFlex.Set_Row_Height_Min(350);
    cFlex.Set_Word_Wrap(true);
    for (int col = 0; col < BoltColumn::Count; ++col) {
        cFlex.Set_Col_Width(col, widths[col]);
        cFlex.Set_Style(0, col, headStyle);
        cFlex.Set_Text(0, col, heads[col]);
    }
    cFlex.Set_Remark(0, BoltColumn::C, std::string{farthestBoltRemark});
    for (int row = 1; row < cFlex.Rows(); ++row)
        Lay_Out_Row(row);
    cFlex.Select_Range(1, 1, 1, 1);
    RemRowButton.Enable(BoltRowCount > leastBoltRowCount);
}

void BoltPage::Lay_Out_Row(int row) {
    for (int col = 0; col < BoltColumn::Count; ++col) {
        CellStyle style;
        style.Align = col <= BoltColumn::n ? Alignment::Centre : Alignment::Right;
        if (col == BoltColumn::Number || col >= BoltColumn::C)
            style.Fore = Colours::SymbolText;
        cFlex.Set_Style(row, col, style);
    }
    cFlex.Set_Text(row, BoltColumn::Number, std::to_string(row));
}

void BoltPage::Init_valFlex() {
    Lay_Out_Values(ccFlex, {"m", "n", "sv", "sh"});
    Lay_Out_Values(xxFlex, {"ex", "Ø", "C", "C'"});
}

// The results stay as saved. What is to be said about them is found anew, a row at a time and only
// when nothing else is to be done: a long table doesn't keep the first window waiting.
void BoltPage::Remark_On_Next() {
    if (unremarked_.empty())
        return;
    desk_.Host.Events.When_Idle([this, alive = std::weak_ptr(alive_)] {
        if (alive.expired() || unremarked_.empty())
            return;
        const int row = unremarked_.front();
        unremarked_.pop_front();
        // A row that was computed, emptied or removed meanwhile is another one.
        if (!newestSearch_.contains(row))
            Remark_On(row, Typed_Number(cFlex.Text(row, BoltColumn::C)));
        if (row == cFlex.Row())
            Show_Selected();
        if (unremarked_.empty())
            Show_No_Doubt();
        Remark_On_Next();
    });
}

void BoltPage::Show_Selected() {
    const int row = cFlex.Row();
    const auto text = [this, row](int col) -> const std::string& { return cFlex.Text(row, col); };
    for (int i = 0; i < ccFlex.Rows(); ++i)
        ccFlex.Set_Text(i, 1, With_Blanks(text(BoltColumn::m + i), "  "));
    for (int i = 0; i < xxFlex.Rows(); ++i) {
        const int col = BoltColumn::ex + i;
        xxFlex.Set_Text(i, 1, With_Blanks(text(col), col == BoltColumn::Angle ? "°  " : "  "));
    }
    RowRemark.Set_Caption(cFlex.Remark(row, BoltColumn::C),
                          cFlex.Remark_Weight(row, BoltColumn::C));
    Draw_Group();
}

BoltPage::Solution& BoltPage::Solution_Of(int row, const Inputs& inputs) {
    Solution& solution = solutions_[row];
    if (!(solution.Of == inputs))
        solution = {inputs, Balanced_Bolts(inputs.Group, inputs.ex, inputs.Angle), {}};
    return solution;
}

// Where the search's own centre ends, for a row that was read with its results; none if that takes
// longer than a drawing may.
std::optional<double> BoltPage::Search_Centre(const Inputs& inputs) {
    constexpr int mostPasses = 500, mostBoltPasses = 40000;
    const int bolts = std::max(1, inputs.Group.m * inputs.Group.n);
    int left = std::min(mostPasses, mostBoltPasses / bolts);
    auto turn = [&left] { return --left > 0; };
    SearchYield yield{turn};
    try {
        return Search_Bolts(inputs.Group, inputs.ex, inputs.Angle, yield).Ro;
    } catch (const SearchAbandoned&) {
        return std::nullopt;
    }
}

void BoltPage::Draw_Group() {
    const int row = cFlex.Row();
    BoltPicture picture;
    const auto take = [this, row](std::optional<double>& target, int col) {
        const std::string text = Trim(cFlex.Text(row, col));
        if (!text.empty())
            Attempt([&] { target = Leading_Value(text); });
    };
    take(picture.m, BoltColumn::m);
    take(picture.n, BoltColumn::n);
    take(picture.sv, BoltColumn::sv);
    take(picture.sh, BoltColumn::sh);
    take(picture.ex, BoltColumn::ex);
    take(picture.Angle, BoltColumn::Angle);
    if (IsBoltRowComplete(cFlex, row)) {
        const Inputs inputs = Row_Inputs(row);
        Solution& solution = Solution_Of(row, inputs);
        if (!solution.SearchRo && !Verdicts.Is_Computing(row))
            solution.SearchRo = Search_Centre(inputs);
        picture.Balanced = solution.Balanced;
        picture.SearchRo = solution.SearchRo.value_or(std::nullopt);
    }
    GroupSketch.Set_Drawing(Bolt_Group_Drawing(picture));
}

// Each number of its own; a count that is out of range stays 0.
BoltPage::Inputs BoltPage::Row_Inputs(int row) const {
    Inputs inputs;
    const auto value = [this, row](int col) { return Typed_Number(cFlex.Text(row, col)); };
    Attempt([&] { inputs.Group.m = Whole_16(value(BoltColumn::m)); });
    Attempt([&] { inputs.Group.n = Whole_16(value(BoltColumn::n)); });
    inputs.Group.sv = value(BoltColumn::sv);
    inputs.Group.sh = value(BoltColumn::sh);
    inputs.ex = value(BoltColumn::ex);
    inputs.Angle = value(BoltColumn::Angle);
    return inputs;
}

void BoltPage::Calculate_C(int row) {
    const unsigned search = ++newestSearch_[row];
    Empty_Results(row);
    Show_Unsaved();
    if (IsBoltRowComplete(cFlex, row)) {
        const Inputs inputs = Row_Inputs(row);
        cFlex.Set_Remark(row, BoltColumn::C, std::string{computingRemark});
        Verdicts.Set(row, {.Words = "computing ...", .Computing = true});
        if (row == cFlex.Row())
            Show_Selected();
        try {
            const double CPrime = BoltCoefficientCPrime(inputs.Group);
            const BoltSearchEnd end = Search(row, inputs, search);
            Solution_Of(row, inputs).SearchRo = end.Ro;
            Show_Results(row, end.C, CPrime);
        } catch (const SearchAbandoned&) {
            return; // the program is closing, or the row is no longer what it was
        }
    }
    if (row == cFlex.Row())
        Show_Selected();
}

BoltSearchEnd BoltPage::Search(int row, const Inputs& inputs, unsigned search) {
    auto turn = [this, row, search] {
        return desk_.Host.Events.Yield() && newestSearch_[row] == search;
    };
    SearchYield yield{turn, boltYieldStride};
    return Search_Bolts(inputs.Group, inputs.ex, inputs.Angle, yield);
}

void BoltPage::Show_Results(int row, double C, double CPrime) {
    Empty_Results(row);
    Attempt([&] { cFlex.Set_Text(row, BoltColumn::C, Format_Number(C, resultPattern)); });
    Attempt([&] { cFlex.Set_Text(row, BoltColumn::CPrime, Format_Number(CPrime, resultPattern)); });
    Remark_On(row, C);
}

void BoltPage::Remark_On(int row, double C) {
    if (!IsBoltRowComplete(cFlex, row))
        return;
    const Inputs inputs = Row_Inputs(row);
    if (int{inputs.Group.m} * inputs.Group.n > mostBolts) {
        for (const int col : {BoltColumn::C, BoltColumn::CPrime})
            if (Typed_Number(cFlex.Text(row, col)) == 0)
                cFlex.Set_Remark(row, col, std::string{tooManyBoltsRemark}, RemarkWeight::Caution);
        Verdicts.Set(row, {"not computed", RemarkWeight::Caution});
        return;
    }
    const auto& balanced = Solution_Of(row, inputs).Balanced;
    const Advice remark = Balance_Remark(C, balanced, boltRemarkTolerance);
    cFlex.Set_Remark(row, BoltColumn::C, remark.Text, remark.Weight);
    if (remark.Text.empty()) {
        Verdicts.Drop(row);
        Show_No_Doubt();
        return;
    }
    std::string words = "not checked";
    if (balanced) {
        const std::string right = Format_Number(balanced->C, "0.000");
        const std::string shown = Trim(cFlex.Text(row, BoltColumn::C));
        words = remark.Weight == RemarkWeight::Unsafe
                    ? "use C = " + right + " (shown " + shown + ")"
                    : shown + " is on the safe side of C = " + right;
    }
    Verdicts.Set(row, {std::move(words), remark.Weight});
}

// What the line under the table says when no row is in doubt.
void BoltPage::Show_No_Doubt() {
    bool any = false;
    for (int row = 1; row < cFlex.Rows() && !any; ++row)
        any = IsBoltRowComplete(cFlex, row);
    if (!any)
        Verdicts.Set_Otherwise(
            "Type m, n, sv, sh, ex and Ø: a row is computed when it is complete");
    else if (!unremarked_.empty())
        Verdicts.Set_Otherwise("Checking the saved rows ...");
    else
        Verdicts.Set_Otherwise("All rows in equilibrium within 2.5 %");
}

void BoltPage::Choose_Row(int row) {
    if (row < 1 || row >= cFlex.Rows())
        return;
    editing_.Leave();
    cFlex.Move_To(row, BoltColumn::C);
    cFlex.Focus.Set();
    Run(cFlex.BringIntoView);
}

void BoltPage::Empty_Results(int row) {
    cFlex.Set_Text(row, BoltColumn::C, {});
    cFlex.Set_Text(row, BoltColumn::CPrime, {});
    Verdicts.Drop(row);
    Show_No_Doubt();
}

void BoltPage::AddRow_Click() {
    if (!Commit_Editor() || cFlex.Rows() > mostBoltRows)
        return; // closing, or a further row could not be saved
    BoltRowCount = BoltRowCount + 1;
    cFlex.Set_Rows(Whole_32(static_cast<double>(BoltRowCount)));
    const int row = cFlex.Rows() - 1;
    cFlex.Set_Top_Row(cFlex.Rows() - rowsBelowTop);
    Lay_Out_Row(row);
    cFlex.Move_To(row, cFlex.Col());
    Run(cFlex.BringIntoView); // fewer rows than that may show
    RemRowButton.Enable(true);
}

void BoltPage::RemRow_Click() {
    BoltRowCount =
        static_cast<float>(Largest_Of({leastBoltRowCount, static_cast<double>(BoltRowCount) - 1}));
    const int rows = Whole_32(static_cast<double>(BoltRowCount));
    for (int row = rows; row < cFlex.Rows(); ++row)
        ++newestSearch_[row];
    if (cFlex.Row() >= rows)
        editing_.Hide(); // what is being typed there goes with the row
    cFlex.Set_Rows(rows);
    Verdicts.Drop_From(rows);
    editing_.History.Forget_Rows(rows);
    Show_No_Doubt();
    RemRowButton.Enable(BoltRowCount > leastBoltRowCount);
    Show_Selected();
    Show_Unsaved();
}

// What is still in the editor counts. False: the program is closing.
bool BoltPage::Commit_Editor() {
    editing_.Leave();
    return desk_.Host.Events.Yield();
}

// As the weight calculators do: a block is taken whole, or not at all.
void BoltPage::Paste() {
    editing_.Leave();
    if (const std::string refusal = editing_.Paste(desk_.Host.Clip.Text()); !refusal.empty())
        desk_.Host.Boxes.Show(refusal + " Nothing was pasted.", "Warning", MessageIcon::Stop);
}

} // namespace Tensarix
