// The small field under a table that finds the rows with what is typed: Ctrl+F opens it anywhere on
// its page, Enter and F3 go to the next row, Shift+F3 to the one before, Escape closes it.
#pragma once

#include "controls/CellSearch.h"

#include <QWidget>

#include <memory>

namespace Ui {
class FindBar;
}

namespace Tensarix {

class GridView;

class FindBar final : public QWidget {
    Q_OBJECT

  public:
    explicit FindBar(QWidget* parent = nullptr);
    ~FindBar() override;

    // Once, when the table has been bound. The bar works where its parent has the keyboard.
    void Find_In(FlexGrid& grid, GridView& view);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Open();
    void Go(SearchWay way);
    void Close();

    FlexGrid* grid_ = nullptr;
    GridView* view_ = nullptr;
    std::unique_ptr<Ui::FindBar> ui_;
};

} // namespace Tensarix
