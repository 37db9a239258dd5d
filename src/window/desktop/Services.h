// The machine as the desktop offers it.
#pragma once

#include "platform/Machine.h"
#include "window/desktop/ProcessLock.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QPointer>

#include <memory>

class QWidget;

namespace Tensarix {

class DesktopClipboard final : public Clipboard {
  public:
    void Clear() override;
    void Set_Text(std::string_view text) override;
    std::string Text() override;
};

class MessageBoxes final : public Messages {
  public:
    void Show(std::string_view text, std::string_view title, MessageIcon icon) override;
    bool Ask_Yes_No(std::string_view text, std::string_view title, MessageIcon icon) override;
};

class SteadyClock final : public Clock {
  public:
    SteadyClock() { timer_.start(); }
    double Seconds() override { return static_cast<double>(timer_.nsecsElapsed()) * 1e-9; }

  private:
    QElapsedTimer timer_;
};

class DesktopEvents final : public EventLoop {
  public:
    DesktopEvents() { timer_.start(); }
    bool Yield() override;
    void Turn() override;
    void When_Idle(std::function<void()> work) override;
    // The program is closing: every yield tells so from now on.
    void Close() { closing_ = true; }

  private:
    QElapsedTimer timer_;
    qint64 turned_ = 0;
    bool closing_ = false;
};

// The window itself is told once it exists.
class DesktopWindow final : public MainWindow {
  public:
    void Set_Widget(QWidget* widget) { widget_ = widget; }
    void Set_On_Top(bool onTop) override;
    void Close() override;

  private:
    QPointer<QWidget> widget_;
};

// A lock tells who was first. A connection to the first one's local socket is the wish to be
// raised, and is answered once that has been done. An instance that ends saves before it gives up
// its lock: who waits for an answer meanwhile takes its place.
class SingleInstance final : public Instance {
  public:
    SingleInstance();
    bool Other_Runs() override;
    void Raise_Other() override;
    // The first instance: what to do when another one asks. False: it is closing, and gives no
    // answer.
    void On_Raise(std::function<bool()> raise);

  private:
    bool Take_Place();
    bool Other_Answers(int patienceMs);

    ProcessLock lock_; // given up after the socket
    QString socket_;
    QLocalServer server_;
    bool first_ = false;
};

// The program's own folder, and the one for its data files.
Folders Program_Folders();

} // namespace Tensarix
