// One program a user.
#pragma once

#include "platform/Machine.h"
#include "window/desktop/ProcessLock.h"

#include <QByteArray>
#include <QLocalServer>
#include <QString>

#include <cstdint>
#include <functional>

class QLocalSocket;

namespace Tensarix {

// What the desktop gave this process at its start, so that it may raise a window; empty: nothing.
// To be asked before the toolkit starts, which takes it out of the environment.
QByteArray Activation_Token();

// A lock tells who was first. Who comes later writes a line to the first one's local socket, the
// wish to be raised, and gets an answer once that has been done. An instance that ends saves before
// it gives up its lock: who waits for an answer meanwhile takes its place. Locks and peers of other
// users count for nothing.
class SingleInstance final : public Instance {
  public:
    static constexpr int usualPatienceMs = 20000; // the first one may be starting, or be ending

    // The token is what the desktop gave this start, so that it may raise a window.
    explicit SingleInstance(QByteArray activationToken = {}, int patienceMs = usualPatienceMs);
    bool Other_Runs() override;
    bool Raise_Other() override;
    // The first instance: what to do when another one asks, with that one's token. False: it is
    // closing, and gives no answer.
    void On_Raise(std::function<bool(const QByteArray& activationToken)> raise);

  private:
    bool Take_Place();
    void Listen();
    enum class Answer : std::uint8_t { None, Raised, NotOurs };
    Answer Ask_Other(int patienceMs) const;
    void Take_Wishes();
    void Answer_Wish(QLocalSocket& socket);

    QByteArray token_;
    int patienceMs_;
    ProcessLock lock_; // given up after the socket
    QString socket_;
    QLocalServer server_;
    std::function<bool(const QByteArray&)> raise_;
    bool first_ = false;
};

} // namespace Tensarix
