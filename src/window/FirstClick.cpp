#include "window/FirstClick.h"

#include <QFocusEvent>
#include <QLineEdit>

#include <utility>

namespace Tensarix {

namespace {

class FirstClick final : public QObject {
  public:
    explicit FirstClick(QLineEdit* box) : QObject(box), box_(box) { box->installEventFilter(this); }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusIn)
            first_ = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
        if (event->type() == QEvent::MouseButtonRelease && std::exchange(first_, false) &&
            !box_->hasSelectedText()) {
            box_->selectAll();
            return true; // the box's own release would do nothing more
        }
        return false;
    }

  private:
    QLineEdit* box_;
    bool first_ = false;
};

} // namespace

void Choose_All_At_First_Click(QLineEdit* box) {
    new FirstClick(box);
}

} // namespace Tensarix
