// One run of the search on the weld page.
#include "common/Failure.h"
#include "common/NumberText.h"
#include "connections/Balance.h"
#include "connections/Numbers.h"
#include "connections/WeldPage.h"

#include <algorithm>
#include <cmath>

namespace Tensarix {

namespace {

constexpr std::int16_t stripsPerUnit[] = {4, 8, 16, 32}; // by the position in the list
constexpr std::string_view resultPattern = "0.00000  ";
constexpr Colour black = 0x000000;
constexpr Colour red = 0x0000FF;

// The report is fixed to the character: the empty lines around the headings are the first character
// of a line break alone, twice.
std::string Ending(std::string_view heading, std::string_view reference,
                   std::string_view referenceNextLine) {
    const std::string twoReturns(2, reportLineBreak.front());
    std::string text = twoReturns;
    text.append(heading).append(twoReturns);
    for (const std::string_view line :
         {reference, referenceNextLine, std::string_view{" Note: Weld stress calculation is"},
          std::string_view{"       based on 1/16\" weld size."}})
        text.append(line).append(reportLineBreak);
    return text;
}

} // namespace

// The page as the search sees it.
class WeldPage::Display final : public WeldDisplay {
  public:
    explicit Display(WeldPage& page) : page_(page) {}

    std::int64_t Now() override {
        now_ = page_.desk_.Host.Time.Seconds();
        return static_cast<std::int64_t>(std::floor(now_));
    }
    bool Has_Text() override {
        return page_.IterationDisplayBox.Text().find_first_not_of(' ') != std::string::npos;
    }
    void Replace_Text(std::string_view text) override { page_.IterationDisplayBox.Set_Text(text); }
    void Append_Text(std::string_view text) override { page_.IterationDisplayBox.Append(text); }
    void Show_Elapsed(std::string_view caption) override {
        page_.ElapsedIndicator.Set_Caption(std::string{caption});
    }
    void Show_Loads(double Ro, double Fv, double Fm) override {
        page_.Plot_Pass({Ro, Fv, Fm}, now_);
    }

