// The voice with the real speech service, which plays to nowhere: a service of the test's own, that
// the voice itself starts from the home folder of the test.
#include "WindowTest.h"
#include "window/desktop/DesktopVoice.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

constexpr int patienceMs = 60000;   // for what takes well under a second on a free machine
constexpr int moreThanEver = 50000; // words that nobody has spoken before that is over

// Takes many seconds to speak, even to nowhere.
std::string Long_Text(int words = 3000) {
    std::string text;
    for (int i = 0; i < words; ++i)
        text += "word" + std::to_string(i) + " ";
    return text;
}

struct DesktopVoiceTest : testing::Test {
    static inline std::unique_ptr<QTemporaryDir> home; // of all tests: the service is slow to end
    QByteArray locale = qgetenv("LC_ALL");
    std::unique_ptr<DesktopVoice> voice;
    std::string text; // the last one that was spoken
    std::vector<std::string> words;
    int ends = 0, missing = 0;

    static void SetUpTestSuite() {
        home = std::make_unique<QTemporaryDir>();
        Write_File(home->filePath(".libao"), "default_driver=null\n");
        QDir().mkpath(home->filePath("speech-dispatcher"));
        Write_File(home->filePath("speech-dispatcher/speechd.conf"),
                   "AudioOutputMethod \"libao\"\n"
                   "AddModule \"espeak-ng\" \"sd_espeak-ng\" \"espeak-ng.conf\"\n"
                   "DefaultModule espeak-ng\n"
                   "Timeout 5\n");
    }
    static void TearDownTestSuite() {
        if (const pid_t service = Service(); service > 0) {
            ::kill(service, SIGTERM);
            EXPECT_TRUE(QTest::qWaitFor([&] { return ::kill(service, 0) != 0; }, patienceMs));
        }
        home.reset();
    }

    void SetUp() override {
        if (QStandardPaths::findExecutable("speech-dispatcher").isEmpty())
            GTEST_SKIP() << "there is no speech service on this machine";
        Use_Home(home->path());
        qunsetenv("SPEECHD_ADDRESS");
        qputenv("LC_ALL", "C.UTF-8"); // the service doesn't start under one that isn't installed
        Make_Voice();
    }
    void TearDown() override {
        voice.reset();
        qputenv("LC_ALL", locale);
    }

    void Make_Voice() {
        voice = std::make_unique<DesktopVoice>();
        voice->OnWord = [this](std::size_t at, std::size_t length) {
            words.push_back(text.substr(std::min(at, text.size()), length));
        };
        voice->OnEnd = [this] { ++ends; };
        voice->OnMissing = [this] { ++missing; };
    }
    // Speaks in a turn of its own.
    void Speak(const std::string& what) {
        QCoreApplication::processEvents();
        text = what;
        words.clear();
        ends = 0;
        voice->Speak(what);
    }
    bool Wait_For_Words(std::size_t count) {
        return QTest::qWaitFor([&] { return words.size() >= count; }, patienceMs);
    }
    bool Wait_For_End() {
        return QTest::qWaitFor([&] { return ends > 0; }, patienceMs);
    }
    void Expect_Spoken(const std::vector<std::string>& expected) {
        ASSERT_TRUE(Wait_For_End());
        EXPECT_EQ(words, expected);
    }
    // The service that the voice has started.
    static pid_t Service() {
        QFile file(home->filePath("speech-dispatcher/pid/speech-dispatcher.pid"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
    }
};

} // namespace

TEST_F(DesktopVoiceTest, WordsArriveInOrderAndTheLastTurnWins) {
    Speak("AREA = 98.5 SQUARE INCHES :: <area> & more\nof \"it\"");
    EXPECT_TRUE(words.empty()); // no callback runs inside Speak
    Expect_Spoken({"AREA", "98.5", "SQUARE", "INCHES", "area", "more", "of", "it"});

    // Texts of one turn follow each other.
    Speak("one two");
    voice->Speak("six ten");
    Expect_Spoken({"one", "two", "one", "two"}); // places in the text, which is another
    EXPECT_EQ(ends, 1);

    // A text of a later turn cuts the running one short.
    Speak(Long_Text());
    ASSERT_TRUE(Wait_For_Words(3));
    Speak("short end");
    Expect_Spoken({"short", "end"});
}

TEST_F(DesktopVoiceTest, AnEmptyTextSilencesTheServiceAtOnce) {
    Speak(Long_Text(moreThanEver));
    ASSERT_TRUE(Wait_For_Words(3));
    voice->Speak("");
    words.clear();
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 0);
    // If the service went on with the long text, this one would wait for its end.
    voice->Speak(text = "after silence");
    Expect_Spoken({"after", "silence"}); // and no word of the long one came before

    // Silenced before the service has heard of it: nothing of it comes, and what follows does.
    Speak("never said");
    voice->Speak("");
    voice->Speak(text = "but this");
    Expect_Spoken({"but", "this"});
}

TEST_F(DesktopVoiceTest, TheServiceDiesAndTheNextTextFindsANewOne) {
    Speak(Long_Text());
    ASSERT_TRUE(Wait_For_Words(3));
    const pid_t first = Service();
    ASSERT_GT(first, 0);
    ::kill(first, SIGKILL);
    ASSERT_TRUE(Wait_For_End()); // it tells that nothing is spoken any more
    EXPECT_LT(words.size(), 3000u);

    Speak("here again");
    Expect_Spoken({"here", "again"});
    EXPECT_NE(Service(), first);
}

TEST_F(DesktopVoiceTest, AServiceThatHangsHoldsUpNothing) {
    Speak("hello");
    ASSERT_TRUE(Wait_For_End());
    const pid_t service = Service();
    ASSERT_GT(service, 0);
    ::kill(service, SIGSTOP);
    for (int i = 0; i < 100; ++i)
        Speak(Long_Text());
    EXPECT_TRUE(words.empty());
    voice.reset(); // none of this waits for an answer that doesn't come
    ::kill(service, SIGCONT);
    Make_Voice();
    Speak("hello again");
    Expect_Spoken({"hello", "again"});
}

// Neither a service nor a way to start one: nothing is heard, and that is told.
TEST_F(DesktopVoiceTest, WithoutAService) {
    const QTemporaryDir empty;
    const QByteArray path = qgetenv("PATH");
    Use_Home(empty.path());
    qputenv("PATH", empty.path().toLocal8Bit());
    voice->Reach();
    EXPECT_TRUE(QTest::qWaitFor([this] { return missing == 1; }, patienceMs));
    Speak("into the void");
    voice->Speak("");
    voice->Speak("and again");
    EXPECT_TRUE(QTest::qWaitFor([this] { return missing > 1; }, patienceMs));
    voice.reset();
    EXPECT_TRUE(words.empty());
    EXPECT_EQ(ends, 0);
    qputenv("PATH", path);
}
