// The results of the beam page, and the advice beside them.
#include "beam/BeamPage.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchFormatting.h"
#include "measures/FeetInchParsing.h"
#include "sections/SectionStore.h"

namespace Tensarix {

namespace {

constexpr std::string_view loadPattern = "0.00";

constexpr double sameReaction = 0.995; // a part of the one shown

void Add_Line(std::string& text, std::string_view line) {
    if (!line.empty())
        text.append(text.empty() ? "" : "\n").append(line);
}

} // namespace

// What the section doesn't have counts as 0, and never as the figure of the section before.
BeamSection BeamPage::Read_Section() const {
    BeamSection section;
    Attempt([&] {
        const SectionRead read(desk_.Host.Places.Program, Query_By_US_Label(zShapeSizeUS.Text()));
        const auto keep = [&](double& target, std::string_view column) {
            Attempt([&] { target = read.Records.Number(column); });
        };
        keep(section.Zx, "ZX");
        keep(section.Sx, "SX");
        keep(section.d, "D");
        keep(section.tw, "TW");
        keep(section.h_tw, "H_TW");
        keep(section.bf_2tf, "BF_2TF");
        keep(section.Ix, "IX");
        keep(section.bf, "BF");
        keep(section.tf, "TF");
        keep(section.ry, "RY");
    });
    return section;
}

BeamInput BeamPage::Read_Inputs() const {
    BeamInput input{
        .Section = Read_Section(), .TypedSpanFeet = Typed_Span(), .EarlierSpanFeet = span_};
    Attempt([&] { input.YieldKsi = static_cast<float>(Leading_Value(FyBox.Text())); });
    return input;
}

void BeamPage::CalculateValues() {
    const BeamInput input = Read_Inputs();
    const BeamLoad load = Tensarix::Beam_Load(Rules(), input);
    span_ = load.SpanFeet;
    boundary_ = load.BoundaryFeet;
    const std::optional<BeamLoad> toUse = Load_To_Use(input, load);
    Advice remark = Rule_Remark(input, toUse);
    Show_Results(load, remark.Weight);
    Show_Span_Remark();
    RuleRemark.Set_Caption(std::move(remark.Text), remark.Weight);
    LoadNotes.Set_Caption(Unsaid(input, load));
    Show_Drawings(input, load, toUse);
}

void BeamPage::Show_Drawings(const BeamInput& input, const BeamLoad& load,
                             const std::optional<BeamLoad>& toUse) {
    BeamSketch.Set_Drawing(Beam_Under_Load(load, Magnification(), toUse));
    const BeamMethod method = Rules();
    LoadPlot.Set_Drawing(Load_Against_Span(method, input, load, toUse));
    LoadPlot.Tell = [method, input](const std::string&, Drawn::Point at) {
        return Load_At_Span(method, input, at.X);
    };
}

double BeamPage::Magnification() const {
    double magnification = 0;
    Attempt([&] { magnification = Leading_Value(CFactor.Text()) / 100.0; });
    return magnification;
}

BeamMethod BeamPage::Rules() const {
    if (Is_9th_Edition())
        return BeamMethod::ASD9th;
    return Method() == DesignMethod::ASD ? BeamMethod::ASD13th : BeamMethod::LRFD13th;
}

void BeamPage::Show_Results(const BeamLoad& load, RemarkWeight weight) {
    UniWTLab.Set_Caption("Maximum Allowable Uniform Load,  w = " +
                             Format_Number(load.LoadKipsPerFoot, loadPattern) + " Kip/ft",
                         weight);
    LimSpanLab.Set_Caption(Length_Text(load.BoundaryFeet));
    Attempt([&] {
        BeamReactionLab.Set_Caption(
            Format_Number((1.0 + Magnification()) * load.EndReactionKips, loadPattern) + " Kips",
            weight);
    });
}

void BeamPage::Show_Span_Remark() {
    std::string text;
    const std::string boundary = Full_Length_Text(boundary_);
    const std::optional<double> typed = Typed_Span();
    if (!typed)
        text = "No valid span: results are those at " + Full_Length_Text(span_);
    else if (*typed < boundary_ && Full_Length_Text(*typed) != boundary)
        text = "Span below the boundary: results are those at " + boundary;
    SpanRemark.Set_Caption(text, typed ? RemarkWeight::Note : RemarkWeight::Caution);
}

// What the rules leave out of this section.
std::string BeamPage::Left_Out(const BeamInput& input) const {
    const BeamSection& section = input.Section;
    if (section.d == 0 || input.YieldKsi == 0) // nothing was computed
        return {};
    const float yield = input.YieldKsi;
    std::string text;
    if (Is_9th_Edition() && !Is_Compact_Flange(section, yield))
        Add_Line(text, "The 9th Edition page makes no compactness check: by the 13th Edition this "
                       "flange is not compact");
    if (!Is_9th_Edition() && Is_Channel() && Is_Stocky_Web(section, yield))
        Add_Line(text, Method() == DesignMethod::ASD
                           ? "The factor used for shear, 1.5, is that of I-shaped rolled webs: the "
                             "13th Edition gives channels 1.67"
                           : "The factor used for shear, 1.0, is that of I-shaped rolled webs: the "
                             "13th Edition gives channels 0.9");
    if (Is_9th_Edition() ? Web_Buckles_9th(section, yield) : Web_Buckles_13th(section, yield))
        Add_Line(text, "Web shear buckling is left out: h/tw of this web is above the limit to "
                       "which the edition takes its full shear strength");
    return text;
}

BeamLoad BeamPage::By_Whole_Rules(const BeamInput& input, double spanFeet) const {
    if (Is_9th_Edition())
        return Whole_Rules_9th(input.Section, input.YieldKsi, spanFeet);
    return Whole_Rules_13th(input.Section, input.YieldKsi, spanFeet, Method(), Is_Channel());
}

// Where what is left out makes the load at this span too high.
std::optional<BeamLoad> BeamPage::Load_To_Use(const BeamInput& input, const BeamLoad& load) const {
    if (Left_Out(input).empty())
        return std::nullopt;
    const BeamLoad whole = By_Whole_Rules(input, load.SpanFeet);
    if (whole.EndReactionKips < sameReaction * load.EndReactionKips)
        return whole;
    return std::nullopt;
}

Advice BeamPage::Rule_Remark(const BeamInput& input, const std::optional<BeamLoad>& toUse) const {
    Advice remark{Left_Out(input)};
    if (toUse)
        Attempt([&] {
            const double reaction = (1.0 + Magnification()) * toUse->EndReactionKips;
            remark = {"Use w = " + Format_Number(toUse->LoadKipsPerFoot, loadPattern) +
                          " Kip/ft, end reaction " + Format_Number(reaction, loadPattern) +
                          " Kips\n" + remark.Text,
                      RemarkWeight::Unsafe};
        });
    return remark;
}

// Where the load holds, and how far the beam bends under it. A factored load bends no beam.
std::string BeamPage::Unsaid(const BeamInput& input, const BeamLoad& load) const {
    const BeamSection& section = input.Section;
    const double braced = Is_9th_Edition() ? Braced_Feet_9th(section, input.YieldKsi)
                                           : Braced_Feet_13th(section, input.YieldKsi);
    if (braced == 0)
        return {};
    std::string text =
        "Holds where the compression flange is braced at least every " + Full_Length_Text(braced);
    const bool factored = Rules() == BeamMethod::LRFD13th;
    if (factored)
        Add_Line(text, "LRFD: w is factored, own weight included");
    const double deflection = Deflection_Inches(load.LoadKipsPerFoot, load.SpanFeet, section.Ix);
    if (!factored && deflection > 0)
        Attempt([&] {
            const double ratio = load.SpanFeet * inchesPerFoot / deflection;
            Add_Line(text, "Deflection under this load: " + Format_Number(deflection, loadPattern) +
                               " in., L/" + Format_Number(ratio, "0"));
        });
    return text;
}

} // namespace Tensarix
