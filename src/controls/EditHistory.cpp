#include "controls/EditHistory.h"

#include <algorithm>

namespace Tensarix {

EditHistory::Texts EditHistory::Texts_Now() const {
    Texts texts;
    for (int row = grid_.FixedRows(); row < grid_.Rows(); ++row)
        for (int col = grid_.FixedCols(); col < grid_.Cols(); ++col)
            if (const std::string& text = grid_.Text(row, col);
                !text.empty() && editable_(row, col))
                texts.emplace(std::pair{row, col}, text);
    return texts;
}

void EditHistory::Start() {
    texts_ = Texts_Now();
    steps_.clear();
    started_ = true;
}

void EditHistory::Note() {
    if (!started_)
        return;
    const Texts before = std::exchange(texts_, Texts_Now());
    Texts step;
    for (const auto& [cell, text] : before)
        if (const auto now = texts_.find(cell); now == texts_.end() || now->second != text)
            step.emplace(cell, text);
    for (const auto& [cell, text] : texts_)
        if (!before.contains(cell))
            step.emplace(cell, std::string{});
    if (step.empty())
        return;
    steps_.push_back(std::move(step));
    if (steps_.size() > mostSteps)
        steps_.pop_front();
}

void EditHistory::Forget_Rows(int from) {
    texts_.erase(texts_.lower_bound({from, 0}), texts_.end());
    for (Texts& step : steps_)
        step.erase(step.lower_bound({from, 0}), step.end());
    std::erase_if(steps_, [](const Texts& step) { return step.empty(); });
}

std::vector<std::pair<int, int>> EditHistory::Undo() {
    std::vector<std::pair<int, int>> cells;
    if (steps_.empty())
        return cells;
    const Texts step = std::move(steps_.back());
    steps_.pop_back();
    for (const auto& [cell, text] : step) {
        grid_.Set_Text(cell.first, cell.second, text);
        cells.push_back(cell);
    }
    texts_ = Texts_Now();
    grid_.Move_To(step.begin()->first.first, step.begin()->first.second);
    Run(grid_.BringIntoView);
    return cells;
}

} // namespace Tensarix
