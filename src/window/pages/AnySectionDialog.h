// The field that finds any section, on the screen.
#pragma once

#include "shell/AnySectionFrm.h"

#include <QDialog>

namespace Tensarix {

// Shown by exec(). The keys that move in the list work while the box is typed in.
class AnySectionDialog final : public QDialog {
    Q_OBJECT

  public:
    AnySectionDialog(AnySectionFrm& form, QWidget* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* list_;
};

} // namespace Tensarix
