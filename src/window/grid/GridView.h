// Shows a FlexGrid: fixed head row, fixed columns that stay while the rest scrolls sideways, both
// by whole cells. Selection and current cell are the grid's own; the keys and the mouse only tell
// it where to go.
#pragma once

#include "controls/FlexGrid.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QTableView>

#include <vector>

namespace Tensarix {

class GridModel;
class Link;

class GridView : public QTableView {
    Q_OBJECT

  public:
    explicit GridView(QWidget* parent = nullptr);
    ~GridView() override;

    // Once, by Bind.
    void Show_Grid(FlexGrid& grid);

    // Where the popup that was asked for last should open, on the screen.
    QPoint Popup_Point() const { return popupPoint_; }
    // The place of a cell inside this widget, as it is on the screen.
    QRect Cell_Rect(int row, int col) const;
    // All columns show without scrolling sideways; all rows show, too.
    void Show_All_Columns();
    void Show_All_Rows();
    // As wide as its columns, and no wider; the rows a little lower where they all show then.
    void Take_What_Is_Needed();
    // Where there is no room for its columns, each is narrower, down to what its texts need.
    void Let_Columns_Give_Way();
    // Pixels to the twip under the current font and scale.
    double Twip_Scale() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

  private:
    static void Prepare(QTableView& pane);
    void Let_Widen();
    void Tell_Current_Cell();
    void Pull();
    void Measure();
    void Measure_Columns();
    void Measure_Rows();
    double Row_Squeeze() const;
    void Fit_Contents();
    int Columns_Width() const;
    int Room_Around() const;
    void Find_Fitting_Widths();
    int Least_Width() const;
    int Usual_Pixels(int col) const;
    int Head_Height() const;
    int Column_Pixels(int col) const;
    int Fitting_Width(int col) const;
    void Widen_Columns();
    void Place_Frozen();
    void Pull_Scroll();
    void Align_Left_Column();
    void Pull_Selection();
    void Scrolled();
    void Reveal_Current();
    bool Move_Key(QKeyEvent* event);
    void Tab_Key(QKeyEvent* event);
    void Edit_Key(QKeyEvent* event);
    void Find_Typed(char character);
    bool Go_To(int row, int col, bool extend);
    void Press(QTableView& pane, QMouseEvent* event);
    void Drag(QMouseEvent* event);
    void Mouse_Moved(const QMouseEvent& event) const;
    void Release(QMouseEvent* event);
    void Popup_By_Key();
    bool Frozen_Event(QEvent* event);
    bool Head_Event(QEvent* event);
    QModelIndex Index(int row, int col) const;
    QModelIndex Index_At(QPoint inside) const;

    FlexGrid* grid_ = nullptr;
    GridModel* model_ = nullptr;
    Link* link_ = nullptr;
    QTableView* frozen_ = nullptr;
    QPoint popupPoint_;
    unsigned measured_ = ~0u, fitted_ = ~0u;
    int revealed_ = -1; // the marked column that has been brought into view
    std::string typed_; // the name that is being typed
    QElapsedTimer sinceTyped_;
    bool pulling_ = false, untold_ = false; // where the keyboard is, to a screen reader
    bool allColumns_ = false, allRows_ = false, onlyNeeded_ = false, giveWay_ = false;
    std::vector<int> fittingWidths_; // by column
};

} // namespace Tensarix
