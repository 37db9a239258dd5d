#include "beam/BeamPage.h"

#include "beam/Shape_Init_For_AllowableLoad.h"
#include "common/Arithmetic.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchFormatting.h"
#include "measures/FeetInchParsing.h"
#include "measures/InputFunction.h"
#include "sections/FamilyTable.h"
#include "speech/SpokenSymbols.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr int firstSFamily = 3; // positions 0 to 2 have the rows of W
constexpr std::string_view yields[] = {"  50 Ksi", "  36 Ksi"};
constexpr std::string_view twoDecimals = "0.00";
constexpr std::string_view noSetting = "0"; // of the keys with a tab and a method

const BeamRows& Rows_Of_Family(int position) {
    if (position < firstSFamily)
        return WShape_For_AllowableLoad;
    return position < firstChannelFamily ? SShape_For_AllowableLoad : CShape_For_AllowableLoad;
}

} // namespace

BeamPage::BeamPage(Desk& desk) : desk_(desk) {
    OptionButton::Group({&CodeOpt[0], &CodeOpt[1]});
    CodeOpt[0].Set_Caption("ASD - Allowable Stress Design");
    CodeOpt[1].Set_Caption("LRFD - Load and Resistance Factor Design");
    UniWTLab.Set_Caption("Maximum Allowable Uniform Load =");
    AppliedCode.Select(code9thEdition);
    Wire_Lists();
    Wire_Boxes();
}

void BeamPage::Wire_Lists() {
    zShapeType.OnChange = [this] { zShapeType_Click(); };
    zShapeSizeUS.OnChange = [this] { zShapeSizeUS_Click(); };
    // All work hangs on the US list.
    zShapeSizeSI.OnChange = [this] {
        Attempt([&] { zShapeSizeUS.Select(zShapeSizeSI.ListIndex()); });
    };
    zShapeFlex.OnSelChange = [this] { zShapeFlex_SelChange(); };
    zShapeFlex.OnMouseDown = [this] { desk_.GridClicked = true; };
    AppliedCode.OnChange = [this] { AppliedCode_Click(); };
    CodeOpt[0].OnClick = [this] { CodeOpt_Click(0); };
    CodeOpt[1].OnClick = [this] { CodeOpt_Click(1); };
    FyBox.OnChange = [this] { FyBox_Click(); };
}

void BeamPage::Wire_Boxes() {
    BeamSpanBox.OnChange = [this] { BeamSpanBox_Change(); };
    BeamSpanBox.OnKeyPress = [this](int key) { return Filter_FeetInch(key, BeamSpanBox.Text()); };
    BeamSpanBox.OnKeyDown = [this](int keyCode) { BeamSpanBox_KeyDown(keyCode); };
    BeamSpanBox.Focus.OnGotFocus = [this] { ModifySpanMode(); };
    BeamSpanBox.Focus.OnLostFocus = [this] { BeamSpanBox_LostFocus(); };
    CFactor.OnChange = [this] { CFactor_Change(); };
    CFactor.OnKeyPress = Filter_Decimal;
    CFactor.OnKeyDown = [this](int keyCode) {
        if (keyCode == Keys::Enter)
            CFactor_LostFocus();
    };
    CFactor.Focus.OnLostFocus = [this] { CFactor_LostFocus(); };
}

void BeamPage::Start_Families() {
    for (int position = 0; position < beamFamilies; ++position)
        zShapeType.Add(std::string{Family_At(position).Name});
    Attempt([&] { zShapeType.Select(desk_.Saved.Position(Setting::zShapeType)); });
}

void BeamPage::Start_Inputs() {
    for (const std::string_view yield : yields)
        FyBox.Add(std::string{yield});
    Attempt([&] { Load_Span(Length_Text(desk_.Saved.Number(Setting::BeamSpan))); });
    if (BeamSpanBox.Text().empty())
        Load_Span(Length_Text(Text_Number(Setting::BeamSpan.Default)));
    Attempt([&] {
        const int tab = desk_.Saved.Position(Setting::AppliedCode);
        if (tab != code9thEdition && tab != code13thEdition)
            throw Failure("no such tab");
        if (tab == AppliedCode.Tab())
            AppliedCode_Click();
        else
            AppliedCode.Select(tab);
    });
}

