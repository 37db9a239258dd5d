#include "window/desktop/UserFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef _WIN32
#include <QCryptographicHash>
#include <QTemporaryFile>
#endif

namespace Tensarix {

#ifdef _WIN32

namespace {

// Of its permissions the toolkit sees few.
bool Can_Be_Written(const QString& folder) {
    return QTemporaryFile(folder + QStringLiteral("/tensarix.XXXXXX")).open();
}

QString Data_Folder() {
    return Settings_Folder();
}

} // namespace

// As the environment has it, like the other desktops' folders.
QString Settings_Folder() {
    const QString usual = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA", usual)) +
           QStringLiteral("/Tensarix");
}

QString Instance_Address() {
    const QByteArray folder = Runtime_Folder().toLower().toUtf8();
    return QStringLiteral("tensarix-") +
           QString::fromLatin1(
               QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex());
}

#else

namespace {

bool Can_Be_Written(const QString& folder) {
    return QFileInfo(folder).isWritable();
}

QString Data_Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

} // namespace

QString Settings_Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Tensarix");
}

QString Instance_Address() {
    return Runtime_Folder() + QStringLiteral("/tensarix.socket");
}

#endif

Folders Program_Folders() {
    const QString program = QCoreApplication::applicationDirPath();
    QString data = program;
    if (!Can_Be_Written(program)) {
        data = Data_Folder();
        QDir().mkpath(data);
    }
    return {QDir(program).filesystemPath(), QDir(data).filesystemPath()};
}

// Where the desktop has made none, or one that others can write, the toolkit names one in the
// common temporary folder.
QString Runtime_Folder() {
    QString own = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!own.isEmpty() &&
        QDir(own) == QDir(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)))
        return own;
    QDir().mkpath(Settings_Folder());
    return Settings_Folder();
}

} // namespace Tensarix
