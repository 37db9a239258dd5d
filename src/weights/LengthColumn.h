// The column of a weight calculator into which lengths are typed: in feet and inches, or in metres.
#pragma once

#include "controls/CellEditing.h"
#include "platform/Machine.h"

#include <optional>
#include <string>
#include <string_view>

namespace Tensarix {

enum class LengthUnit { FeetInches, Metres };

// Stands behind lengths and weights, so that right-aligned text keeps off the grid line.
inline constexpr std::string_view cellPadding = "     ";

// Bring the text of an editor to its normal form; 5.5' becomes 5'-6". Commit_Length takes a text
// that is a length; Commit_Metric takes any, of which the leading number counts, and leaves an
// empty one alone.
void Commit_Length(TextBox& editor);
void Commit_Metric(TextBox& editor);

class LengthColumn {
  public:
    // What the column works on.
    struct Parts {
        int Col;
        TextBox& Editor;
        LengthUnit Unit;
        double& LastLength; // feet or metres: the last valid length seen while typing
        Machine& Host;
        Handler Compute; // the current row, whose length has changed
    };

    explicit LengthColumn(Parts parts) : parts_(std::move(parts)) {}
    LengthColumn(const LengthColumn&) = delete;

    CellEditing::TextCells Cells();

  private:
    void Remember() const;
    void Validate() const;
    std::optional<std::string> Accepted(const std::string& text) const;

    Parts parts_;
};

} // namespace Tensarix
