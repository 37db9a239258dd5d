// A text of the calculator's display, in a fixed-pitch font as large as its place allows.
#pragma once

#include <QLabel>

namespace Tensarix {

class CalcDigits final : public QLabel {
  public:
    explicit CalcDigits(QWidget* parent = nullptr);

    // The number of characters that always have room, and the size of the font against the
    // widget's own where there is no more room. A longer text is shown smaller.
    void Set_Room(int characters, double leastSize);

    // How far the text stands above its place, in parts of its size.
    void Set_Raise(double raise) { raise_ = raise; }

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

    // The size at which the characters fill the place.
    double Full_Size(const QSize& place) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int characters_ = 1;
    double leastSize_ = 1;
    double raise_ = 0;
};

} // namespace Tensarix
