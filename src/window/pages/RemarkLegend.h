// The legend of the three looks of a remark.
#pragma once

#include <QDialog>

namespace Tensarix {

class RemarkLegend : public QDialog {
    Q_OBJECT

  public:
    explicit RemarkLegend(QWidget* parent = nullptr);
};

} // namespace Tensarix
