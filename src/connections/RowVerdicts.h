// What the line under the bolt table says: which rows not to use as they are, and the number to use
// instead.
#pragma once

#include "controls/Remark.h"
#include "controls/View.h"

#include <functional>
#include <map>
#include <string>

namespace Tensarix {

struct RowVerdict {
    std::string Words; // "use C = 0.732 (shown 3.000)", "1.000 is on the safe side of C = 1.100"
    RemarkWeight Weight = RemarkWeight::Note;
    bool Computing = false;

    bool operator==(const RowVerdict&) const = default;
};

class RowVerdicts {
  public:
    View Shown;
    std::function<void(int row)> OnChoose; // the user wants to see that row

    // A row without a verdict is as it should be.
    void Set(int row, RowVerdict verdict);
    void Drop(int row);
    void Drop_From(int row); // this row and all after it
    const std::map<int, RowVerdict>& Rows() const { return rows_; }
    bool Is_Computing(int row) const {
        const auto at = rows_.find(row);
        return at != rows_.end() && at->second.Computing;
    }

    // What stands there when no row has a verdict.
    const std::string& Otherwise() const { return otherwise_; }
    void Set_Otherwise(std::string words);

    // The whole line.
    std::string Text() const;

  private:
    std::map<int, RowVerdict> rows_;
    std::string otherwise_;
};

} // namespace Tensarix
