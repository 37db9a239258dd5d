// Real processes of the program, and how they are asked whether they are up.
#pragma once

#include "window/desktop/UserFolders.h"

#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace Tensarix::Tests {

#ifdef _WIN32
inline constexpr char programName[] = "/tensarix.exe";
#else
inline constexpr char programName[] = "/tensarix";
#endif
inline constexpr int patienceMs = 60000; // for what takes well under a second on a free machine

inline std::unique_ptr<QProcess> Launch(const QString& program, const QStringList& arguments = {}) {
    auto process = std::make_unique<QProcess>();
    process->start(program, arguments);
    return process;
}

inline bool Copy_Program(const QString& folder) {
    for (const char* name : {programName, "/ShapeDataBase.mdb"})
        if (!QFile::copy(TENSARIX_PROGRAM_DIR + QString(name), folder + name))
            return false;
    return true;
}

// A copy of the program for several tests, whose data files lie beside it.
inline QString Shared_Copy() {
    static const QTemporaryDir folder;
    static const bool copied = Copy_Program(folder.path());
    EXPECT_TRUE(copied);
    return folder.path();
}

inline std::unique_ptr<QProcess> Launch_Tensarix(const QString& folder = Shared_Copy()) {
    return Launch(folder + QLatin1String(programName));
}

inline void Kill(QProcess& process) {
    process.kill();
    process.waitForFinished();
}

// A program is up once it answers that its window has been raised.
inline bool Comes_Up() {
    return QTest::qWaitFor(
        [] {
            QLocalSocket socket;
            socket.connectToServer(Instance_Address());
            if (!socket.waitForConnected(patienceMs))
                return false;
            socket.write("\n"); // the wish, without a token
            return socket.waitForReadyRead(patienceMs);
        },
        patienceMs);
}

} // namespace Tensarix::Tests
