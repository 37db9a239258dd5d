// The sections that are compared, on the screen: a window beside the program's.
#pragma once

#include "sections/ComparePage.h"

#include <QDialog>

namespace Tensarix {

class CompareWindow final : public QDialog {
    Q_OBJECT

  public:
    // At the place where it was closed last, or at the right of its parent.
    CompareWindow(ComparePage& page, const Settings& saved, QWidget* parent);
    ~CompareWindow() override;

    // Shows it, or brings it to the front; the keyboard comes to its table or stays where it is.
    void Come_Up(bool withKeyboard);

  protected:
    void hideEvent(QHideEvent* event) override;

  private:
    void Restore_Place();
    void Save_Place() const;

    const Settings& saved_;
    QWidget* table_;
};

} // namespace Tensarix
