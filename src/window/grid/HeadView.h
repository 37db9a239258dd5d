// The head row of a grid: texts of several lines, in the colours and fonts of their cells.
#pragma once

#include <QHeaderView>

namespace Tensarix {

class HeadView final : public QHeaderView {
    Q_OBJECT

  public:
    explicit HeadView(QWidget* parent);

  signals:
    void Head_Clicked(int section); // not by who changes a width

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    QSize sectionSizeFromContents(int section) const override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

  private:
    int pressed_ = -1;
};

} // namespace Tensarix
