#include "window/Bind.h"

#include "window/Link.h"
#include "window/MouseWatch.h"
#include "window/To_Qt.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QGroupBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>

namespace Tensarix {

namespace {

// The wheel passes over what it would change unasked.
class NoWheel final : public QObject {
  public:
    explicit NoWheel(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

// By itself a group learns this only from the focus.
void Choose(QAbstractButton* option) {
    option->setChecked(true);
    for (auto* other :
         option->parent()->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
        if (other->autoExclusive())
            other->setFocusPolicy(other == option ? Qt::StrongFocus : Qt::ClickFocus);
}

void Bind(QPushButton* widget, Button& control) {
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        widget->setText(To_Qt(control.Caption()));
        widget->setEnabled(control.Enabled());
    });
    QObject::connect(widget, &QPushButton::clicked, link, [&control] { control.Click(); });
}

void Bind(QAbstractButton* widget, OptionButton& control) {
    widget->setCheckable(true);
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        widget->setText(To_Qt(control.Caption()));
        widget->setEnabled(control.Enabled());
        if (control.Value())
            Choose(widget);
    });
    QObject::connect(widget, &QAbstractButton::clicked, link, [&control] { control.Select(); });
}

void Bind(QGroupBox* widget, Frame& control) {
    new Link(widget, control.Shown, [widget, &control] { widget->setEnabled(control.Enabled()); });
}

void Bind(QTabBar* widget, TabControl& control) {
    new NoWheel(widget);
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        const QSignalBlocker quiet(widget);
        widget->setCurrentIndex(control.Tab() - 1);
    });
    QObject::connect(widget, &QTabBar::currentChanged, link,
                     [&control](int index) { control.Select(index + 1); });
}

void Bind(QTabWidget* widget, TabControl& control) {
    auto* link = new Link(widget, control.Shown, [widget, &control] {
        const QSignalBlocker quiet(widget);
        widget->setCurrentIndex(control.Tab());
    });
    QObject::connect(widget, &QTabWidget::currentChanged, link,
                     [&control](int index) { control.Select(index); });
}

void Bind(QStackedWidget* widget, TabControl& control) {
    new Link(widget, control.Shown, [widget, &control] { widget->setCurrentIndex(control.Tab()); });
}

void Bind(QTabBar* bar, QStackedWidget* pages, TabControl& control) {
    auto* link = new Link(bar, control.Shown, [bar, pages, &control] {
        const QSignalBlocker quiet(bar);
        bar->setCurrentIndex(control.Tab());
        pages->setCurrentIndex(control.Tab());
    });
    QObject::connect(bar, &QTabBar::currentChanged, link, [link, &control](int tab) {
        control.Select(tab);
        link->Flush();
    });
}

void Bind(QAction* action, MenuItem& control) {
    // An action is no widget, and its menu asks for its state at any time: it follows at once.
    const auto pull = [action, &control] {
        action->setText(To_Qt(control.Caption()));
        action->setToolTip(To_Qt(control.Remark()));
        action->setEnabled(control.Enabled());
        if (action->isCheckable())
            action->setChecked(control.Checked());
    };
    control.Shown.OnChanged = pull;
    pull();
    QObject::connect(action, &QObject::destroyed,
                     [&control] { control.Shown.OnChanged = nullptr; });
    QObject::connect(action, &QAction::triggered, action, [pull, &control] {
        control.Click();
        pull();
    });
}

} // namespace Tensarix