  private:
    WeldPage& page_;
    double now_ = 0; // seconds; the search asks for the time at each pass
};

// What is typed in, trimmed; none if any of it is empty.
std::optional<std::array<std::string, 4>> WeldPage::Typed_Inputs() const {
    std::array<std::string, 4> typed;
    for (int row = WeldRow::L; row <= WeldRow::Angle; ++row) {
        std::string& text = typed[static_cast<std::size_t>(row)];
        text = Trim(WeldFlex.Text(row, 1));
        if (text.empty())
            return std::nullopt;
    }
    return typed;
}

WeldPage::Outcome WeldPage::RunWeldIteration(unsigned run) {
    state_.StripsPerUnit = stripsPerUnit[WeldStripIndex];
    const auto typed = Typed_Inputs();
    if (!typed) {
        desk_.Host.Boxes.Show("Incomplete Parameter Input ! ", "Warning:", MessageIcon::Stop);
        return Outcome::Incomplete;
    }
    try {
        const auto value = [&typed](int row) {
            return Typed_Number((*typed)[static_cast<std::size_t>(row)]);
        };
        const Inputs inputs{value(WeldRow::L), value(WeldRow::kL), value(WeldRow::aL),
                            value(WeldRow::Angle)};
        state_.StopRequested = false;
        Empty_Report();
        return Search(inputs, run);
    } catch (const Failure&) {
        return Outcome::Failed; // a base length of 0, or numbers out of range
    } catch (const SearchAbandoned&) {
        return Outcome::Abandoned;
    }
}

WeldPage::Outcome WeldPage::Search(const Inputs& inputs, unsigned run) {
    Display display(*this);
    auto turn = [this, run] { return desk_.Host.Events.Yield() && newest_ == run; };
    SearchYield yield{turn, weldYieldStride};
    WeldSearch search{state_, display, yield};
    const double C = Weld_Configuration_Result(WeldConfigIndex, inputs.L, inputs.kL, inputs.aL,
                                               inputs.Angle, weldModeC, search);
    SearchPlot.Set_Drawing(Weld_Search_Plot(passes_));
    Draw_Group();
    if (state_.StopRequested) {
        Show_Aborted(inputs, C);
        return Outcome::Stopped;
    }
    Show_Converged(inputs, C);
    return Outcome::Finished;
}

void WeldPage::Show_Converged(const Inputs& inputs, double C) {
    IterationDisplayBox.Append(Ending(" ** Instantaneous Center LOCATED !",
                                      " Reference: AISC Steel Construction",
                                      "            Manual, 13th Edition"));
    CBox.Set_Fore(black);
    CBox.Set_Text(Format_Number(C, resultPattern));
    const Advice remark = Show_Balance(inputs, C);
    CRemark.Set_Caption(remark.Text, remark.Weight);
    CBox.Set_Remark(remark.Text, remark.Weight);
}

// Its reference is worded in another way, by which a copied report shows how its run ended.
void WeldPage::Show_Aborted(const Inputs& inputs, double C) {
    IterationDisplayBox.Append(Ending(" ** Iteration ABORTED !",
                                      " Reference: AISC Construction Manual",
                                      "            13th Edition"));
    CBox.Set_Fore(red);
    CBox.Set_Text("** " + Format_Number(C, resultPattern));
    const Advice balance = Show_Balance(inputs, C);
    CRemark.Set_Caption("Stopped by hand before the search had come to its end." +
                            (balance.Text.empty() ? balance.Text : "\n" + balance.Text),
                        std::max(balance.Weight, RemarkWeight::Caution));
}

// The C to hold the result against stands beside it where the two part.
Advice WeldPage::Show_Balance(const Inputs& inputs, double C) {
    const auto balance =
        Balanced_Welds(WeldConfigIndex, inputs.L, inputs.kL, inputs.aL, inputs.Angle);
    if (Excess_Over(balance, C, weldRemarkTolerance) != 0) {
        BalancedCaption.Set_Caption(balance->ByLines ? "C by AISC 360-05 J2.4(c)"
                                                     : "C in equilibrium");
        BalancedBox.Set_Text(Format_Number(balance->C, resultPattern));
    }
    return Balance_Remark(C, balance, weldRemarkTolerance);
}

void WeldPage::Plot_Pass(const WeldPassLoads& pass, double now) {
    passes_.Add(pass);
    if (passes_.Is_Plot_Due(now))
        SearchPlot.Set_Drawing(Weld_Search_Plot(passes_));
}

void WeldPage::Draw_Group() {
    WeldPicture picture;
    picture.Item = WeldConfigIndex;
    const auto take = [this](std::optional<double>& target, int row) {
        const std::string text = Trim(WeldFlex.Text(row, 1));
        if (!text.empty())
            target = Typed_Number(text);
    };
    take(picture.L, WeldRow::L);
    take(picture.kL, WeldRow::kL);
    take(picture.aL, WeldRow::aL);
    take(picture.Angle, WeldRow::Angle);
    Attempt([&] {
        if (const auto typed = Typed_Inputs())
            picture.Balanced = Balanced_Welds(WeldConfigIndex, *picture.L, *picture.kL, *picture.aL,
                                              *picture.Angle);
        // The report of one configuration is in scaled units.
        if (!passes_.Kept().empty())
            picture.SearchRo =
                passes_.Kept().back().Ro / Weld_Display_Unit(WeldConfigIndex, *picture.L);
    });
    Attempt([&] { WeldSketch.Set_Drawing(Weld_Group_Drawing(picture)); });
}

double WeldPage::Centroid(std::int16_t mode) {
    WeldState state;
    Display display(*this);
    auto turn = [] { return true; };
    SearchYield yield{turn};
    WeldSearch search{state, display, yield}; // of which a centroid makes no use
    return Weld_Configuration_Result(WeldConfigIndex, Typed_Number(WeldFlex.Text(WeldRow::L, 1)),
                                     Typed_Number(WeldFlex.Text(WeldRow::kL, 1)), 0, 0, mode,
                                     search);
}

} // namespace Tensarix
