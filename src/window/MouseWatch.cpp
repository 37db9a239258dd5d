#include "window/MouseWatch.h"

#include <QEvent>
#include <QWidget>

namespace Tensarix {

namespace {

class MouseWatch final : public QObject {
  public:
    MouseWatch(QWidget* widget, Handler handler) : QObject(widget), handler_(std::move(handler)) {
        widget->setMouseTracking(true);
        widget->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseMove)
            Run(handler_);
        return false;
    }

  private:
    Handler handler_;
};

} // namespace

void Watch_Mouse(QWidget* widget, Handler handler) {
    new MouseWatch(widget, std::move(handler));
}

} // namespace Tensarix
