// A line that tells by an ellipsis that it has been cut: a number that is cut looks like another.
#pragma once

#include <QLabel>

namespace Tensarix {

class ElidedLabel final : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override { return {1, QLabel::minimumSizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Tensarix
