// The weld coefficient page: one of nine configurations, its parameters, the search with its
// running report, which can be stopped and resumed, and the coefficient C.
#pragma once

#include "connections/WeldConfigurations.h"
#include "connections/WeldDrawing.h"
#include "connections/WeldFunctions.h"
#include "controls/CellEditing.h"
#include "controls/Controls.h"
#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "controls/ListView.h"
#include "controls/ReportBox.h"
#include "controls/ResultBox.h"
#include "desk/Desk.h"

#include <array>
#include <optional>
#include <string>

namespace Tensarix {

// The rows of WeldFlex. Lengths are in any one unit, the angle in degrees.
namespace WeldRow {
// NOLINTBEGIN(readability-identifier-naming): named as those of an enumeration
inline constexpr int L = 0, kL = 1, aL = 2, Angle = 3; // what can be typed in
inline constexpr int xL = 4, yL = 5;
inline constexpr int Count = 6;
// NOLINTEND(readability-identifier-naming)
} // namespace WeldRow

// A text that isn't blank becomes a number with three decimals.
void ModifyTextWeld(TextBox& editor);

class WeldPage {
  public:
    ListView WeldView;
    Picture WeldImage;     // of the configuration, by its name
    DrawingBox WeldSketch; // the group of the inputs
    DrawingBox SearchPlot; // the loads of the passes so far
    FlexGrid WeldFlex;
    TextBox EdiTxtA; // over the cell that is being edited
    ComboBox WeldStripBox;
    ReportBox IterationDisplayBox;
    Label ElapsedIndicator;
    ResultBox CBox;
    // What the result is held against, where the two part.
    Label BalancedCaption;
    ResultBox BalancedBox;
    Label CRemark; // what is to be said about the result
    Button StartIterationButton, StopIterationButton, ClearDisplayButton;

    explicit WeldPage(Desk& desk);
    WeldPage(const WeldPage&) = delete;

    // Once at start, with the saved strip and configuration.
    void Initialize_WeldRoutines();
    void Save_Settings() const;

    // What the status bar shows of the current configuration.
    std::string Selection_Text() const;
    // Stops a search that runs, as its button does.
    void Stop_If_Running();
    // The search has to end at its next pass, whatever the buttons say.
    void Request_Stop() { state_.StopRequested = true; }

    // The distances of the centroid, as far as the configuration has them.
    void UpdateWeldCentroids();

  private:
    using Parameters = std::array<std::string, WeldRow::Count>;
    enum class Outcome { Finished, Stopped, Failed, Abandoned, Incomplete };
    struct Inputs {
        double L = 0, kL = 0, aL = 0, Angle = 0;
    };
    class Display;

    void Initialize_WeldView();
    void Initialize_WeldStripBox();
    void Initialize_WeldFlex();
    void Add_Editing();
    bool Can_Edit(int row, int col) const;

    void WeldView_Click();
    void WeldStripBox_Change();
    void Committed(const std::string& before);
    void StartIteration_Click();
    void StopIteration_Click();
    void ClearDisplay_Click();
    void Begin(bool resume);
    Outcome RunWeldIteration(unsigned run);
    Outcome Search(const Inputs& inputs, unsigned run);
    void Show_Converged(const Inputs& inputs, double C);
    void Show_Aborted(const Inputs& inputs, double C);
    void Draw_Group();
    void Plot_Pass(const WeldPassLoads& pass, double now);
    Advice Show_Balance(const Inputs& inputs, double C);
    std::optional<std::array<std::string, 4>> Typed_Inputs() const;
    void Show_Running();
    void Show_Centroid(int row, std::string text, Alignment alignment);
    double Centroid(std::int16_t mode);
    void Empty_Report();
    void Invalidate();

    Desk& desk_;
    int WeldConfigIndex = 1; // 1 to 9
    int WeldStripIndex = 0;
    std::array<Parameters, weldConfigurationCount> WeldParameters;
    WeldState state_;
    WeldPasses passes_;    // of the run that shows
    unsigned newest_ = 0;  // the run whose result is wanted
    unsigned started_ = 0; // the run that the buttons speak of
    CellEditing editing_;
};

} // namespace Tensarix
