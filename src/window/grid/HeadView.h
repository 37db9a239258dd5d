// The head row of a grid: texts of several lines, in the colours and fonts of their cells.
#pragma once

#include <QHeaderView>

namespace Tensarix {

class HeadView final : public QHeaderView {
    Q_OBJECT

  public:
    explicit HeadView(QWidget* parent);

  protected:
    QSize sectionSizeFromContents(int section) const override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};

} // namespace Tensarix
