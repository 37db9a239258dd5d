// Several real processes of the program.
#include "RealProcess.h"
#include "WindowTest.h"

#include <QFile>

#include <vector>

#ifndef _WIN32
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

using Process = std::unique_ptr<QProcess>;

bool Runs(const Process& process) {
    return process->state() != QProcess::NotRunning;
}

bool Ended_Well(const Process& process) {
    return process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
}

struct InstanceTest : HomeTest {
#ifndef _WIN32
    // The one that listens, and one for each connection to it.
    qsizetype Sockets() const {
        QFile file(QStringLiteral("/proc/net/unix"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().count(home.path().toLocal8Bit()) : 0;
    }
#endif
};

} // namespace

TEST_F(InstanceTest, TheSecondEndsQuietlyAndTheFirstGoesOn) {
    const Process first = Launch_Tensarix();
    ASSERT_TRUE(Comes_Up());
    const Process second = Launch_Tensarix();
    ASSERT_TRUE(second->waitForFinished(patienceMs));
    EXPECT_TRUE(Ended_Well(second));
    EXPECT_TRUE(Runs(first));
    Kill(*first);
}

// From the second round on a killed run has left its lock and its socket behind.
TEST_F(InstanceTest, OfSeveralStartedAtOnceOneStays) {
    for (std::size_t round = 0; round < 8; ++round) {
        SCOPED_TRACE(round);
        std::vector<Process> all(2 + round % 3);
        for (Process& each : all)
            each = Launch_Tensarix();
        const auto running = [&all] { return std::count_if(all.begin(), all.end(), Runs); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return running() <= 1; }, patienceMs));
        EXPECT_EQ(running(), 1);
        for (const Process& each : all)
            EXPECT_TRUE(Runs(each) || Ended_Well(each));
        EXPECT_TRUE(Comes_Up());
        for (const Process& each : all)
            Kill(*each);
#ifndef _WIN32 // where a pipe goes with its process
        ASSERT_TRUE(QFile::exists(Instance_Address()));
#endif
    }
}

// As a run leaves it that is killed at the wrong moment, or a full disk.
TEST_F(InstanceTest, WhatStandsInTheLockFileDoesNotCount) {
    for (const QByteArray& text : {QByteArray(), QByteArray("1\ntensarix\n")}) {
        Write_File(home.filePath("tensarix.lock"), text);
        const Process program = Launch_Tensarix();
        EXPECT_TRUE(Comes_Up());
        EXPECT_TRUE(Runs(program));
        Kill(*program);
    }
}

// The minimised window of the first comes back when the second asks.
TEST_F(InstanceTest, TheFirstWindowIsRaised) {
    Program first({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    ASSERT_TRUE(first.Start());
    first.Window().showMaximized();
    first.Window().showMinimized();
    const Process second = Launch_Tensarix();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !first.Window().isMinimized(); }, patienceMs));
    EXPECT_TRUE(first.Window().isMaximized());
    EXPECT_TRUE(!Runs(second) || second->waitForFinished(patienceMs));
    EXPECT_TRUE(Ended_Well(second));
    first.Window().close();
}

// The desktop's leave to raise a window goes from the second to the first.
TEST_F(InstanceTest, TheTokenIsPassedOn) {
    std::vector<QByteArray> tokens;
    SingleInstance first;
    first.On_Raise([&tokens](const QByteArray& token) {
        tokens.push_back(token);
        return true;
    });
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        qputenv(name, name);
        const Process second = Launch_Tensarix();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Runs(second); }, patienceMs));
        qunsetenv(name);
    }
    EXPECT_EQ(tokens, (std::vector<QByteArray>{"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}));
}

TEST_F(InstanceTest, OneThatDoesNotAnswerIsGivenUp) {
    const SingleInstance first; // nobody handles its wishes
    SingleInstance second({}, 50);
    EXPECT_TRUE(second.Other_Runs());
    EXPECT_FALSE(second.Raise_Other());
    EXPECT_TRUE(second.Other_Runs());
}

#ifndef _WIN32

// What another user has put there, and folders that others can write, count for nothing.
TEST_F(InstanceTest, OtherUsers) {
    if (geteuid() == 0) {
        QFile lock(home.filePath("tensarix.lock"));
        ASSERT_TRUE(lock.open(QIODevice::WriteOnly) && flock(lock.handle(), LOCK_EX) == 0);
        ASSERT_EQ(fchown(lock.handle(), 65534, 65534), 0);
        EXPECT_FALSE(SingleInstance().Other_Runs());
        ASSERT_EQ(fchown(lock.handle(), 0, 0), 0); // the lock is one's own, but who listens is not
        ASSERT_TRUE(chmod(home.path().toLocal8Bit(), 0777) == 0 && seteuid(65534) == 0);
        QLocalServer stranger;
        EXPECT_TRUE(stranger.listen(home.filePath("tensarix.socket")));
        ASSERT_TRUE(seteuid(0) == 0 && chmod(home.path().toLocal8Bit(), 0700) == 0);
        SingleInstance second;
        EXPECT_TRUE(second.Other_Runs());
        EXPECT_TRUE(second.Raise_Other()) << "no instance, and no wait for it";
        EXPECT_FALSE(second.Other_Runs());
    }
    EXPECT_EQ(Runtime_Folder(), home.path());
    ASSERT_EQ(chmod(home.path().toLocal8Bit(), 0777), 0);
    EXPECT_EQ(Runtime_Folder(), home.filePath("Tensarix"));
    qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(Runtime_Folder(), home.filePath("Tensarix"));
}

// The first is closing: it takes no more wishes, and who asks must not end with it.
TEST_F(InstanceTest, WhoAsksOneThatIsClosingTakesItsPlace) {
    auto first =
        std::make_unique<Program>(Folders{TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    ASSERT_TRUE(first->Start());
    const qsizetype before = Sockets();
    const Process second = Launch_Tensarix();
    QElapsedTimer waited;
    for (waited.start(); Sockets() == before && !waited.hasExpired(patienceMs);)
        QThread::msleep(5); // without a turn of the event loop, which would answer
    ASSERT_GT(Sockets(), before);
    first->Window().close();
    QCoreApplication::processEvents(); // the wish arrives at a closed window
    first.reset();
    EXPECT_TRUE(Comes_Up());
    EXPECT_TRUE(Runs(second));
    Kill(*second);
}

#endif
