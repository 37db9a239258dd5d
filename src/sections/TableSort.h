// The order of the rows of View All and of Find, by a click on a head: ascending by the numbers in
// the store, then descending, then in the Manual's order again. Designations go by their numbers.
// Rows without a number in that column come last; rows that are alike stay in the Manual's order.
#pragma once

#include "controls/FlexGrid.h"
#include "sections/TableGrid.h"

#include <functional>
#include <vector>

namespace Tensarix {

class TableSort {
  public:
    // What the rows of the table are, in the Manual's order.
    struct Rows {
        std::string_view FamilyCode;
        const Layout& Columns;
        TableVariant Variant;
        SectionView View;
    };

    // Takes over the grid's clicks on heads. rows is asked at each; it may fail, and then nothing
    // happens.
    TableSort(FlexGrid& grid, std::function<Rows()> rows);
    TableSort(const TableSort&) = delete;

  private:
    using Keys = std::vector<std::vector<double>>; // of the rows, in the Manual's order

    void Head_Click(int col);
    void Sort(int col, bool descends);
    Keys Keys_Of(int col) const;
    int Section_Rows() const;
    void Take_Order(std::vector<int> order);

    FlexGrid& grid_;
    std::function<Rows()> rows_;
    std::vector<int> order_; // by row: where it stands in the Manual's order
};

} // namespace Tensarix
