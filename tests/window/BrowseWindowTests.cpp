// Browse Sections, the menu and the settings, through real keys and clicks.
#include "WindowTest.h"
#include "window/drawing/DrawingView.h"

#include <QAction>
#include <QRadioButton>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct BrowseWindowTest : WindowTest {
    BrowsePage& Page() { return program->Form().Browse; }
};

} // namespace

TEST_F(BrowseWindowTest, ASizeIsFoundByTypingAndTheOtherListFollows) {
    auto& us = Find<QComboBox>("ShapeSizeUS");
    us.setFocus();
    QTest::keyClicks(&us, "w18x5");
    Settle();
    EXPECT_EQ(us.currentText(), "W18x50");
    EXPECT_EQ(Find<QComboBox>("ShapeSizeSI").currentText(), "W460x74");
    QTest::keyClick(&us, Qt::Key_Down);
    Settle();
    EXPECT_EQ(us.currentText(), "W18x46");
    EXPECT_EQ(Find<QLabel>("ShapeLabel").text(), "W18 x 46");
    QTest::keyClick(&us, Qt::Key_PageUp);
    QTest::keyClick(&us, Qt::Key_PageDown);
    EXPECT_EQ(Page().ShapeSizeUS.Text(), "W18x46");
}

TEST_F(BrowseWindowTest, TheWheelDoesNotChangeAClosedList) {
    auto& us = Find<QComboBox>("ShapeSizeUS");
    us.setFocus();
    QWheelEvent wheel({5, 5}, us.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&us, &wheel);
    EXPECT_EQ(Page().ShapeSizeUS.ListIndex(), 0);
}

TEST_F(BrowseWindowTest, MenuTogglesShowTheirMarks) {
    auto& onTop = Find<QAction>("mnuOnTop");
    auto& readOut = Find<QAction>("mnuReadOut");
    onTop.trigger();
    readOut.trigger();
    EXPECT_TRUE(onTop.isChecked());
    EXPECT_TRUE(readOut.isChecked());
    EXPECT_TRUE(program->Window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(program->Window().isVisible());
    onTop.trigger();
    EXPECT_FALSE(onTop.isChecked());
    EXPECT_FALSE(program->Window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(BrowseWindowTest, ChoicesAndTheWindowsPlaceComeBack) {
    QTest::keyClicks(&Find<QComboBox>("ShapeType"), "pipe");
    Page().ShapeSizeUS.Select(3);
    for (const char* option : {"DimOption2", "ProfileOption2"})
        QTest::mouseClick(&Find<QRadioButton>(option), Qt::LeftButton, {}, {8, 8});
    program->Window().resize(900, 555);
    Settle();
    Stop();
    Start();
    EXPECT_EQ(Find<QComboBox>("ShapeType").currentText(), "Pipe");
    EXPECT_EQ(Find<QComboBox>("ShapeSizeUS").currentIndex(), 3);
    EXPECT_TRUE(Find<QRadioButton>("ProfileOption2").isChecked());
    EXPECT_TRUE(Find<QRadioButton>("DimOption2").isChecked());
    EXPECT_FALSE(Find<QRadioButton>("DimOption1").isEnabled());
    EXPECT_EQ(program->Window().size(), QSize(900, 555));
}

TEST_F(BrowseWindowTest, ASettingsFileOfGarbageIsSurvived) {
    Stop();
    Write_File(home.path() + "/Tensarix/Tensarix.ini",
               "[TensarixSetting]\nShapeType=@ByteArray(x)\nShapeSize0=1, 2, 3\n[Window]\n"
               "Geometry=nonsense\n\0\xFF[[[=\n");
    Start();
    EXPECT_EQ(Find<QComboBox>("ShapeType").count(), 17);
}

// The row of the current cell lights up its dimension, and the drawing tells the row of one that is
// pointed at; who does not see it hears its measures.
TEST_F(BrowseWindowTest, TheDrawingFollowsSectionAndRow) {
    auto& view = Find<DrawingView>("BaseImage");
    const auto words = [&view] {
        Settle();
        std::string all;
        for (const Drawn::Text& text : view.Laid_Out().Texts)
            all += text.Words + "; ";
        return all;
    };
    EXPECT_NE(words().find("d = 44.00; "), std::string::npos);
    EXPECT_TRUE(view.accessibleDescription().startsWith(
        QStringLiteral("W44x335 to scale: d = 44.00 in., bf = 15.90 in.")));
    Page().ShapeFlex.Press(4, 1);
    EXPECT_EQ(Page().SectionDrawing.Lit(), "bf");
    Page().ShapeFlex.Press(13, 1);
    EXPECT_EQ(Page().SectionDrawing.Lit(), "x-axis");
    EXPECT_EQ(Page().SectionDrawing.Tell("bf", {}), "bf = 15.90 in.   Flange Width");
    Page().ShapeType.Select(12);
    Page().ProfileOption2.Select();
    EXPECT_NE(words().find("ID = 305.00; "), std::string::npos) << words();
    Page().ShapeSizeUS.Select(-1);
    EXPECT_NE(words().find("ID = 305.00; "), std::string::npos) << words();
}
