// Contents that scroll where the screen has no room for them: a small screen, a large font.
#pragma once

#include <QScrollArea>

class QDialog;

namespace Tensarix {

class FittingArea final : public QScrollArea {
    Q_OBJECT

  public:
    explicit FittingArea(QWidget* contents, QWidget* parent = nullptr);

    // The contents at their full size; the least is small whatever they are.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

// As large as wanted, and as the screen allows.
void Fit_To_Screen(QWidget& window, QSize wanted);
// Lets what the dialog has been laid out with scroll, and gives it its first size: at least so many
// characters and lines.
void Let_Scroll(QDialog& dialog, QSize characters = {});

} // namespace Tensarix
