#include "weights/LengthColumn.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "measures/FeetInchFormatting.h"
#include "measures/FeetInchParsing.h"
#include "measures/InputFilters.h"

#include <algorithm>

namespace Tensarix {

namespace {

constexpr std::string_view metrePattern = "0.00     ";
constexpr std::string_view invalidText = "Invalid Distance Input! ";
constexpr std::string_view warningTitle = "Warning";

std::string Feet_Text(double feet) {
    return Format_FeetInch(feet, Sixteenths, 0, 0);
}

// The first cell of each line, without the blank lines at the end.
std::vector<std::string> Pasted_Lines(std::string_view text) {
    const std::string plain = Replace_All(Replace_All(text, "\r\n", "\n"), "\r", "\n");
    std::vector<std::string> lines;
    for (std::size_t at = 0; at <= plain.size();) {
        const std::size_t end = std::min(plain.find('\n', at), plain.size());
        const std::string line = plain.substr(at, end - at);
        lines.push_back(Trim(line.substr(0, line.find('\t'))));
        at = end + 1;
    }
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
    return lines;
}

} // namespace

void Commit_Length(TextBox& editor) {
    if (const std::optional<double> feet = Feet_Of(Trim(editor.Text())))
        editor.Set_Text(Feet_Text(*feet).append(CellPadding));
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
            .Committed = [this](const std::string&) { Run(parts_.Compute); }};
}

// Metres are tested as feet and inches too, which every plain number passes; intended.
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
        editor.Set_Text(Feet_Text(parts_.LastLength));
    }
}

bool LengthColumn::Is_Valid(const std::string& text) const {
    return text.empty() ||
           (parts_.Unit == LengthUnit::Metres ? Is_Numeric(text) : Is_FeetInch(text));
}

std::string LengthColumn::Normal(const std::string& text) const {
    TextBox scratch;
    scratch.Set_Text(text);
    if (parts_.Unit == LengthUnit::Metres)
        Commit_Metric(scratch);
    else
        Commit_Length(scratch);
    return scratch.Text();
}

void LengthColumn::Refuse(const std::string& reason) const {
    parts_.Host.Boxes.Show(reason + " Nothing was pasted.", warningTitle, MessageIcon::Stop);
}

bool LengthColumn::Fits(const std::vector<std::string>& lengths) const {
    const int first = parts_.Grid.Row(), room = parts_.Grid.Rows() - first;
    if (lengths.size() > static_cast<std::size_t>(room)) {
        Refuse("There are " + std::to_string(lengths.size()) + " lengths to paste, but only " +
               std::to_string(room) + " rows from row " + std::to_string(first) + " on.");
        return false;
    }
    std::string invalid;
    int row = first;
    for (const std::string& length : lengths) {
        if (!Is_Valid(length))
            invalid += (invalid.empty() ? "" : ", ") + std::to_string(row);
        ++row;
    }
    if (!invalid.empty())
        Refuse("Invalid distance input for row " + invalid + ".");
    return invalid.empty();
}

void LengthColumn::Paste() {
    const std::vector<std::string> lengths = Pasted_Lines(parts_.Host.Clip.Text());
    if (lengths.empty() || !Fits(lengths))
        return;
    FlexGrid& grid = parts_.Grid;
    const int first = grid.Row();
    int row = first;
    for (const std::string& length : lengths) {
        grid.Move_To(row, parts_.Col);
        grid.Set_Text(row, parts_.Col, Normal(length));
        Run(parts_.Compute);
        ++row;
    }
    grid.Move_To(first, parts_.Col);
    grid.Extend_To(row - 1, parts_.Col);
}

} // namespace Tensarix
