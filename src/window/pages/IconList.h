// Shows a list of items with icons, which follow the palette. The arrow keys choose as clicks do,
// and the space bar the current one once more.
#pragma once

#include "controls/ListView.h"

#include <QListWidget>

namespace Tensarix {

class IconList : public QListWidget {
    Q_OBJECT

  public:
    explicit IconList(QWidget* parent = nullptr);

    // Once, by Bind.
    void Show_List(ListView& list);

    QSize sizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void Pull();
    void Draw_Icons();
    void Chosen(int row);
    void Clicked(int row);

    ListView* list_ = nullptr;
    bool chosenByPress_ = false;
};

void Bind(IconList* widget, ListView& control);

} // namespace Tensarix
