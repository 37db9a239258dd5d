#include "connections/RowVerdicts.h"

#include <utility>

namespace Tensarix {

void RowVerdicts::Set(int row, RowVerdict verdict) {
    RowVerdict& target = rows_[row];
    if (target == verdict)
        return;
    target = std::move(verdict);
    Shown.Changed();
}

void RowVerdicts::Drop(int row) {
    if (rows_.erase(row) > 0)
        Shown.Changed();
}

void RowVerdicts::Drop_From(int row) {
    rows_.erase(rows_.lower_bound(row), rows_.end());
    Shown.Changed();
}

void RowVerdicts::Set_Otherwise(std::string words) {
    if (otherwise_ == words)
        return;
    otherwise_ = std::move(words);
    Shown.Changed();
}

std::string RowVerdicts::Text() const {
    if (rows_.empty())
        return otherwise_;
    std::string text;
    for (const auto& [row, verdict] : rows_)
        text.append(text.empty() ? "Row " : " Row ")
            .append(std::to_string(row))
            .append(": ")
            .append(verdict.Words)
            .append(".");
    return text;
}

} // namespace Tensarix
