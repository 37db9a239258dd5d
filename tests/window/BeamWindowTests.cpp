// Allowable Beam Load and the grids' popup, through real keys, clicks and the real clipboard.
#include "WindowTest.h"
#include "window/grid/GridView.h"

#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

class BeamWindowTest : public WindowTest {
  protected:
    int messages = 0;
    QTimer answer;

    void SetUp() override {
        WindowTest::SetUp();
        QTest::mouseClick(&Find<QPushButton>("OptButton3"), Qt::LeftButton);
        Settle();
        // Whatever message comes up is counted and answered.
        QObject::connect(&answer, &QTimer::timeout, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++messages;
                box->accept();
            }
        });
        answer.start(5);
    }
    BeamPage& Page() { return program->Form().Beam; }
    QLineEdit& Span() { return Find<QLineEdit>("BeamSpanBox"); }
    QString Caption(const char* name) {
        Settle();
        return Find<QLabel>(name).text();
    }
    QWidget& Focused() { return *program->Window().focusWidget(); }
    // Without a window manager nobody gives the focus back when a message has closed.
    void Back_To_The_Window() {
        program->Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&program->Window()));
    }
    static QString Clipboard_Text() { return QGuiApplication::clipboard()->text(); }
    void Type_Span(const QString& text) {
        Span().setFocus(Qt::TabFocusReason); // selects what it holds
        QTest::keyClicks(&Span(), text);
    }
};

} // namespace

TEST_F(BeamWindowTest, TheFirstClickIntoABoxChoosesItsText) {
    auto& box = Find<QLineEdit>("BeamSpanBox");
    program->Form().Beam.BeamSpanBox.Set_Text("25'");
    Settle();
    Find<QComboBox>("FyBox").setFocus();
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_EQ(box.selectedText(), box.text());
    EXPECT_EQ(box.text(), "25'-0\"");
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_FALSE(box.hasSelectedText());
}

TEST_F(BeamWindowTest, ASpanIsTypedAndTheNextCodeChosenByKeys) {
    Type_Span("a25'x-6 1/4"); // letters vanish
    EXPECT_EQ(Span().text(), "25'-6 1/4");
    QTest::keyClick(&Focused(), Qt::Key_Tab);
    EXPECT_EQ(Focused().objectName(), "CFactor");
    Settle();
    EXPECT_EQ(Span().text(), "25'-6 1/4\"");
    // 33 x 1410 / (3 x 25.5208) = 607.739; 1.15 times that: 698.900.
    EXPECT_EQ(Caption("BeamReactionLab"), "607.74 Kips");
    QTest::keyClicks(&Focused(), "15");
    QTest::keyClick(&Focused(), Qt::Key_Return);
    EXPECT_EQ(Caption("BeamReactionLab"), "698.90 Kips");
    EXPECT_EQ(Find<QLineEdit>("CFactor").text(), "15.00");

    auto& codes = Find<QTabBar>("AppliedCode");
    EXPECT_FALSE(Find<QGroupBox>("CodeFrame").isEnabled());
    codes.setFocus();
    QTest::keyClick(&codes, Qt::Key_Right);
    Settle();
    EXPECT_EQ(codes.currentIndex(), 1);
    EXPECT_EQ(Span().text(), "0\"");
    QTest::keyClick(&Focused(), Qt::Key_Tab);
    EXPECT_EQ(Focused().objectName(), "CodeOpt0");
    QTest::keyClick(&Focused(), Qt::Key_Right);
    EXPECT_TRUE(Page().CodeOpt[1].Value());
    QTest::keyClick(&codes, Qt::Key_Left);
    Settle();
    EXPECT_EQ(Span().text(), "25'-6 1/4\"");
    EXPECT_FALSE(Find<QRadioButton>("CodeOpt1").isEnabled());
}

