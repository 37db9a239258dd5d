#include "weights/LengthColumn.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchFormatting.h"
#include "measures/FeetInchParsing.h"
#include "measures/InputFunction.h"

namespace Tensarix {

namespace {

constexpr std::string_view metrePattern = "0.00     ";
constexpr std::string_view invalidText = "Invalid Distance Input! ";
constexpr std::string_view warningTitle = "Warning";

} // namespace

void Commit_Length(TextBox& editor) {
    if (const std::optional<double> feet = Feet_Of(Trim(editor.Text())))
        editor.Set_Text(Length_Text(*feet).append(cellPadding));
}

void Commit_Metric(TextBox& editor) {
    if (const std::string text = Trim(editor.Text()); !text.empty())
        Attempt([&] { editor.Set_Text(Format_Number(Leading_Value(text), metrePattern)); });
}

CellEditing::TextCells LengthColumn::Cells() {
    const TextBox& editor = parts_.Editor;
    const bool feet = parts_.Unit == LengthUnit::FeetInches;
    return {.Editor = parts_.Editor,
            .Editable = [col = parts_.Col](int, int at) { return at == col; },
            .Opens = Filter_Decimal,
            .Types =
                [&editor, feet](int keyAscii) {
                    return feet ? Filter_FeetInch(keyAscii, editor.Text())
                                : Filter_Single_Point(keyAscii, editor.Text());
                },
            .Changed = [this] { Remember(); },
            .Validate = [this] { Validate(); },
            .Committed = [this](const std::string&) { Run(parts_.Compute); },
            .Accepts = [this](const std::string& text) { return Accepted(text); }};
}

// Metres are tested as feet and inches too: every plain number passes.
void LengthColumn::Remember() const {
    const std::string text = Trim(parts_.Editor.Text());
    if (const std::optional<double> feet = Feet_Of(text))
        Attempt([&] {
            parts_.LastLength = parts_.Unit == LengthUnit::Metres ? Leading_Value(text) : *feet;
        });
}

// Metres have no message: what is no number counts as far as it reads as one.
void LengthColumn::Validate() const {
    TextBox& editor = parts_.Editor;
    if (parts_.Unit == LengthUnit::Metres) {
        Commit_Metric(editor);
    } else if (Is_FeetInch(Trim(editor.Text()))) {
        Commit_Length(editor);
    } else {
        parts_.Host.Boxes.Show(invalidText, warningTitle, MessageIcon::Stop);
        editor.Set_Text(Length_Text(parts_.LastLength));
    }
}

// Of a pasted text, which no key filter has passed.
std::optional<std::string> LengthColumn::Accepted(const std::string& text) const {
    const bool metres = parts_.Unit == LengthUnit::Metres;
    if (metres ? !Is_Numeric(text) : !Is_FeetInch(text))
        return std::nullopt;
    TextBox scratch;
    scratch.Set_Text(text);
    if (metres)
        Commit_Metric(scratch);
    else
        Commit_Length(scratch);
    return scratch.Text();
}

} // namespace Tensarix