void BeamPage::zShapeType_Click() {
    const int position = zShapeType.ListIndex();
    Attempt([&] {
        const Family& family = Family_At(position);
        zShapeLab.Set_Caption(std::string{family.Name} + " Profile");
        const std::filesystem::path& folder = desk_.Host.Places.Program;
        Attempt([&] { Init_Shape(zShapeSizeUS, family.Type, false, folder); });
        Attempt([&] { Init_Shape(zShapeSizeSI, family.Type, true, folder); });
    });
    if (desk_.ReadOut)
        desk_.Say(Spoken_Family(zShapeType.Text()));
    Attempt([&] {
        const int saved = desk_.Saved.Position(Setting::zShapeSize, std::to_string(position));
        zShapeSizeUS.Select(static_cast<int>(Largest_Of({0, static_cast<double>(saved)})));
    });
    // Without a section no figures of another one stay on the screen.
    if (zShapeSizeUS.ListIndex() < 0) {
        Show_Section();
        desk_.Show_No_Selection();
    }
}

void BeamPage::zShapeSizeUS_Click() {
    Attempt([&] { zShapeSizeSI.Select(zShapeSizeUS.ListIndex()); });
    desk_.Saved.Save(Setting::zShapeSize, std::to_string(zShapeType.ListIndex()),
                     std::to_string(zShapeSizeUS.ListIndex()));
    Show_Section();
    desk_.StatBar.Set_Panel1(" SELECTION:   " + Trim(zShapeSizeUS.Text()));
    desk_.StatBar.Set_Remark({});
}

void BeamPage::Show_Section() {
    Rows_Of_Family(zShapeType.ListIndex())(zShapeFlex, zShapeSizeUS.Text(),
                                           desk_.Host.Places.Program);
    ShapeLab.Set_Caption("Beam Size:    " + zShapeSizeUS.Text());
    CalculateValues();
}

void BeamPage::FyBox_Click() {
    desk_.Saved.Save(Setting::YieldIndex, Tab_Key(),
                     std::to_string(std::clamp(FyBox.ListIndex(), 0, 1)));
    if (desk_.ReadOut)
        desk_.Say(General_Text(Leading_Value(FyBox.Text())) + "K S I");
    CalculateValues();
}

void BeamPage::AppliedCode_Click() {
    desk_.Quietly([this] { Restore_Code(); });
}

void BeamPage::Restore_Code() {
    const bool choosesMethod = !Is_9th_Edition();
    CodeFrame.Enable(choosesMethod);
    CodeOpt[1].Enable(choosesMethod);
    CodeNote.Set_Caption(choosesMethod ? "" : "9th Edition: ASD only");
    Attempt([&] {
        const int saved = choosesMethod ? desk_.Saved.Position(Setting::CodeOpt) : 0;
        if (saved != 0 && saved != 1)
            throw Failure("no such option");
        CodeOpt[static_cast<std::size_t>(saved)].Select();
    });
    desk_.Saved.Save(Setting::AppliedCode, Tab_Key());
    Attempt([&] {
        const double saved = desk_.Saved.Number(Setting::YieldIndex, Tab_Key());
        FyBox.Select(Whole_16(Largest_Of({0, Smallest_Of({1, saved})})));
    });
    Restore_Factor_And_Span();
    CalculateValues();
}

void BeamPage::CodeOpt_Click(int index) {
    CodeIndex = static_cast<std::int16_t>(index);
    if (!Is_9th_Edition())
        desk_.Saved.Save(Setting::CodeOpt, std::to_string(CodeIndex));
    Restore_Factor_And_Span();
    CalculateValues();
}