TEST_F(BeamWindowTest, AnInvalidSpanIsToldOnce) {
    Type_Span("5'6\"");
    QTest::keyClick(&Focused(), Qt::Key_Tab);
    EXPECT_EQ(messages, 1);
    Back_To_The_Window();
    EXPECT_EQ(Focused().objectName(), "CFactor");
    Settle();
    EXPECT_EQ(Span().text(), "5'-0\"");

    Type_Span("1/0");
    QTest::keyClick(&Focused(), Qt::Key_Return);
    EXPECT_EQ(messages, 2);
    Back_To_The_Window();
    EXPECT_EQ(Focused().objectName(), "BeamSpanBox");

    Type_Span("-");
    QTest::mouseClick(&Find<QTabBar>("AppliedCode"), Qt::LeftButton);
    EXPECT_EQ(messages, 3);
    Back_To_The_Window();

    // The press that raises the message is lost, and leaves no button down.
    Type_Span("-");
    QTest::mousePress(&Find<QPushButton>("OptButton0"), Qt::LeftButton);
    QTest::mouseRelease(program->Window().statusBar(), Qt::LeftButton);
    EXPECT_EQ(messages, 4);
    Back_To_The_Window();
    Settle();
    EXPECT_FALSE(Find<QPushButton>("OptButton0").isDown());
    EXPECT_TRUE(program->Form().OptButton[3].Value());

    // No question at the end.
    Type_Span("-");
    Stop();
    EXPECT_EQ(messages, 4);
}

TEST_F(BeamWindowTest, ThePopupByKeysCopiesThroughTheRealClipboard) {
    auto& grid = Find<GridView>("zShapeFlex");
    auto& menu = Find<QMenu>("mnuEdit1");
    QGuiApplication::clipboard()->setText("untouched");
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier); // nothing is chosen yet
    EXPECT_EQ(Clipboard_Text(), "untouched");

    QTest::keyClick(&grid, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&grid, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&grid, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard_Text(), "A\t98.50  \tin^2\rd\t44.00  \tin");

    const auto open = [&] {
        QTest::keyClick(&grid, Qt::Key_F10, Qt::ShiftModifier);
        EXPECT_TRUE(menu.isVisible());
    };
    open();
    EXPECT_EQ(Find<QAction>("mnuCopySelection1b").text(), QString::fromUtf8("Copy -»    A"));
    EXPECT_FALSE(Find<QAction>("mnuCopySelection1c").isEnabled());
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(Clipboard_Text(), "A");

    open();
    QTest::keyClick(&menu, Qt::Key_Escape);
    EXPECT_EQ(Clipboard_Text(), "A");
    Find<QAction>("mnuCopySelection1d").trigger();
    EXPECT_TRUE(Clipboard_Text().startsWith("Property\tValue\tUnit\rW\t335.00  \tlb/ft\rA\t"));
    EXPECT_TRUE(Clipboard_Text().endsWith("\rQw\t805.00  \tin^3"));
    EXPECT_EQ(Page().zShapeFlex.Row(), 2);

    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, grid.mapToGlobal(QPoint{}));
    QCoreApplication::sendEvent(&grid, &menuKey);
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

TEST_F(BeamWindowTest, ThePopupByMouse) {
    auto& grid = Find<GridView>("zShapeFlex");
    auto& menu = Find<QMenu>("mnuEdit1");
    const auto click = [&](int row, int col, Qt::MouseButton button) {
        const QPoint at = grid.Cell_Rect(row, col).center();
        QWidget* under = grid.childAt(at);
        QTest::mouseClick(under, button, {}, under->mapFrom(&grid, at));
        Settle();
    };
    click(3, 1, Qt::RightButton);
    EXPECT_TRUE(menu.isVisible());
    EXPECT_FALSE(Find<QAction>("mnuCopySelection1a").isEnabled());
    menu.close();
    click(3, 0, Qt::LeftButton);
    click(3, 0, Qt::RightButton); // the fixed column
    EXPECT_TRUE(menu.isVisible());
    EXPECT_TRUE(Find<QAction>("mnuCopySelection1a").isEnabled());
    Find<QAction>("mnuCopySelection1a").trigger();
    EXPECT_EQ(Clipboard_Text(), "d");
    menu.close();
}
