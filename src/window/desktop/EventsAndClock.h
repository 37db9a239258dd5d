// The event loop, and the clock that long loops and the calculator look at.
#pragma once

#include "platform/Machine.h"

#include <QElapsedTimer>

namespace Tensarix {

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

} // namespace Tensarix
