#include "window/desktop/Services.h"

#include "window/To_Qt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QMessageBox>
#include <QShortcut>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <QWidget>

namespace Tensarix {

namespace {

constexpr qint64 turnEveryMs = 8;      // a yield turns the event loop at most this often
constexpr int raisePatienceMs = 20000; // the first instance may still be starting, or be ending
constexpr int raiseWaitMs = 50;        // between two tries
constexpr char raisedAnswer[] = "raised";

QMessageBox::Icon Box_Icon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        break;
    }
    return QMessageBox::Information;
}

// The box of a check that a mouse press set off has taken the release: the button would stay down.
void Let_Go_Of_Buttons() {
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    for (QWidget* widget : QApplication::allWidgets())
        if (auto* button = qobject_cast<QAbstractButton*>(widget))
            button->setDown(false);
}

QMessageBox::StandardButton Ask(std::string_view text, std::string_view title, MessageIcon icon,
                                QMessageBox::StandardButtons buttons) {
    QMessageBox box(Box_Icon(icon), To_Qt(title), To_Qt(text), buttons,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    const QShortcut copy(QKeySequence::Copy, &box);
    QObject::connect(&copy, &QShortcut::activated, &box,
                     [&box] { QGuiApplication::clipboard()->setText(box.text()); });
    const auto answer = static_cast<QMessageBox::StandardButton>(box.exec());
    QTimer::singleShot(0, qApp, Let_Go_Of_Buttons); // the press is handled before
    return answer;
}

// A folder of the user that only the user can write, for the lock and the socket.
QString Runtime_Folder() {
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return runtime.isEmpty() ? QDir::tempPath() : runtime;
}

} // namespace

void DesktopClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

void DesktopClipboard::Set_Text(std::string_view text) {
    QGuiApplication::clipboard()->setText(To_Qt(text));
}

std::string DesktopClipboard::Text() {
    return QGuiApplication::clipboard()->text().toStdString();
}

void MessageBoxes::Show(std::string_view text, std::string_view title, MessageIcon icon) {
    Ask(text, title, icon, QMessageBox::Ok);
}

bool MessageBoxes::Ask_Yes_No(std::string_view text, std::string_view title, MessageIcon icon) {
    return Ask(text, title, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

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

void DesktopWindow::Set_On_Top(bool onTop) {
    if (!widget_ || widget_->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop)
        return;
    const bool visible = widget_->isVisible();
    QWidget* const focused = widget_->focusWidget();
    widget_->setWindowFlag(Qt::WindowStaysOnTopHint, onTop); // hides the window
    if (!visible)
        return;
    widget_->show();
    widget_->activateWindow();
    if (focused) // the keyboard stays where it was
        focused->setFocus();
}

void DesktopWindow::Close() {
    if (widget_)
        widget_->close();
}

SingleInstance::SingleInstance()
    : lock_(Runtime_Folder() + QStringLiteral("/tensarix.lock")),
      socket_(Runtime_Folder() + QStringLiteral("/tensarix.socket")) {
    Take_Place();
}

bool SingleInstance::Take_Place() {
    first_ = lock_.Take(); // none can be kept: rather a second window than none
    if (first_) {
        server_.setSocketOptions(QLocalServer::UserAccessOption);
        QLocalServer::removeServer(socket_); // what a crashed run left behind
        server_.listen(socket_);
    }
    return first_;
}

bool SingleInstance::Other_Runs() {
    return !first_;
}

void SingleInstance::Raise_Other() {
    QElapsedTimer waited;
    waited.start();
    while (!waited.hasExpired(raisePatienceMs)) {
        if (Other_Answers(raisePatienceMs - static_cast<int>(waited.elapsed())) || Take_Place())
            return;
        QThread::msleep(raiseWaitMs);
    }
}

// A connection alone says nothing: the system makes it for a program that is ending, too.
bool SingleInstance::Other_Answers(int patienceMs) {
    QLocalSocket socket;
    socket.connectToServer(socket_);
    return socket.waitForConnected(patienceMs) && socket.waitForReadyRead(patienceMs);
}

void SingleInstance::On_Raise(std::function<bool()> raise) {
    const auto answer = [this, raise = std::move(raise)] {
        while (QLocalSocket* socket = server_.nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            if (raise()) {
                socket->write(raisedAnswer);
                socket->flush(); // whatever becomes of the event loop
            }
            socket->disconnectFromServer();
        }
    };
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, answer);
    answer(); // to those who asked during the start
}

Folders Program_Folders() {
    const QString program = QCoreApplication::applicationDirPath();
    QString data = program;
    if (!QFileInfo(program).isWritable()) {
        data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QDir().mkpath(data);
    }
    return {program.toStdString(), data.toStdString()};
}

} // namespace Tensarix
