#include "WindowTest.h"
#include "window/desktop/IniSettings.h"

#include <QDir>
#include <QFileInfo>

#include <functional>

#ifndef _WIN32
#include <sys/stat.h>
#endif

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct IniSettingsTest : HomeTest {
    QString path = home.filePath("Tensarix/Tensarix.ini");

    QByteArray Text() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "missing";
    }
    void Set_Text(const QByteArray& text) const {
        QDir().mkpath(home.filePath("Tensarix"));
        Write_File(path, text);
    }
};

} // namespace

TEST_F(IniSettingsTest, AnyTextComesBackUnderAnyName) {
    const std::string texts[] = {"",
                                 "-12.5",
                                 " 12' - 6 3/8\" ",
                                 "a, b; c",
                                 "@Size(1)",
                                 "\\x41 = \001f\n",
                                 "\xC3\x98 \xE2\x82\xAC",
                                 "%41",
                                 "[Section]\na=b",
                                 "Zm9v+/=="};
    const std::string sections[] = {"TensarixSetting", "/opt/Ten sarix=1/\xC3\xA9\xE2\x82\xAC"};
    {
        IniSettings settings;
        for (const std::string& section : sections)
            for (const std::string& text : texts)
                settings.Write(section, "key of " + text, text);
    }
    IniSettings settings;
    for (const std::string& section : sections)
        for (const std::string& text : texts)
            EXPECT_EQ(settings.Read(section, "key of " + text), text) << Text().constData();
}

TEST_F(IniSettingsTest, WhatItDoesNotKnowStays) {
    Set_Text("alone=1\n\n[Other]\nlist=a, b\npair=\"c, d\"\n\n[TensarixSetting]\nShapeType=3\n");
    IniSettings settings;
    settings.Write("TensarixSetting", "ShapeType", "4");
    EXPECT_EQ(settings.Read("TensarixSetting", "ShapeType"), "4");
    settings.Save();
    const QByteArray saved = Text();
    EXPECT_EQ(saved, "[Other]\nlist=\"a, b\"\npair=\"c, d\"\n\n[TensarixSetting]\nShapeType=4\n\n"
                     "[General]\nalone=1\n");
}

// Once a turn, and only what is new.
TEST_F(IniSettingsTest, ATurnOfTheEventLoopSaves) {
    IniSettings settings;
    settings.Write("TensarixSetting", "AlwaysOnTop", "1");
    EXPECT_EQ(Text(), "missing");
    QCoreApplication::processEvents();
    EXPECT_EQ(Text(), "[TensarixSetting]\nAlwaysOnTop=1\n");
    ASSERT_TRUE(QFile::remove(path));
    settings.Write("TensarixSetting", "AlwaysOnTop", "1");
    QCoreApplication::processEvents();
    EXPECT_EQ(Text(), "missing");
}

// A pipe, say, would keep who reads it waiting for ever.
TEST_F(IniSettingsTest, WhatIsNoSettingsFileIsNeitherReadNorOverwritten) {
    ASSERT_TRUE(QDir().mkpath(home.filePath("Tensarix")));
    const std::function<bool()> make[] = {
#ifndef _WIN32
        [this] { return mkfifo(path.toLocal8Bit(), 0600) == 0; },
        [this] { return QFile::link("/dev/zero", path); },
#endif
        [this] { return QDir().mkpath(path); },
        [this] {
            Set_Text("[TensarixSetting]\nShapeType=3\n" + QByteArray(5 << 20, ';'));
            return true;
        },
    };
    for (const auto& each : make) {
        ASSERT_TRUE(each());
        const QFileInfo before(path);
        {
            IniSettings settings;
            EXPECT_NE(settings.Remark(), "");
            EXPECT_EQ(settings.Read("TensarixSetting", "ShapeType"), std::nullopt);
            settings.Write("TensarixSetting", "ShapeType", "4");
            EXPECT_EQ(settings.Read("TensarixSetting", "ShapeType"), "4");
        }
        const QFileInfo after(path);
        EXPECT_EQ(after.size(), before.size());
        EXPECT_EQ(after.isFile(), before.isFile());
        EXPECT_EQ(after.isSymLink(), before.isSymLink());
        ASSERT_TRUE(QFile::remove(path) || QDir().rmdir(path));
    }
    EXPECT_EQ(IniSettings().Remark(), "");
}

// No folder can be made there: nothing is saved, nothing hangs, and the next change tries again.
TEST_F(IniSettingsTest, WithoutAFolderItGoesOn) {
    QFile(home.filePath("Tensarix")).open(QIODevice::WriteOnly);
    IniSettings settings;
    settings.Write("TensarixSetting", "OnTop", "1");
    QCoreApplication::processEvents();
    EXPECT_EQ(settings.Read("TensarixSetting", "OnTop"), "1");
    ASSERT_TRUE(QFile::remove(home.filePath("Tensarix")));
    settings.Write("TensarixSetting", "OnTop", "0");
    QCoreApplication::processEvents();
    EXPECT_EQ(Text(), "[TensarixSetting]\nOnTop=0\n");
}
