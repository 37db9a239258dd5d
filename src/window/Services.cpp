#include "window/Services.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QMessageBox>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <QWidget>

namespace Tensarix {

namespace {

constexpr qint64 turnEveryMs = 8; // a yield turns the event loop at most this often
constexpr int raiseTries = 60;    // the first instance may still be starting
constexpr int raiseWaitMs = 50;
constexpr char raiseWish[] = "raise";

QString To_Qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Setting_Path(std::string_view section, std::string_view key) {
    return To_Qt(section) + QLatin1Char('/') + To_Qt(key);
}

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

IniSettings::IniSettings()
    : file_(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Tensarix"),
            QStringLiteral("Tensarix")) {}

std::optional<std::string> IniSettings::Read(std::string_view section, std::string_view key) {
    const QString path = Setting_Path(section, key);
    if (!file_.contains(path))
        return std::nullopt;
    return file_.value(path).toString().toStdString();
}

void IniSettings::Write(std::string_view section, std::string_view key, std::string_view text) {
    file_.setValue(Setting_Path(section, key), To_Qt(text));
}

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

void DesktopWindow::Set_On_Top(bool onTop) {
    if (!widget_ || widget_->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop)
        return;
    const bool visible = widget_->isVisible();
    widget_->setWindowFlag(Qt::WindowStaysOnTopHint, onTop); // hides the window
    if (visible)
        widget_->show();
}

void DesktopWindow::Close() {
    if (widget_)
        widget_->close();
}

SingleInstance::SingleInstance()
    : lock_(Runtime_Folder() + QStringLiteral("/tensarix.lock")),
      socket_(Runtime_Folder() + QStringLiteral("/tensarix.socket")) {
    lock_.setStaleLockTime(0); // a lock is stale when its program has ended, not when it is old
    first_ = lock_.tryLock();
    if (!first_ && lock_.error() != QLockFile::LockFailedError)
        first_ = true; // no lock can be kept here: rather a second window than none
    if (!first_)
        return;
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(socket_); // what a crashed run left behind
    server_.listen(socket_);
}

bool SingleInstance::Other_Runs() {
    return !first_;
}

void SingleInstance::Raise_Other() {
    for (int i = 0; i < raiseTries; ++i) {
        QLocalSocket socket;
        socket.connectToServer(socket_);
        if (socket.waitForConnected(raiseWaitMs)) {
            socket.write(raiseWish);
            socket.waitForBytesWritten();
            socket.disconnectFromServer();
            return;
        }
        QThread::msleep(raiseWaitMs);
    }
}

void SingleInstance::On_Raise(std::function<void()> raise) {
    QObject::connect(&server_, &QLocalServer::newConnection, &server_,
                     [this, raise = std::move(raise)] {
                         while (QLocalSocket* socket = server_.nextPendingConnection())
                             socket->deleteLater();
                         raise();
                     });
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
