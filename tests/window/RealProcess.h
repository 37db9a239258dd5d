// Real processes of the program, and how they are asked whether they are up.
#pragma once

#include <QLocalSocket>
#include <QProcess>
#include <QTest>

#include <memory>

namespace Tensarix::Tests {

inline constexpr int patienceMs = 60000; // for what takes well under a second on a free machine

inline std::unique_ptr<QProcess> Launch(const QString& program, const QStringList& arguments = {}) {
    auto process = std::make_unique<QProcess>();
    process->start(program, arguments);
    return process;
}

inline std::unique_ptr<QProcess> Launch_Tensarix(const QString& folder = TENSARIX_PROGRAM_DIR) {
    return Launch(folder + QStringLiteral("/tensarix"));
}

inline void Kill(QProcess& process) {
    process.kill();
    process.waitForFinished();
}

// A program is up once it answers that its window has been raised.
inline bool Comes_Up(const QString& home) {
    return QTest::qWaitFor(
        [&home] {
            QLocalSocket socket;
            socket.connectToServer(home + QStringLiteral("/tensarix.socket"));
            return socket.waitForConnected(patienceMs) && socket.waitForReadyRead(patienceMs);
        },
        patienceMs);
}

} // namespace Tensarix::Tests
