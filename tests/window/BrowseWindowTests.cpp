// Browse Sections, the menu and the settings, through real keys and clicks.
#include "WindowTest.h"
#include "window/drawing/DrawingView.h"
#include "window/grid/GridView.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

class BrowseWindowTest : public WindowTest {
  protected:
    BrowsePage& Page() { return program->Form().Browse; }
    QString Cell(int row, int col) {
        const auto& grid = Find<GridView>("ShapeFlex");
        return grid.model()->index(row - 1, col).data().toString();
    }
    QString Panel() {
        Settle();
        return Find<QLabel>("Panel1").text();
    }
};

} // namespace

TEST_F(BrowseWindowTest, ASizeIsFoundByTypingAndTheOtherListFollows) {
    auto& us = Find<QComboBox>("ShapeSizeUS");
    us.setFocus();
    QTest::keyClicks(&us, "w18x5");
    Settle();
    EXPECT_EQ(us.currentText(), "W18x50");
    EXPECT_EQ(Find<QComboBox>("ShapeSizeSI").currentText(), "W460x74");
    EXPECT_EQ(Cell(3, 1), "18.00  ");
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

TEST_F(BrowseWindowTest, ProfileAndStyleButtons) {
    QTest::mouseClick(&Find<QRadioButton>("DimOption2"), Qt::LeftButton, {}, {8, 8});
    Settle();
    EXPECT_EQ(Cell(3, 1), "3'-8\"  ");
    QTest::mouseClick(&Find<QRadioButton>("ProfileOption2"), Qt::LeftButton, {}, {8, 8});
    Settle();
    EXPECT_EQ(Cell(3, 1), "1120.00  ");
    EXPECT_FALSE(Find<QRadioButton>("DimOption1").isEnabled());
    QTest::keyClick(&Find<QRadioButton>("ProfileOption2"), Qt::Key_Left);
    Settle();
    EXPECT_TRUE(Find<QRadioButton>("ProfileOption1").isChecked());
    EXPECT_TRUE(Find<QRadioButton>("DimOption1").isEnabled());
    EXPECT_EQ(Cell(3, 1), "3'-8\"  ");
}

TEST_F(BrowseWindowTest, KeysAndMouseSelectTheSame) {
    auto& grid = Find<GridView>("ShapeFlex");
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Down);
    const QString byKeys = Panel();
    EXPECT_EQ(byKeys, " SELECTION:   d = 44.00 in.     [Overall Depth of Member]");
    QTest::keyClick(&grid, Qt::Key_End, Qt::ControlModifier);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                      grid.viewport()->mapFrom(&grid, grid.Cell_Rect(21, 1).center()));
    EXPECT_TRUE(program->Form().Shared.GridClicked);
    grid.verticalScrollBar()->setValue(0);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                      grid.viewport()->mapFrom(&grid, grid.Cell_Rect(3, 1).center()));
    EXPECT_EQ(Panel(), byKeys);
}

// The fixed column is clicked like any other, and stays while the rest scrolls sideways.
TEST_F(BrowseWindowTest, TheFixedColumn) {
    program->Window().resize(700, 500);
    Settle();
    auto& grid = Find<GridView>("ShapeFlex");
    const QRect cell = grid.Cell_Rect(2, 0);
    QTest::mouseClick(grid.childAt(cell.center()), Qt::LeftButton, {},
                      grid.childAt(cell.center())->mapFrom(&grid, cell.center()));
    EXPECT_EQ(Panel(), " SELECTION:   A = 98.50 in^2     [Cross-Sectional Area]");
    EXPECT_EQ(Page().ShapeFlex.Col(), 0);
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_End);
    Settle();
    EXPECT_GT(Page().ShapeFlex.Left_Col(), 1);
    EXPECT_EQ(grid.Cell_Rect(2, 0), cell);
    Page().Snap_Back();
    Settle();
    EXPECT_EQ(grid.horizontalScrollBar()->value(), 0);
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
    QTest::mouseClick(&Find<QRadioButton>("ProfileOption2"), Qt::LeftButton, {}, {8, 8});
    program->Window().resize(900, 555);
    Settle();
    Stop();
    Start();
    EXPECT_EQ(Find<QComboBox>("ShapeType").currentText(), "Pipe");
    EXPECT_EQ(Find<QComboBox>("ShapeSizeUS").currentIndex(), 3);
    EXPECT_TRUE(Find<QRadioButton>("ProfileOption2").isChecked());
    EXPECT_EQ(program->Window().size(), QSize(900, 555));
}

TEST_F(BrowseWindowTest, ASettingsFileOfGarbageIsSurvived) {
    Stop();
    QFile file(home.path() + "/Tensarix/Tensarix.ini");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[TensarixSetting]\nShapeType=@ByteArray(x)\nShapeSize0=1, 2, 3\n[Window]\n"
               "Geometry=nonsense\n\0\xFF[[[=\n");
    file.close();
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
