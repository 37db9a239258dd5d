// Real processes that are killed while they save, or have no room to.
#include "RealProcess.h"
#include "WindowTest.h"

#include <QDir>

#include <csignal>
#include <map>
#include <random>

#include <sys/resource.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

const QStringList savedFiles{"Tensarix/Tensarix.ini", "BoltInputData.dat", "CalcMem.mem",
                             "SdfInput.sdf"};
constexpr qint64 enoughMs = 10000; // a machine that is busy kills less often
const QByteArray boltsSaved = "Warning:|Entries succesfully Saved ! |information\n";

using Images = std::map<std::string, QByteArray>;
using Names = std::vector<std::string>;

class FaultTest : public testing::Test {
  protected:
    QTemporaryDir home;
    Images stateA, stateB;

    // A copy of the program, so that its folder is not that of the other tests.
    void SetUp() override {
        Use_Home(home.path());
        for (const char* name : {"/tensarix", "/ShapeDataBase.mdb"})
            ASSERT_TRUE(QFile::copy(TENSARIX_PROGRAM_DIR + QString(name), home.path() + name));
        Save("BA"); // both states have been there: the settings have all their keys
        stateA = Files();
        Save("B");
        stateB = Files();
        for (const auto& [name, bytes] : stateA)
            ASSERT_TRUE(bytes.size() > 100 && bytes != stateB[name]) << name;
    }

    Images Files() const {
        Images images;
        for (const QString& name : savedFiles) {
            QFile file(home.filePath(name));
            images[name.toStdString()] =
                file.open(QIODevice::ReadOnly) ? file.readAll() : "missing";
        }
        return images;
    }
    // The names of the files that are otherwise.
    Names Unlike(const Images& expected) const {
        Names names;
        for (const auto& [name, bytes] : Files())
            if (bytes != expected.at(name))
                names.push_back(name);
        return names;
    }
    // What stands beside the saved files and the program's own.
    Names Left_Over() const {
        static const QStringList known{"BoltInputData.dat", "CalcMem.mem",       "SdfInput.sdf",
                                       "Tensarix.ini",      "ShapeDataBase.mdb", "tensarix",
                                       "tensarix.lock"};
        Names names;
        for (const QString& folder : {home.path(), home.filePath("Tensarix")})
            for (const QString& name : QDir(folder).entryList(QDir::Files))
                if (!known.contains(name))
                    names.push_back(name.toStdString());
        return names;
    }

    std::unique_ptr<QProcess> Saving(const QString& states) const {
        return Launch(QCoreApplication::applicationFilePath(), {"--save", states, home.path()});
    }
    void Save(const QString& states) const {
        EXPECT_EQ(End(*Saving(states)), boltsSaved.repeated(states.size()));
    }
    // What it told behind its start, once it has ended well.
    static QByteArray End(QProcess& process) {
        EXPECT_TRUE(process.waitForFinished(patienceMs));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0);
        const QByteArray told = process.readAllStandardOutput();
        EXPECT_TRUE(told.startsWith("ready\n")) << told.constData();
        return told.mid(6);
    }
    void Expect_Up_And_Down() {
        const auto process = Launch_Tensarix(home.path());
        EXPECT_TRUE(Comes_Up(home.path()));
        EXPECT_EQ(process->state(), QProcess::Running);
        Kill(*process);
        Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
        ASSERT_TRUE(program.Start());
        program.Window().close();
    }
};

} // namespace

TEST_F(FaultTest, AKillLeavesEveryFileOldOrNewAndTheNextStartWorks) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<unsigned long> delay(0, 50000);
    int struck = 0;
    QElapsedTimer clock;
    clock.start();
    const auto enough = [&](int rounds) {
        return struck > 0 && (rounds >= 60 || (rounds >= 20 && clock.elapsed() > enoughMs));
    };
    for (int round = 0; round < 400 && !enough(round); ++round) {
        SCOPED_TRACE(round);
        const auto process = Saving("AB*");
        ASSERT_TRUE(process->waitForReadyRead(patienceMs));
        ASSERT_EQ(process->readAllStandardOutput(), "ready\n");
        QThread::usleep(delay(random));
        Kill(*process);
        struck += Left_Over().empty() ? 0 : 1;
        for (const auto& [name, bytes] : Files())
            ASSERT_TRUE(bytes == stateA[name] || bytes == stateB[name])
                << name << ": " << bytes.size() << " bytes";
    }
    EXPECT_GT(struck, 0); // inside a save
    Save("BA");           // whatever stands there, each file is written
    EXPECT_EQ(Unlike(stateA), Names{});
    EXPECT_EQ(Left_Over(), Names{});
    Expect_Up_And_Down();
}

TEST_F(FaultTest, TheProgramItselfStartsAfterAnyKill) {
    std::mt19937 random(7);
    std::uniform_int_distribution<unsigned long> delay(0, 150);
    for (int round = 0; round < 12; ++round) {
        const auto process = Launch_Tensarix(home.path());
        QThread::msleep(delay(random));
        Kill(*process);
    }
    EXPECT_EQ(Unlike(stateB), Names{}); // nothing saves at start
    Expect_Up_And_Down();
}

// No file can grow, as on a full disk: not at all, or not enough.
TEST_F(FaultTest, WithoutRoomTheOldFilesStay) {
    for (const rlim_t room : {0U, 200U}) {
        SCOPED_TRACE(room);
        const auto full = [room](QProcess& process) {
            process.setChildProcessModifier([room] {
                std::signal(SIGXFSZ, SIG_IGN);
                const rlimit limit{room, room};
                setrlimit(RLIMIT_FSIZE, &limit);
            });
        };
        QProcess saving, program;
        full(saving);
        saving.start(QCoreApplication::applicationFilePath(), {"--save", "A", home.path()});
        EXPECT_EQ(End(saving), "Warning:|Error No. 75:  Path/File access error|exclamation\n" +
                                   boltsSaved); // the required order
        EXPECT_EQ(Unlike(stateB), Names{});
        EXPECT_EQ(Left_Over(), Names{});
        full(program);
        program.start(home.filePath("tensarix"), QStringList());
        EXPECT_TRUE(Comes_Up(home.path()));
        Kill(program);
        QFile::remove(home.filePath("tensarix.socket"));
    }
}
