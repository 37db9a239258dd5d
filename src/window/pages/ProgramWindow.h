// The main window on the screen: modes, pages, menu, status bar.
#pragma once

#include "shell/MainFrm.h"
#include "window/desktop/Services.h"

#include <QMainWindow>

namespace Tensarix {

class ProgramWindow final : public QMainWindow {
    Q_OBJECT

  public:
    ProgramWindow(MainFrm& form, SettingsStore& settings, DesktopEvents& events);

    // Un-minimises the window and brings it to the front.
    bool Raise();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Restore_Place();

    MainFrm& form_;
    SettingsStore& settings_;
    DesktopEvents& events_;
};

} // namespace Tensarix
