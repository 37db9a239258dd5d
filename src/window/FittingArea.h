// Contents that scroll where the screen has no room for them: a small screen, a large font.
#pragma once

#include <QScrollArea>

class QDialog;

namespace Tensarix {

// The page of such an area: scrolls below the least height of its parts, not below the one they
// would like.
class FittingPage final : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;
    int heightForWidth(int width) const override;
};

class FittingArea final : public QScrollArea {
    Q_OBJECT

  public:
    explicit FittingArea(QWidget* page, QWidget* parent = nullptr);

    // The page at its full size; the least is small whatever it is.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool viewportEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

// As large as wanted, and as the screen allows.
void Fit_To_Screen(QWidget& window, QSize wanted);
// Lets what the dialog has been laid out with scroll, and gives it its first size: at least so many
// characters and lines.
void Let_Scroll(QDialog& dialog, QSize characters = {});

} // namespace Tensarix
