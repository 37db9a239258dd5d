#include "window/desktop/UserFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Tensarix {

Folders Program_Folders() {
    const QString program = QCoreApplication::applicationDirPath();
    QString data = program;
    if (!QFileInfo(program).isWritable()) {
        data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QDir().mkpath(data);
    }
    return {program.toStdString(), data.toStdString()};
}

QString Settings_Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Tensarix");
}

// Where the desktop has made none, or one that others can write, the toolkit names one in the
// common temporary folder.
QString Runtime_Folder() {
    const QString own = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!own.isEmpty() &&
        QDir(own) == QDir(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)))
        return own;
    QDir().mkpath(Settings_Folder());
    return Settings_Folder();
}

} // namespace Tensarix
