// The about box on the screen.
#pragma once

#include "shell/AboutFrm.h"

#include <QDialog>

namespace Tensarix {

// Shown by exec(); closed with OK, Enter or Escape.
class AboutDialog final : public QDialog {
    Q_OBJECT

  public:
    AboutDialog(AboutFrm& form, QWidget* parent);
};

} // namespace Tensarix
