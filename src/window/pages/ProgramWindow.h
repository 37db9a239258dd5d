// The main window on the screen: modes, pages, menu, status bar.
#pragma once

#include "shell/MainFrm.h"
#include "window/KeysToControl.h"
#include "window/desktop/EventsAndClock.h"

#include <QMainWindow>

namespace Tensarix {

class ProgramWindow final : public QMainWindow, public RefusedKeyWindow {
    Q_OBJECT

  public:
    ProgramWindow(MainFrm& form, DesktopEvents& events);

    // Un-minimises the window and brings it to the front, by the token that the desktop gave the
    // one who asks for it. False: the window has been closed.
    bool Raise(const QByteArray& activationToken);
    void Tell_Refused_Key(const std::string& answer) override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Make_Any_Section_Box(QMenuBar* bar);
    void Restore_Place();

    MainFrm& form_;
    DesktopEvents& events_;
};

} // namespace Tensarix
