// The main window as the system's window manager has it: above others, closed.
#pragma once

#include "platform/Machine.h"

#include <QPointer>
#include <QWidget>

namespace Tensarix {

// Puts the window above all others, or back among them; its size and place stay. False: this
// desktop lets no program decide that, and nothing has changed.
bool SetWindowOnTop(QWidget& window, bool onTop);

// The window itself is told once it exists.
class DesktopWindow final : public MainWindow {
  public:
    void Set_Widget(QWidget* widget) { widget_ = widget; }
    bool SetWindowOnTop(bool onTop) override;
    void Close() override;

  private:
    QPointer<QWidget> widget_;
};

} // namespace Tensarix
