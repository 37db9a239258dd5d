#include "window/MouseWatch.h"

#include <QEvent>
#include <QMouseEvent>
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

class ClickWatch final : public QObject {
  public:
    ClickWatch(QWidget* widget, Handler handler) : QObject(widget), handler_(std::move(handler)) {
        widget->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
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

void Watch_Click(QWidget* widget, Handler handler) {
    new ClickWatch(widget, std::move(handler));
}

} // namespace Tensarix
