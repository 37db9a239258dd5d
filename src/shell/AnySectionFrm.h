// The field that finds any section by its designation, whatever its family. It only chooses: who
// opens it goes on with what was chosen when it has closed.
#pragma once

#include "controls/Controls.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"
#include "sections/DesignationSearch.h"
#include "shell/Modes.h"

#include <optional>
#include <vector>

namespace Tensarix {

class AnySectionFrm {
  public:
    TextBox SearchBox;
    FlexGrid FoundFlex; // designation in the units that were typed, the other one, family, measures
    Label FoundLabel;   // how many there are
    Button BrowseButton, BeamButton, CancelButton;
    Handler Close;     // the dialog's
    Handler OnCurrent; // Current_Text has changed

    // What was chosen, and the page to show it on; none if the field was left.
    std::optional<SectionPlace> Chosen;
    Mode Page = Mode::Browse;

    explicit AnySectionFrm(const Desk& desk);
    AnySectionFrm(const AnySectionFrm&) = delete;

    // The row that Enter would take, for who does not see the list; empty without one.
    std::string Current_Text() const;

  private:
    void Init_FoundFlex();
    void SearchBox_Change();
    void FoundFlex_SelChange();
    void Choose(Mode page);
    const FoundSection* Current() const;

    DesignationSearch search_;
    std::vector<FoundSection> found_;
};

} // namespace Tensarix
