// The main window itself: the menu's keys, and what the mouse does beside the cells.
#include "WindowTest.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct ProgramWindowTest : WindowTest {
    // A browse grid with a column scrolled away.
    FlexGrid& Scrolled() {
        program->Window().resize(700, 500);
        Settle();
        FlexGrid& grid = program->Form().Browse.ShapeFlex;
        grid.Set_Left_Col(3);
        Settle();
        EXPECT_EQ(Find<GridView>("ShapeFlex").horizontalScrollBar()->value(), 2);
        return grid;
    }
    // Only then it has shortcuts.
    void Activate() {
        program->Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&program->Window()));
    }
    bool Popup_Opens(QWidget& at, QPoint place) {
        auto& menu = Find<QMenu>("mnuEdit1");
        QTest::mouseClick(&at, Qt::RightButton, {}, place);
        const bool open = menu.isVisible();
        menu.close();
        return open;
    }
};

} // namespace

TEST_F(ProgramWindowTest, TheMenusKeysInATextBox) {
    for (const auto& [mode, name] : {std::pair{1, "fValue"}, {3, "BeamSpanBox"}}) {
        program->Form().OptButton[static_cast<std::size_t>(mode)].Select();
        Activate();
        auto& box = Find<QWidget>(name);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&box, "25");
        QString opened;
        QTimer::singleShot(0, qApp, [&opened] {
            if (QWidget* dialog = QApplication::activeModalWidget()) {
                opened = dialog->windowTitle();
                dialog->close();
            }
        });
        QTest::keyClick(&box, Qt::Key_Y, Qt::ControlModifier);
        EXPECT_NE(opened, "");
        QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&box, Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "25");
        EXPECT_TRUE(program->Window().isVisible());
    }
    Activate(); // after the dialog
    QTest::keyClick(&Find<QWidget>("BeamSpanBox"), Qt::Key_X, Qt::ControlModifier);
    EXPECT_FALSE(program->Window().isVisible());
}

TEST_F(ProgramWindowTest, ThePointerOverTheStatusBarSnapsBack) {
    for (const char* name : {"StatBar", "Panel1"}) {
        const FlexGrid& grid = Scrolled();
        auto& widget = Find<QWidget>(name);
        QMouseEvent move(QEvent::MouseMove, {3, 3}, widget.mapToGlobal(QPointF(3, 3)), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &move);
        EXPECT_EQ(grid.Left_Col(), 1) << name;
    }
}

TEST_F(ProgramWindowTest, TheHeadRowAndBelowTheLastRow) {
    Desk& desk = program->Form().Shared;
    auto& view = Find<GridView>("ShapeFlex");
    program->Form().Browse.ShapeFlex.Set_Rows(4);
    program->Form().Browse.ShapeFlex.Move_To(2, 1);
    Settle();
    QWidget* const head = view.horizontalHeader()->viewport();
    const QPoint below(20, view.viewport()->height() - 5);
    ASSERT_FALSE(view.indexAt(below).isValid());
    for (const auto& [widget, place] : {std::pair{head, QPoint(20, 5)}, {view.viewport(), below}}) {
        desk.GridClicked = false;
        desk.Show_No_Selection();
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
        EXPECT_TRUE(desk.GridClicked);
        EXPECT_EQ(desk.StatBar.Panel1(), " SELECTION:   A = 98.50 in^2     [Cross-Sectional Area]");
        EXPECT_TRUE(Popup_Opens(*widget, place));
    }
    const FlexGrid& grid = Scrolled();
    QMouseEvent move(QEvent::MouseMove, {2, 2}, view.mapToGlobal(QPointF(5, 5)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(head, &move);
    EXPECT_EQ(grid.Left_Col(), 1);
}
