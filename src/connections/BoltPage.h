// The bolt coefficient page: a table of bolt groups, one a row, computed as they are typed in. It
// is kept from run to run in a file that only Save writes and only Clear deletes.
#pragma once

#include "connections/Balance.h"
#include "connections/BoltFunctions.h"
#include "connections/DataHandling.h"
#include "connections/RowVerdicts.h"
#include "controls/CellEditing.h"
#include "controls/Controls.h"
#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"

#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

// The columns of the table. Lengths are in any one unit, the angle in degrees.
namespace BoltColumn {
// NOLINTBEGIN(readability-identifier-naming): named as those of an enumeration
inline constexpr int Number = 0, m = 1, n = 2, sv = 3, sh = 4, ex = 5, Angle = 6;
inline constexpr int C = 7, CPrime = 8;
inline constexpr int Count = 9;
inline constexpr int FirstInput = m, LastInput = Angle;
// NOLINTEND(readability-identifier-naming)
} // namespace BoltColumn

// On results that are 0 because there are more bolts than can be computed.
inline constexpr std::string_view tooManyBoltsRemark =
    "Not computed, and shown as 0: more than 2,097,152 bolts";
inline constexpr int leastBoltRowCount = 16; // the head row counts
// On the head of C. The tables count each bolt with its own (1 - e^(-10 D))^0.55.
inline constexpr std::string_view farthestBoltRemark =
    "The farthest bolt counts as 1 here, as 0.9815 in the Manual's tables: where a row carries no "
    "remark, C is 1.9 to 2.5 % above theirs";

// True if no input of the row is blank.
bool IsBoltRowComplete(const FlexGrid& grid, int row);
// Of the rows below the head.
int CountBoltRows(const FlexGrid& grid);
// A text that isn't blank becomes a number with three to five decimals. Counts of bolts
// too: all columns read alike.
void ModifyTextC(TextBox& editor);

class BoltPage {
  public:
    FlexGrid cFlex;          // the table
    FlexGrid ccFlex, xxFlex; // the current row once more
    Label RowRemark;         // what is to be said about it
    DrawingBox GroupSketch;  // its group
    RowVerdicts Verdicts;    // which rows not to use as they are
    Label UnsavedNote;       // how many complete rows are not in the file as they stand
    TextBox EdiTxt;          // over the cell that is being edited
    Button AddRowButton, RemRowButton, SaveButton, ClearButton;

    explicit BoltPage(Desk& desk);
    BoltPage(const BoltPage&) = delete;

    // Once at start: the saved count of rows, the grids, the saved entries.
    void Start();
    void Save_Settings() const;

    void Init_cFlex();
    void Init_valFlex();
    void LoadBoltEntries();
    // The two results of a row, or blanks if an input is missing. Lets the event loop turn, so that
    // rows can be edited meanwhile; of several searches of one row the newest counts, and one whose
    // row is emptied or removed meanwhile writes nothing.
    void Calculate_C(int row);

  private:
    struct Inputs {
        BoltGroup Group;
        double ex = 0;
        double Angle = 0;
        bool operator==(const Inputs&) const = default;
    };
    // What was found out about the inputs of a row; it counts for no others.
    struct Solution {
        Inputs Of;
        std::optional<Balance> Balanced;
        // How far out the search's own centre ended: not looked for yet, or not found in the time
        // that a drawing may take.
        std::optional<std::optional<double>> SearchRo;
    };

    void Add_Editing();
    void Show_Selected(); // the current row in the small grids
    void Draw_Group();
    Solution& Solution_Of(int row, const Inputs& inputs);
    static std::optional<double> Search_Centre(const Inputs& inputs);
    void Take_Row_Count();
    void Lay_Out_Row(int row);
    void AddRow_Click();
    void RemRow_Click();
    void Save_Click();
    void Clear_Click();
    void Fill_BoltEntries();
    Inputs Row_Inputs(int row) const;
    BoltSearchEnd Search(int row, const Inputs& inputs, unsigned search);
    void Show_Results(int row, double C, double CPrime);
    void Remark_On(int row, double C);
    void Show_No_Doubt();
    void Choose_Row(int row);
    void Remark_On_Next(); // of the rows that were read
    void Remember_Saved();
    void Show_Unsaved();
    bool Is_Saved(int row) const;
    void Paste();
    void Empty_Results(int row);
    void Clear_Rows();
    bool Commit_Editor();
    std::filesystem::path File() const;

    Desk& desk_;
    float BoltRowCount = leastBoltRowCount;
    std::vector<BoltRow> BoltEntries;
    std::map<int, unsigned> newestSearch_; // by row
    std::map<int, Solution> solutions_;    // by row
    std::map<int, BoltRow> saved_;         // the file, by row
    std::deque<int> unremarked_;           // rows that were read
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    CellEditing editing_;
};

} // namespace Tensarix
