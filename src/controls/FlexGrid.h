// The table that all grids share. Measures are in twips (1440 to the inch, 15 to a pixel at 96
// dots per inch). Rows and columns count from 0, the fixed ones first. An index outside the grid
// fails. Writing a cell costs about as much as writing a string.
#pragma once

#include "controls/Controls.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Tensarix {

// A colour value in the order blue, green, red. The view shows the colours named here as they are
// under a light theme, and by colours with the same meaning under a dark one.
using Colour = std::uint32_t;

namespace Colours {
// NOLINTBEGIN(readability-identifier-naming): named as those of an enumeration
inline constexpr Colour Standard = 0xFFFFFFFF; // whatever the theme has
inline constexpr Colour HeadBack = 0xFFFFC0;   // pale cyan
inline constexpr Colour HeadText = 0x0000FF;   // red
inline constexpr Colour SymbolText = 0xFF0000; // blue
inline constexpr Colour NameText = 0x800000;   // dark blue
// NOLINTEND(readability-identifier-naming)
} // namespace Colours

enum class Alignment : std::uint8_t { Left = 1, Centre = 4, Right = 7 };

struct CellStyle {
    Alignment Align = Alignment::Left;
    bool Tahoma = false; // asked for by name, with a sans-serif substitute
    bool Bold = false;
    Colour Fore = Colours::Standard;
    Colour Back = Colours::Standard;

    bool operator==(const CellStyle&) const = default;
};

// Of the heads of all grids.
inline constexpr CellStyle headStyle{.Align = Alignment::Centre,
                                     .Tahoma = true,
                                     .Fore = Colours::HeadText,
                                     .Back = Colours::HeadBack};

class FlexGrid {
  public:
    Handler OnLeaveCell; // before the current cell changes
    Handler OnSelChange; // after the current cell has changed
    Handler OnMouseDown; // left button, after the cell under it has become current
    Handler OnKeyMove;   // after the keys have moved the current cell or the selection
    Handler OnPopup;     // right button up, or the keyboard's menu key
    Handler OnMenu;      // the same, of a grid that takes no click beside its cells
    Handler OnCopy;      // Ctrl+C
    Handler OnPaste;     // Ctrl+V
    Handler OnUndo;      // Ctrl+Z
    Handler OnDblClick;
    std::function<void(int col)> OnHeadClick; // a head was clicked, and is no longer pressed
    Handler OnScroll;
    std::function<void(double xTwips)> OnMouseMove; // from the grid's left edge
    std::function<void(int keyAscii)> OnKeyPress;
    KeyHandler OnKeyDown;
    std::function<bool(bool back)> OnTab; // true: it has gone to another cell, the focus stays
    Handler BringIntoView;                // the view's: scrolls until the current cell shows
    FocusPoint Focus;
    View Shown;

    int Rows() const { return rows_; }
    int Cols() const { return cols_; }
    int FixedRows() const { return fixedRows_; }
    int FixedCols() const { return fixedCols_; }
    // Rows and columns that stay keep what they hold; new ones are blank.
    void Set_Rows(int rows);
    void Set_Cols(int cols);
    void Set_Fixed(int fixedRows, int fixedCols);

    // Empties all cells: texts, styles and remarks. The size stays.
    void Clear();

    const std::string& Text(int row, int col) const;
    // The cell's remark goes.
    void Set_Text(int row, int col, std::string text);
    const CellStyle& Style(int row, int col) const;
    void Set_Style(int row, int col, const CellStyle& style);
    // An advisory of a cell, never part of its text; empty: none.
    const std::string& Remark(int row, int col) const;
    RemarkWeight Remark_Weight(int row, int col) const; // Note where there is no remark
    void Set_Remark(int row, int col, std::string remark, RemarkWeight weight = RemarkWeight::Note);
    // What is to be known of a cell. More than a note about a column is one about all of its
    // values: a text has the weight of its head's remark and, without one of its own, its words.
    Advice Told_Of(int row, int col) const;

