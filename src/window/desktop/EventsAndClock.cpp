#include "window/desktop/EventsAndClock.h"

#include <QCoreApplication>
#include <QTimer>

#include <utility>

namespace Tensarix {

namespace {

constexpr qint64 turnEveryMs = 8; // a yield turns the event loop at most this often

} // namespace

bool DesktopEvents::Yield() {
    if (timer_.elapsed() - turned_ >= turnEveryMs)
        Turn();
    return !closing_;
}

void DesktopEvents::Turn() {
    QCoreApplication::processEvents();
    turned_ = timer_.elapsed();
}

void DesktopEvents::When_Idle(std::function<void()> work) {
    QTimer::singleShot(0, QCoreApplication::instance(), std::move(work));
}

} // namespace Tensarix
