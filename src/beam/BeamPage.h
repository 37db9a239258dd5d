// Allowable Beam Load: the maximum uniform load of a rolled beam, the span below which shear
// governs, and the maximum end reaction, computed anew at every change of any input.
#pragma once

#include "beam/BeamDrawings.h"
#include "beam/BeamRules.h"
#include "controls/Controls.h"
#include "controls/DrawingBox.h"
#include "controls/FlexGrid.h"
#include "desk/Desk.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace Tensarix {

// The tabs of AppliedCode, by number.
inline constexpr int code9thEdition = 1;
inline constexpr int code13thEdition = 2;

// In zShapeType, and to its end.
inline constexpr int firstChannelFamily = 4;

class BeamPage {
  public:
    ComboBox zShapeType;
    Label zShapeLab;
    ComboBox zShapeSizeUS, zShapeSizeSI;
    Label ShapeLab;
    FlexGrid zShapeFlex;

    TabControl AppliedCode;
    Frame CodeFrame;
    std::array<OptionButton, 2> CodeOpt;
    Label CodeNote; // why they can't be chosen
    ComboBox FyBox;
    TextBox BeamSpanBox;
    TextBox CFactor;

    Label UniWTLab, LimSpanLab, BeamReactionLab;
    // Advice beside the results: on the span in force, and on what the rules leave out.
    Label SpanRemark, RuleRemark;
    Label LoadNotes;                 // where the load holds, and how far the beam bends under it
    DrawingBox BeamSketch, LoadPlot; // the beam with its load; load against span

    explicit BeamPage(Desk& desk);
    BeamPage(const BeamPage&) = delete;

    // The two steps of the start: the families with the saved one, then the inputs.
    void Start_Families();
    void Start_Inputs();

    // The tab has been clicked, or the page comes into view: all that depends on the edition is
    // restored from the settings.
    void AppliedCode_Click();
    // Reads all inputs and writes the three results.
    void CalculateValues();
    // The span as the program writes it. A text that is no length stays.
    void ModifySpanMode();

    // In feet; none where the box holds no length.
    std::optional<double> Typed_Span() const;

  private:
    void Wire_Lists();
    void Wire_Boxes();

    void zShapeType_Click();
    void zShapeSizeUS_Click();
    void Show_Section();
    void FyBox_Click();
    void CodeOpt_Click(int index);
    void BeamSpanBox_Change();
    void BeamSpanBox_KeyDown(int keyCode);
    void BeamSpanBox_LostFocus();
    void CFactor_Change();
    void CFactor_LostFocus();
    void zShapeFlex_SelChange();

    void Restore_Code();
    void Restore_Factor_And_Span();
    void Load_Span(const std::string& text);
    void Load_Factor(const std::string& text);
    void Show_Results(const BeamLoad& load, RemarkWeight weight);
    void Show_Span_Remark();
    void Show_Drawings(const BeamInput& input, const BeamLoad& load,
                       const std::optional<BeamLoad>& toUse);
    std::optional<BeamLoad> Load_To_Use(const BeamInput& input, const BeamLoad& load) const;
    Advice Rule_Remark(const BeamInput& input, const std::optional<BeamLoad>& toUse) const;
    std::string Left_Out(const BeamInput& input) const;
    BeamLoad By_Whole_Rules(const BeamInput& input, double spanFeet) const;
    std::string Unsaid(const BeamInput& input, const BeamLoad& load) const;
    bool Is_Channel() const { return zShapeType.ListIndex() >= firstChannelFamily; }

    BeamSection Read_Section() const;
    BeamInput Read_Inputs() const;
    bool Is_9th_Edition() const { return AppliedCode.Tab() == code9thEdition; }
    double Magnification() const; // 0.15 for 15 %
    BeamMethod Rules() const;
    DesignMethod Method() const { return static_cast<DesignMethod>(CodeIndex); }
    std::string Tab_Key() const;
    std::string Tab_And_Method_Key() const;

    Desk& desk_;
    std::int16_t CodeIndex = 0; // of CodeOpt
    // True while the program sets the box: the change is not saved then.
    bool SpanLoading = false, FactorLoading = false;
    double LastGoodSpan = 0; // feet, the last text that was a length
    double span_ = 0;        // feet, in force for the results
    double boundary_ = 0;    // feet
    bool messageOpen_ = false;
};

} // namespace Tensarix
