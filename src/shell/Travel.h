// From a section on one page to the same section on another, and back. All of it goes through the
// pages' own controls, as the user's clicks would.
#pragma once

#include "controls/Controls.h"
#include "sections/DesignationSearch.h"
#include "shell/Modes.h"

#include <optional>
#include <vector>

namespace Tensarix {

class FlexGrid;
class MainFrm;

class Travel {
  public:
    // A second group of the popup, below its Exit.
    MenuItem mnuShowBrowse, mnuShowBeam, mnuShowWeights, mnuCompare;

    // Takes over double click and Enter on the tables of Find and View All, which show the row's
    // section on Browse.
    explicit Travel(MainFrm& form);
    Travel(const Travel&) = delete;

    // The section that the page in view is at; none without one, as on a blank row.
    std::optional<SectionPlace> Current() const;
    // Enables what the menu offers for it.
    void Prepare();

    // On Browse or Beam Load, with the keyboard on its table. Without effect on Beam Load for a
    // family that isn't there.
    void Show(Mode page, SectionPlace place);
    // To where the last Show came from: the row of the table, or the section. Without effect where
    // there is nothing to go back to.
    void Back();
    // On Find: the row of the lightest section found.
    void Go_To_Lightest();

    // What the user has typed into a list of sizes in vain: tells in the status bar if another
    // family has it.
    void Tell_Of_Other_Family(const ComboBox& family, const std::string& typed);

  private:
    struct Stop {
        Mode Page = Mode::Browse;
        SectionPlace Place;
        int Row = 0, Col = 0; // of a table of sections
    };

    void Wire(FlexGrid& grid);
    Mode Page() const;
    FlexGrid* Table_Of(Mode page) const; // of sections, a row each
    void Choose(Mode page, SectionPlace place);
    void Note_Stop();
    std::optional<SectionPlace> Place_Of_Row(const ComboBox& family, const FlexGrid& grid) const;

    MainFrm& form_;
    std::vector<Stop> stops_;
};

} // namespace Tensarix
