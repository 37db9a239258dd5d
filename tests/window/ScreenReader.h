// A screen reader that writes down what it is told while it lives.
#pragma once

#include <QAccessible>
#include <QStringList>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <utility>

namespace Tensarix::Tests {

class ScreenReader {
  public:
    ScreenReader() {
        told.clear();
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->type() == QAccessible::Focus)
                told.append(Name_Of(event->accessibleInterface()));
            else if (event->type() == QAccessible::TextInserted)
                told.append(QStringLiteral("text"));
            else if (event->type() == QAccessible::SelectionAdd ||
                     event->type() == QAccessible::Selection)
                told.append(QStringLiteral("selection"));
        });
        Listen(true);
    }
    ~ScreenReader() {
        Listen(false);
        QAccessible::installUpdateHandler(nullptr);
    }
    ScreenReader(const ScreenReader&) = delete;

    // Since it was asked last: the names of what got the focus, and what else happened.
    static QStringList Told() { return std::exchange(told, {}); }

  private:
    static void Listen(bool active) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
    static QString Name_Of(const QAccessibleInterface* at) {
        if (!at)
            return QStringLiteral("nothing");
        return (at->role() == QAccessible::Cell ? QStringLiteral("cell ") : QString()) +
               at->text(QAccessible::Name).trimmed();
    }
    static inline QStringList told;
};

} // namespace Tensarix::Tests