std::string BeamPage::Tab_Key() const {
    return std::to_string(AppliedCode.Tab());
}
std::string BeamPage::Tab_And_Method_Key() const {
    return Tab_Key() + std::to_string(CodeIndex);
}

void BeamPage::Restore_Factor_And_Span() {
    const std::string key = Tab_And_Method_Key();
    const auto saved = [&](const SettingKey& setting) {
        return Text_Number(desk_.Saved.Text_Or(setting, key, noSetting));
    };
    Attempt([&] { Load_Factor(Format_Number(saved(Setting::CFactor), twoDecimals)); });
    Attempt([&] { Load_Span(Length_Text(saved(Setting::BeamSpan))); });
}

void BeamPage::Load_Span(const std::string& text) {
    SpanLoading = true;
    BeamSpanBox.Set_Text(text);
    SpanLoading = false; // also where the text was the same and nothing changed
}

void BeamPage::Load_Factor(const std::string& text) {
    FactorLoading = true;
    CFactor.Set_Text(text);
    FactorLoading = false;
}

std::optional<double> BeamPage::Typed_Span() const {
    return Feet_Of(Trim(BeamSpanBox.Text()));
}

void BeamPage::ModifySpanMode() {
    if (const std::optional<double> feet = Typed_Span())
        Load_Span(Length_Text(*feet));
}

void BeamPage::BeamSpanBox_Change() {
    if (const std::optional<double> feet = Typed_Span()) {
        LastGoodSpan = *feet;
        CalculateValues();
        if (!SpanLoading)
            desk_.Saved.Save(Setting::BeamSpan, Tab_And_Method_Key(), General_Text(*feet));
    } else {
        Show_Span_Remark();
    }
    SpanLoading = false;
}

void BeamPage::BeamSpanBox_KeyDown(int keyCode) {
    if (keyCode != Keys::Enter && keyCode != Keys::Tab)
        return;
    const bool valid = Typed_Span().has_value();
    BeamSpanBox_LostFocus();
    if (desk_.ReadOut && valid)
        desk_.Say(Format_FeetInch(Typed_Span().value_or(0), lengthDenominator, 0, 1));
}

void BeamPage::BeamSpanBox_LostFocus() {
    if (messageOpen_)
        return; // the focus wanders while the user reads; the text goes back afterwards
    if (Typed_Span()) {
        ModifySpanMode();
    } else {
        messageOpen_ = true;
        desk_.Host.Boxes.Show("Invalid Distance Input! ", "Warning", MessageIcon::Stop);
        messageOpen_ = false;
        Load_Span(Length_Text(LastGoodSpan));
    }
    if (Typed_Span())
        CalculateValues();
}

void BeamPage::CFactor_Change() {
    CalculateValues();
    if (!FactorLoading)
        Attempt([&] {
            desk_.Saved.Save(Setting::CFactor, Tab_And_Method_Key(),
                             General_Text(Leading_Value(CFactor.Text())));
        });
    FactorLoading = false;
}

void BeamPage::CFactor_LostFocus() {
    Attempt([&] { CFactor.Set_Text(Format_Number(Leading_Value(CFactor.Text()), twoDecimals)); });
}

void BeamPage::zShapeFlex_SelChange() {
    const int row = zShapeFlex.Row();
    const std::string symbol = Trim(zShapeFlex.Text(row, 0));
    const std::string value = Trim(zShapeFlex.Text(row, 1));
    const std::string unit = Trim(zShapeFlex.Text(row, 2));
    desk_.StatBar.Set_Remark(zShapeFlex.Remark(row, 1), zShapeFlex.Remark_Weight(row, 1));
    if (symbol.empty()) {
        desk_.StatBar.Set_Panel1(" SELECTION:");
        return;
    }
    desk_.StatBar.Set_Panel1(" SELECTION:   " + symbol + " = " + value + " " + unit);
    if (desk_.ReadOut)
        desk_.Say(Speak_Symbol(symbol) + " = " + Speak_Value(value) + " " +
                  Speak_Unit(unit, value));
}

} // namespace Tensarix
