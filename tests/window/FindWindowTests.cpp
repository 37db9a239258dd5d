// Find Sections and View All through real keys and clicks.
#include "WindowTest.h"
#include "window/To_Qt.h"

#include <QRadioButton>
#include <QScrollBar>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct FindWindowTest : WindowTest {
    FindPage& Page() { return program->Form().Find; }
    QString Text(const char* name) {
        Settle();
        return Find<QLabel>(name).text();
    }
};

} // namespace

TEST_F(FindWindowTest, ASearchByKeysAlone) {
    To(Mode::Find);
    auto& property = Find<QComboBox>("fPoperty");
    property.setFocus();
    QTest::keyClicks(&property, "zx");
    EXPECT_EQ(Text("UnitLabel"), "in^3");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), ">");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    auto& value = Find<QComboBox>("fValue");
    ASSERT_TRUE(value.hasFocus());
    QTest::keyClicks(&value, "1a5-00"); // letters and signs are refused
    EXPECT_EQ(value.currentText(), "1500");
    QTest::keyClick(&value, Qt::Key_Return);
    EXPECT_EQ(Text("CountPanel"), "18 found of 274 sections, lightest W44x335");

    // A number that stands in the list too: Enter must not choose it, which would end the result.
    value.lineEdit()->selectAll();
    QTest::keyClicks(&value, "101");
    QTest::keyClick(&value, Qt::Key_Enter);
    EXPECT_EQ(value.currentText(), "101");
    const QString found = Text("CountPanel");
    EXPECT_NE(found, "18 found of 274 sections, lightest W44x335");
    QTest::mouseClick(&Find<QRadioButton>("fDimOption2"), Qt::LeftButton, {}, {8, 8});
    EXPECT_TRUE(Page().fShapeFlex.Text(1, 4).ends_with("\"  ")); // searched again, in inches
    EXPECT_EQ(Text("CountPanel"), found);
}

TEST_F(FindWindowTest, AValueIsChosenFromTheListAndSearchedByTheButton) {
    To(Mode::Find);
    auto& value = Find<QComboBox>("fValue");
    value.setFocus();
    QTest::keyClick(&value, Qt::Key_Down);
    Settle();
    EXPECT_EQ(value.currentText(), "8.5"); // the lightest W-shape
    EXPECT_EQ(Page().fValue.ListIndex(), 0);
    auto& go = Find<QPushButton>("FindButton");
    QTest::keyClick(&value, Qt::Key_Tab);
    ASSERT_TRUE(go.hasFocus());
    QTest::keyClick(&go, Qt::Key_Space);
    EXPECT_EQ(Text("CountPanel"), "1 found of 274 sections, lightest W6x8.5");
    QTest::mouseClick(&Find<QRadioButton>("fProfileOption2"), Qt::LeftButton, {}, {8, 8});
    Settle();
    EXPECT_EQ(value.currentText(), "8.5"); // stays, over the values of the other profile
    EXPECT_EQ(value.itemText(0), "13");
}

// The longest family to the painted grid; the designations stay while the rest scrolls.
TEST_F(FindWindowTest, ViewAllOfTheLongestFamily) {
    To(Mode::ViewAll);
    auto& type = Find<QComboBox>("xShapeType");
    type.setFocus();
    QTest::keyClick(&type, Qt::Key_End);
    EXPECT_EQ(Text("CountPanel"), "444 sections");
    auto& grid = Find<GridView>("xShapeFlex");
    for (int row = 1; row < program->Form().ViewAll.xShapeFlex.Rows(); ++row)
        for (const int col : {0, 1})
            ASSERT_LT(grid.fontMetrics().horizontalAdvance(
                          To_Qt(program->Form().ViewAll.xShapeFlex.Text(row, col))),
                      grid.Cell_Rect(1, col).width());
    const QRect names = grid.Cell_Rect(1, 1);
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_End);
    Settle();
    EXPECT_GT(grid.horizontalScrollBar()->value(), 0);
    EXPECT_EQ(grid.Cell_Rect(1, 1), names);
    const QString byKeys = Text("Panel1");
    EXPECT_TRUE(byKeys.contains("-->   Qs = ")) << byKeys.toStdString();
    QTest::keyClick(&grid, Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(grid.rect().contains(grid.Cell_Rect(444, 16)));
    QTest::keyClick(&grid, Qt::Key_Home, Qt::ControlModifier);
    Click_Cell(grid, 1, 16);
    EXPECT_EQ(Text("Panel1"), byKeys);
    Click_Cell(grid, 1, 0); // a fixed column
    EXPECT_TRUE(Text("Panel1").contains("-->   Standard US = ")) << byKeys.toStdString();
}
