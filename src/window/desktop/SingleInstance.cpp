#include "window/desktop/SingleInstance.h"

#include "window/desktop/UserFolders.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QThread>

#include <utility>

#ifdef __linux__
#include <sys/socket.h>
#include <unistd.h>
#elif defined(_WIN32)
#include <windows.h>
#endif

namespace Tensarix {

namespace {

constexpr int raiseWaitMs = 50; // between two tries
constexpr char raisedAnswer[] = "raised";

bool Is_Own_Peer([[maybe_unused]] const QLocalSocket& socket) {
#ifdef __linux__
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer,
                      &size) == 0 &&
           peer.uid == geteuid();
#else
    return true; // the system keeps others away
#endif
}

// The window of another program comes to the front only with leave of the one that the user has
// just started.
void Let_Other_Come_To_Front() {
#ifdef _WIN32
    AllowSetForegroundWindow(ASFW_ANY);
#endif
}

} // namespace

QByteArray Activation_Token() {
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

SingleInstance::SingleInstance(QByteArray activationToken, int patienceMs)
    : token_(std::move(activationToken)), patienceMs_(patienceMs),
      lock_(Runtime_Folder() + QStringLiteral("/tensarix.lock")), socket_(Instance_Address()) {
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { Take_Wishes(); });
    Take_Place();
}

bool SingleInstance::Take_Place() {
    first_ = lock_.Take(); // none can be kept: rather a second window than none
    if (first_)
        Listen();
    return first_;
}

void SingleInstance::Listen() {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(socket_); // what a crashed run left behind
    server_.listen(socket_);
}

bool SingleInstance::Other_Runs() {
    return !first_;
}

bool SingleInstance::Raise_Other() {
    QElapsedTimer waited;
    waited.start();
    while (!waited.hasExpired(patienceMs_)) {
        const Answer answer = Ask_Other(patienceMs_ - static_cast<int>(waited.elapsed()));
        if (answer == Answer::NotOurs) { // no instance: rather a second window than none
            first_ = true;
            Listen();
        }
        if (answer != Answer::None || Take_Place())
            return true;
        QThread::msleep(raiseWaitMs);
    }
    return false;
}

// A connection alone says nothing: the system makes it for a program that is ending, too.
SingleInstance::Answer SingleInstance::Ask_Other(int patienceMs) const {
    QLocalSocket socket;
    socket.connectToServer(socket_);
    if (!socket.waitForConnected(patienceMs))
        return Answer::None;
    if (!Is_Own_Peer(socket))
        return Answer::NotOurs;
    Let_Other_Come_To_Front();
    socket.write(token_ + '\n');
    return socket.waitForReadyRead(patienceMs) ? Answer::Raised : Answer::None;
}

void SingleInstance::On_Raise(std::function<bool(const QByteArray&)> raise) {
    raise_ = std::move(raise);
    Take_Wishes(); // of those who asked during the start
}

void SingleInstance::Take_Wishes() {
    if (!raise_)
        return;
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        QObject::connect(socket, &QLocalSocket::readyRead, socket,
                         [this, socket] { Answer_Wish(*socket); });
        Answer_Wish(*socket);
    }
}

void SingleInstance::Answer_Wish(QLocalSocket& socket) {
    if (!socket.canReadLine())
        return;
    if (!Is_Own_Peer(socket) || !raise_(socket.readLine().trimmed())) {
        socket.disconnectFromServer();
        return;
    }
    socket.write(raisedAnswer); // who asked hangs up: it would be lost on Windows if this end did
    socket.flush();             // whatever becomes of the event loop
}

} // namespace Tensarix
