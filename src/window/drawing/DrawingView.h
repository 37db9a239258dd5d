// Paints a drawing as large as fits, its texts in the size of the font and its inks by the palette.
// Its sentence is the accessible description, and stands in the place of a drawing that is empty.
// Pointing at a part tells what it is.
#pragma once

#include "controls/DrawingBox.h"
#include "controls/DrawingLayout.h"

#include <QWidget>

#include <optional>

namespace Tensarix {

class DrawingView : public QWidget {
    Q_OBJECT

  public:
    explicit DrawingView(QWidget* parent = nullptr);

    // The box must outlive the view.
    void Show_Box(DrawingBox& box);
    // As it is painted now.
    const Drawn::Layout& Laid_Out();

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void Take_Over();
    bool Is_Lit(const std::string& name) const;
    void Paint_Fill(QPainter& painter, const Drawn::Fill& fill) const;
    void Paint_Stroke(QPainter& painter, const Drawn::Stroke& stroke) const;
    void Paint_Text(QPainter& painter, const Drawn::Text& text) const;

    DrawingBox* box_ = nullptr;
    unsigned version_ = 0;
    std::optional<Drawn::Layout> layout_; // none: to be laid out anew
};

} // namespace Tensarix
