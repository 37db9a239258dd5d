#include "window/desktop/APIModule.h"

#include <QGuiApplication>

namespace Tensarix {

namespace {

bool Programs_May_Decide() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

bool SetWindowOnTop(QWidget& window, bool onTop) {
    if (!Programs_May_Decide())
        return false;
    if (window.windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop)
        return true;
    const bool visible = window.isVisible();
    QWidget* const focused = window.focusWidget();
    window.setWindowFlag(Qt::WindowStaysOnTopHint, onTop); // hides the window
    if (!visible)
        return true;
    window.show();
    window.activateWindow();
    if (focused) // the keyboard stays where it was
        focused->setFocus();
    return true;
}

bool DesktopWindow::SetWindowOnTop(bool onTop) {
    return widget_ ? Tensarix::SetWindowOnTop(*widget_, onTop) : Programs_May_Decide();
}

void DesktopWindow::Close() {
    if (widget_)
        widget_->close();
}

} // namespace Tensarix
