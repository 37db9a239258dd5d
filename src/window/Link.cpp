#include "window/Link.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QMetaObject>
#include <QPointer>

namespace Tensarix {

Link::Link(QWidget* widget, View& view, std::function<void()> pull)
    : QObject(widget), view_(view), pull_(std::move(pull)) {
    view_.OnChanged = [this] { Mark(); };
    widget->installEventFilter(this);
    pull_();
}

Link::~Link() {
    view_.OnChanged = nullptr;
}

void Link::Also(std::function<void()> pull) {
    pull();
    pull_ = [first = std::move(pull_), then = std::move(pull)] {
        first();
        then();
    };
}

void Link::Mark() {
    if (due_)
        return;
    due_ = true;
    QMetaObject::invokeMethod(
        this, [this] { Flush(); }, Qt::QueuedConnection);
}

void Link::Flush() {
    if (!due_ || held_)
        return;
    due_ = false;
    pull_();
}

void Link::Flush_After(const std::function<void()>& work) {
    held_ = true;
    work();
    held_ = false;
    Flush();
}

bool Link::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::FocusIn:
    case QEvent::Show:
        Flush();
        break;
    default:
        break;
    }
    return false;
}

FocusLink::FocusLink(QWidget* widget, FocusPoint& point) : QObject(widget), point_(point) {
    point_.Take = [widget = QPointer<QWidget>(widget)] {
        if (widget)
            widget->setFocus();
    };
    widget->installEventFilter(this);
}

FocusLink::~FocusLink() {
    point_.Take = nullptr;
}

bool FocusLink::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::FocusOut)
        return false;
    // The open list of a box is a part of it.
    for (const QObject* now = QApplication::focusWidget(); now; now = now->parent())
        if (now == watched && event->type() == QEvent::FocusOut)
            return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
        reason == Qt::MenuBarFocusReason)
        return false;
    if (event->type() == QEvent::FocusIn)
        point_.Set();
    else
        point_.Release();
    return false;
}

} // namespace Tensarix
