// Two real processes of the program.
#include "WindowTest.h"

#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

class InstanceTest : public testing::Test {
  protected:
    QTemporaryDir home;

    void SetUp() override { Use_Home(home.path()); }

    static void Launch(QProcess& process) {
        process.start(QStringLiteral(TENSARIX_PROGRAM_DIR "/tensarix"), QStringList());
        ASSERT_TRUE(process.waitForStarted());
    }
    // The program has taken its place once its socket is there.
    bool Wait_For_Socket() {
        return QTest::qWaitFor([this] { return QFile::exists(home.path() + "/tensarix.socket"); },
                               10000);
    }
};

} // namespace

TEST_F(InstanceTest, TheSecondEndsQuietlyAndTheFirstGoesOn) {
    QProcess first, second;
    Launch(first);
    ASSERT_TRUE(Wait_For_Socket());
    Launch(second);
    ASSERT_TRUE(second.waitForFinished(10000));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(first.state(), QProcess::Running);
    first.kill();
    first.waitForFinished();
}

TEST_F(InstanceTest, WhatACrashedRunLeftBehindDoesNotBlockTheNext) {
    QProcess first, second;
    Launch(first);
    ASSERT_TRUE(Wait_For_Socket());
    first.kill();
    ASSERT_TRUE(first.waitForFinished());
    ASSERT_TRUE(QFile::exists(home.path() + "/tensarix.socket"));
    Launch(second);
    EXPECT_FALSE(second.waitForFinished(1500)); // it runs on
    second.kill();
    second.waitForFinished();
}

// The minimised window of the first comes back when the second asks.
TEST_F(InstanceTest, TheFirstWindowIsRaised) {
    Program first({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    ASSERT_TRUE(first.Start());
    first.Window().showMinimized();
    QProcess second;
    Launch(second);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !first.Window().isMinimized(); }, 10000));
    EXPECT_TRUE(second.state() == QProcess::NotRunning || second.waitForFinished(10000));
    first.Window().close();
}
