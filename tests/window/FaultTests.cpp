// Real processes that are killed while they save, or have no room to.
#include "RealProcess.h"
#include "WindowTest.h"

#include <QDir>

#include <csignal>
#include <map>

#include <sys/resource.h>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

const QStringList savedFiles{"Tensarix/Tensarix.ini", "BoltInputData.dat", "CalcMem.mem",
                             "SdfInput.sdf"};
const QByteArray boltsSaved = "Warning:|Entries succesfully Saved ! |information\n";

using Images = std::map<std::string, QByteArray>;
using Names = std::vector<std::string>;

struct FaultTest : HomeTest {
    Images stateA, stateB;

    // A copy of its own: the data files lie beside the program.
    void SetUp() override {
        HomeTest::SetUp();
        ASSERT_TRUE(Copy_Program(home.path()));
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

    // Waits until the files have been seen to change so often.
    void Wait_For_Changes(int count) const {
        Images seen = Files();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                Images now = Files();
                count -= now != seen ? 1 : 0;
                seen = std::move(now);
                return count <= 0;
            },
            patienceMs));
    }

    std::unique_ptr<QProcess> Saving(const QString& states) const {
        return Launch(QCoreApplication::applicationFilePath(), {"--save", states, home.path()});
    }
    void Save(const QString& states) const {
        EXPECT_EQ(End(*Saving(states)), boltsSaved.repeated(states.size()));
    }
    void Expect_Old_Or_New() {
        for (const auto& [name, bytes] : Files())
            EXPECT_TRUE(bytes == stateA[name] || bytes == stateB[name])
                << name << ": " << bytes.size() << " bytes";
    }
    // No file of the process can grow beyond so many bytes; what happens to it if one would.
    static void Leave_Room(QProcess& process, rlim_t room, void (*then)(int)) {
        process.setChildProcessModifier([room, then] {
            std::signal(SIGXFSZ, then);
            const rlimit limit{room, room}, noDump{0, 0};
            setrlimit(RLIMIT_CORE, &noDump);
            setrlimit(RLIMIT_FSIZE, &limit);
        });
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
        EXPECT_TRUE(Comes_Up());
        EXPECT_EQ(process->state(), QProcess::Running);
        Kill(*process);
        Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
        ASSERT_TRUE(program.Start());
        program.Window().close();
    }
};

} // namespace

TEST_F(FaultTest, AKillLeavesEveryFileOldOrNewAndTheNextStartWorks) {
    for (int round = 0; round < 20; ++round) { // anywhere
        SCOPED_TRACE(round);
        const auto process = Saving("AB*");
        ASSERT_TRUE(process->waitForReadyRead(patienceMs));
        ASSERT_EQ(process->readAllStandardOutput(), "ready\n");
        Wait_For_Changes(round % 4);
        Kill(*process);
        Expect_Old_Or_New();
    }
    for (const rlim_t room : {0U, 100U, 5000U}) { // at this byte of a file
        SCOPED_TRACE(room);
        QProcess saving;
        Leave_Room(saving, room, SIG_DFL);
        saving.start(QCoreApplication::applicationFilePath(), {"--save", "A", home.path()});
        EXPECT_TRUE(saving.waitForFinished(patienceMs));
        EXPECT_EQ(saving.exitStatus(), QProcess::CrashExit);
        EXPECT_FALSE(Left_Over().empty());
        Expect_Old_Or_New();
    }
    Save("BA"); // whatever stands there, each file is written
    EXPECT_EQ(Unlike(stateA), Names{});
    EXPECT_EQ(Left_Over(), Names{});
    Expect_Up_And_Down();
}

TEST_F(FaultTest, TheProgramItselfStartsAfterAnyKill) {
    // At once, when it has its place, and when it can be asked; beside what the one before has
    // left.
    for (const char* sign : {"", "tensarix.lock", "tensarix.socket", "", "tensarix.socket"}) {
        QFile::remove(home.filePath(sign));
        const auto process = Launch_Tensarix(home.path());
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return QFile::exists(home.filePath(sign)); }, patienceMs));
        Kill(*process);
    }
    EXPECT_EQ(Unlike(stateB), Names{}); // nothing saves at start
    Expect_Up_And_Down();
}

// No file can grow, as on a full disk: not at all, or not enough.
TEST_F(FaultTest, WithoutRoomTheOldFilesStay) {
    for (const rlim_t room : {0U, 200U}) {
        SCOPED_TRACE(room);
        QProcess saving, program;
        Leave_Room(saving, room, SIG_IGN);
        saving.start(QCoreApplication::applicationFilePath(), {"--save", "A", home.path()});
        EXPECT_EQ(End(saving),
                  "Warning:|Error No. 75:  Path/File access error|exclamation\n" +
                      boltsSaved); // the table says so whatever became of it
        EXPECT_EQ(Unlike(stateB), Names{});
        EXPECT_EQ(Left_Over(), Names{});
        Leave_Room(program, room, SIG_IGN);
        program.start(home.filePath("tensarix"), QStringList());
        EXPECT_TRUE(Comes_Up());
        Kill(program);
        QFile::remove(home.filePath("tensarix.socket"));
    }
}
