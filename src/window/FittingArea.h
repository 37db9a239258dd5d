// Contents that scroll where the screen has no room for them: a small screen, a large font.
#pragma once

#include <QScrollArea>

#include <vector>

class QBoxLayout;
class QDialog;

namespace Tensarix {

// The page of such an area: scrolls below the least height of its parts, not below the one they
// would like.
class FittingPage final : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;
    int heightForWidth(int width) const override;

    // Parts that stand side by side, and go under each other where the page is narrower than that.
    // Inside one of them a column may turn the other way then.
    struct Row {
        QBoxLayout* Parts = nullptr;
        QBoxLayout* Column = nullptr;
    };
    // A row after the other, in this order, as far as it takes: so a narrow page scrolls down and
    // not sideways. Once.
    void Let_Stack(std::vector<Row> rows);
    void Fit_Width(int width);

  private:
    void Stack(const Row& row, bool stacked);

    std::vector<Row> rows_;
    bool isColumn_ = false;   // the page's own row is stacked
    std::vector<int> widths_; // that the page needed before each of the rows that are stacked now
};

// All parts of a widget tell their sizes anew, from the inside, and at once.
void Measure_Anew(QWidget& whole);

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

  private:
    void Fit_Page();
};

// As large as wanted, and as the screen allows.
void Fit_To_Screen(QWidget& window, QSize wanted);
// Lets what the dialog has been laid out with scroll, and gives it its first size: at least so many
// characters and lines.
void Let_Scroll(QDialog& dialog, QSize characters = {});

} // namespace Tensarix
