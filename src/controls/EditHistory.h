// The edits of a grid, to be taken back one by one, the last first: what is typed into a cell, what
// is emptied, pasted or cleared at once.
#pragma once

#include "controls/FlexGrid.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Tensarix {

class EditHistory {
  public:
    static constexpr std::size_t mostSteps = 200;

    // editable: which cells count. The grid outlives the history.
    EditHistory(FlexGrid& grid, std::function<bool(int row, int col)> editable)
        : grid_(grid), editable_(std::move(editable)) {}

    // What stands in the cells was not typed; nothing before it can be taken back. Until then
    // nothing is noted.
    void Start();
    // Cells have been edited: all that differs since the last time is one step.
    void Note();
    // Rows from here on have gone, and with them what was typed there.
    void Forget_Rows(int from);

    bool Can_Undo() const { return !steps_.empty(); }
    // Puts back what the last step changed, and goes to its first cell. Gives the cells by row and
    // column, in order, for their rows to be computed anew; none if there is nothing to take back.
    std::vector<std::pair<int, int>> Undo();

  private:
    using Texts = std::map<std::pair<int, int>, std::string>; // by row and column; blank: none

    Texts Texts_Now() const;

    FlexGrid& grid_;
    std::function<bool(int row, int col)> editable_;
    Texts texts_;
    std::deque<Texts> steps_; // what stood before
    bool started_ = false;
};

} // namespace Tensarix
