// Sections side by side, as they are put there one by one: up to six, of any families.
#pragma once

#include "controls/Controls.h"
#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"
#include "sections/CompareGrid.h"

#include <array>
#include <string>
#include <vector>

namespace Tensarix {

inline constexpr std::size_t mostCompared = 6;

class ComparePage {
  public:
    OptionButton CompareProfile1, CompareProfile2;
    std::array<DrawingBox, mostCompared> Drawings; // of the sections, by column
    FlexGrid CompareFlex;
    Label CellLabel;   // what the current cell tells
    Label RemarkLabel; // the remark on it
    Label CountLabel;  // how many sections there are, or why one was not taken in
    Button RemoveButton, CopyButton;

    explicit ComparePage(Desk& desk);
    ComparePage(const ComparePage&) = delete;

    enum class Added { New, WasThere, NoRoom };
    // A new one comes to the right end. Either way its column becomes the current one; where there
    // are six others, nothing changes. Fails for a place that isn't in the lists.
    Added Add(SectionPlace place);
    // What the last Add came to, in words.
    const std::string& Told() const { return told_; }
    const std::vector<ComparedSection>& Sections() const { return sections_; }

  private:
    void Choose_Profile(Profile profile);
    void CompareFlex_SelChange();
    void RemoveButton_Click();
    void Fill();
    void Go_To_Column(int col);
    void Show_Count();
    void Show_Current();
    int Current() const; // the position of the column's section, -1: none
    const ComparedSection& Current_Section() const {
        return sections_[static_cast<std::size_t>(Current())];
    }
    struct CellTexts { // all empty outside the columns of sections
        std::string Name, Symbol, Value, Unit, Meaning;
    };
    CellTexts Current_Cell() const;
    void Copy(const std::string& text);
    SectionView View() const;

    Desk& desk_;
    Profile profile_ = Profile::US;
    std::vector<ComparedSection> sections_;
    std::string told_;
};

} // namespace Tensarix