    // The row at a place below the head takes what the one at order[place] held: texts, styles and
    // remarks. order: every place once, from 0; rows behind them stay.
    void Reorder_Rows(const std::vector<int>& order);
    // The column that the rows are sorted by; -1: none. Clearing the grid ends it.
    int Sort_Col() const { return sortCol_; }
    bool Sort_Descends() const { return sortDescends_; }
    void Set_Sort(int col, bool descends);

    double Row_Height(int row) const;
    void Set_Row_Height(int row, double twips);
    void Set_Row_Height_Min(double twips);
    // Heads that are wider than their column go on in the next line.
    bool Word_Wrap() const { return wordWrap_; }
    void Set_Word_Wrap(bool wordWrap);
    double Col_Width(int col) const;
    void Set_Col_Width(int col, double twips);

    int Row() const { return row_; }
    int Col() const { return col_; }
    int Row_Sel() const { return rowSel_; }
    int Col_Sel() const { return colSel_; }
    // Makes the cell the current one and the selection; true if it wasn't the current one. Runs
    // OnLeaveCell before and OnSelChange after. A cell that OnLeaveCell has taken away is not gone
    // to.
    bool Move_To(int row, int col);
    // The selection goes from the current cell to this one.
    void Extend_To(int row, int col);
    // Whether the selection is shown.
    bool Highlight() const { return highlight_; }
    void Set_Highlight(bool highlight) {
        highlight_ = highlight;
        Shown.Changed();
    }
    // Selects from one cell to another; the first is the current one then. No handler runs.
    void Select_Range(int row, int col, int rowSel, int colSel);

    // First row and column in view behind the fixed ones. Kept inside the grid.
    int Top_Row() const { return topRow_; }
    int Left_Col() const { return leftCol_; }
    void Set_Top_Row(int row);
    void Set_Left_Col(int col);
    // A column that is looked at: on a tinted ground, and in view once it has become it. -1: none,
    // which clearing the grid makes it.
    int Marked_Col() const { return markedCol_; }
    void Set_Marked_Col(int col);

    // Where the grid lies on its form.
    const Placement& Place() const { return place_; }
    void Set_Place(const Placement& place) { place_ = place; }
    // The current cell inside the grid, as far as row heights and column widths tell.
    Placement Cell_Place() const;

    // The selected cells, a tab between cells and a carriage return between rows.
    std::string Clip() const { return Clip_Of(row_, col_, rowSel_, colSel_); }
    // The same of the cells between these two.
    std::string Clip_Of(int row1, int col1, int row2, int col2) const;

    // What the user does, for the view and for tests.
    void Press(int row, int col); // left button down on a cell
    // Left button down on the head row, or below the last one: a grid that has a popup takes it for
    // a click on its current cell.
    void Press_Beside();
    void Go_To(int row, int col, bool extend); // by the keys; extend: the selection alone
    void Select_All();                         // by the keys; where cells are edited, without heads

    // Counts the changes of size, heights and widths, so that a view knows when to measure again.
    unsigned Layout_Version() const { return layoutVersion_; }
    // Counts the writings of texts: what a view knows of their widths may no longer hold.
    unsigned Texts_Version() const { return textsVersion_; }

  private:
    struct Cell {
        std::string Text;
        CellStyle Style;
    };

    std::size_t At(int row, int col) const;
    const Advice& Remark_Of(int row, int col) const;
    void Layout_Changed();
    void Keep_Position_Inside();

    std::vector<Cell> cells_ = std::vector<Cell>(4);
    std::vector<double> heights_ = std::vector<double>(2, -1), widths_ = std::vector<double>(2, -1);
    std::map<std::pair<int, int>, Advice> remarks_;
    int rows_ = 2, cols_ = 2, fixedRows_ = 1, fixedCols_ = 1;
    int row_ = 1, col_ = 1, rowSel_ = 1, colSel_ = 1;
    int topRow_ = 1, leftCol_ = 1, markedCol_ = -1;
    double heightMin_ = 0;
    bool wordWrap_ = false, highlight_ = true;
    int sortCol_ = -1;
    bool sortDescends_ = false;
    Placement place_;
    unsigned layoutVersion_ = 0, textsVersion_ = 0;
};

} // namespace Tensarix
