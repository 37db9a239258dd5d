// Editors laid over the cells of a real grid view, driven by real keys and clicks.
#include "WindowTest.h"
#include "controls/CellEditing.h"
#include "window/Bind.h"
#include "window/grid/CellOverlay.h"

#include <QScrollBar>
#include <QVBoxLayout>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

// Thirty rows; sizes in column 1, lengths in column 2, a column 3 that can't be edited.
struct EditedGrid : testing::Test {
    FlexGrid grid;
    TextBox box;
    ComboBox list;
    CellEditing editing{grid, [] { QCoreApplication::processEvents(); }};
    int commits = 0;
    QWidget window;
    GridView* view = nullptr;
    QLineEdit* line = nullptr;
    QComboBox* combo = nullptr;
    QPushButton* button = nullptr;

    void SetUp() override {
        grid.Set_Rows(31);
        grid.Set_Cols(4);
        grid.Set_Fixed(1, 1);
        grid.Set_Row_Height_Min(350);
        for (int col = 1; col < 4; ++col)
            grid.Set_Col_Width(col, 2000);
        for (const char* item : {"W8x10", "W8x13", "W10x12"})
            list.Add(item);
        editing.Add(CellEditing::TextCells{box,
                                           [](int, int col) { return col == 2; },
                                           [](int key) { return key == 'x' ? 0 : key; },
                                           [this](int key) {
                                               const bool second =
                                                   box.Text().find('.') != std::string::npos;
                                               return key == 'x' || (key == '.' && second) ? 0
                                                                                           : key;
                                           },
                                           {},
                                           {},
                                           [this](const std::string&) { ++commits; }});
        editing.Add(
            CellEditing::ComboCells{list, [](int, int col) { return col == 1; }, [](bool) {}});
        Show();
        grid.Move_To(1, 2);
        view->setFocus();
        QCoreApplication::processEvents();
    }
    void Show() {
        view = new GridView(&window);
        button = new QPushButton(QStringLiteral("&Clear"), &window);
        auto* column = new QVBoxLayout(&window);
        column->addWidget(view);
        column->addWidget(button);
        Bind(view, grid);
        Lay_Over(view, grid, box, QStringLiteral("EdiTxt"), QStringLiteral("Length"));
        Lay_Over(view, grid, list, QStringLiteral("Sizes"), QStringLiteral("Size"));
        line = window.findChild<QLineEdit*>(QStringLiteral("EdiTxt"));
        combo = window.findChild<QComboBox*>(QStringLiteral("Sizes"));
        window.resize(640, 320);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QPoint Middle(int row, int col) const {
        return view->viewport()->mapFrom(view, view->Cell_Rect(row, col).center());
    }
    std::string Where() const {
        return std::to_string(grid.Row()) + "," + std::to_string(grid.Col());
    }
};

} // namespace

TEST_F(EditedGrid, TypingReplacesEnterGoesDownTabGoesOn) {
    grid.Set_Text(1, 2, "old");
    Type("1x2'");
    EXPECT_TRUE(line->isVisible());
    EXPECT_EQ(line->text(), QStringLiteral("12'"));
    Key(Qt::Key_Return);
    EXPECT_EQ(grid.Text(1, 2) + " then " + Where(), "12' then 2,2");
    EXPECT_FALSE(line->isVisible());
    EXPECT_TRUE(view->hasFocus());
    Type("7");
    Key(Qt::Key_Tab);
    EXPECT_EQ(grid.Text(2, 2) + " then " + Where(), "7 then 3,1");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Where(), "3,2") << "Tab walks without an editor too";
    Key(Qt::Key_Backtab);
    EXPECT_EQ(Where(), "3,1");
    EXPECT_EQ(commits, 2);
}

TEST_F(EditedGrid, TheEditorLiesOverItsCellAtAnyFontAndAlignsAsItDoes) {
    const std::tuple<int, Alignment, Qt::AlignmentFlag> cases[] = {
        {9, Alignment::Centre, Qt::AlignHCenter}, {18, Alignment::Right, Qt::AlignRight}};
    for (const auto& [points, align, flag] : cases) {
        grid.Set_Style(1, 2, {.Align = align});
        QFont font = window.font();
        font.setPointSize(points);
        window.setFont(font);
        Key(Qt::Key_F2);
        const QRect cell = view->Cell_Rect(1, 2);
        const QRect shown(line->mapTo(view, QPoint(0, 0)), line->size());
        EXPECT_EQ(shown, cell);
        EXPECT_TRUE(line->alignment().testFlag(flag));
        EXPECT_GE(shown.height(), line->fontMetrics().height());
        Key(Qt::Key_Escape);
    }
}

TEST_F(EditedGrid, EscapeF2AndDelete) {
    grid.Set_Text(1, 2, "5'-6\"     ");
    Key(Qt::Key_F2);
    EXPECT_EQ(line->text(), QStringLiteral("5'-6\""));
    EXPECT_EQ(line->cursorPosition(), 5);
    Type("99");
    Key(Qt::Key_F2); // no second opening, which would lose what has been typed
    EXPECT_EQ(line->text(), QStringLiteral("5'-6\"99"));
    Key(Qt::Key_Delete);
    Key(Qt::Key_Escape);
    EXPECT_EQ(grid.Text(1, 2), "5'-6\"     ");
    EXPECT_TRUE(view->hasFocus());
    EXPECT_EQ(commits, 0);
    Key(Qt::Key_Delete);
    EXPECT_EQ(grid.Text(1, 2), "");
    EXPECT_FALSE(line->isVisible());
}

TEST_F(EditedGrid, ArrowsWalkInTheTextAndLeaveAtItsEnds) {
    Type("12");
    Key(Qt::Key_Left);
    EXPECT_EQ(line->cursorPosition(), 1);
    Type("9");
    EXPECT_EQ(line->text(), QStringLiteral("192"));
    Key(Qt::Key_Right);
    EXPECT_TRUE(line->isVisible());
    Key(Qt::Key_Right);
    EXPECT_EQ(grid.Text(1, 2) + " then " + Where(), "192 then 1,3");
    Key(Qt::Key_Left);
    Key(Qt::Key_F2);
    Key(Qt::Key_Home);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_TRUE(line->isVisible()) << "Shift selects";
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Where(), "2,2");
    Key(Qt::Key_Up);
    Key(Qt::Key_Left);
    EXPECT_EQ(Where(), "1,1");
    Key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Where(), "1,1") << "a row's head is not to be filled in";
}

TEST_F(EditedGrid, TextOfAnInputMethodPassesTheFilter) {
    Type("1");
    QInputMethodEvent text;
    text.setCommitString(QStringLiteral("2x.3.4"));
    QApplication::sendEvent(line, &text);
    EXPECT_EQ(line->text(), QStringLiteral("12.34"));
    EXPECT_EQ(box.Text(), "12.34");
}

TEST_F(EditedGrid, TheMouse) {
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, Middle(1, 2));
    EXPECT_TRUE(line->hasFocus());
    Type("5");
    Click_Cell(*view, 4, 2);
    EXPECT_EQ(grid.Text(1, 2), "5");
    EXPECT_EQ(Where(), "4,2");
    QCoreApplication::processEvents();
    EXPECT_FALSE(line->isVisible());
    Type("6");
    button->setFocus(Qt::TabFocusReason); // the focus goes to something else
    EXPECT_EQ(grid.Text(4, 2), "6");
    EXPECT_EQ(commits, 2);
    EXPECT_TRUE(button->hasFocus());
}

TEST_F(EditedGrid, TheEditorScrollsWithItsCellAndTypingBringsItBack) {
    Type("1");
    view->verticalScrollBar()->setValue(3);
    QCoreApplication::processEvents();
    EXPECT_TRUE(line->hasFocus());
    EXPECT_TRUE(line->visibleRegion().isEmpty()) << "out of sight with its cell";
    Type("2");
    QCoreApplication::processEvents();
    EXPECT_FALSE(line->visibleRegion().isEmpty());
    EXPECT_EQ(line->mapTo(view, QPoint()).x(), view->Cell_Rect(1, 2).x());
    Key(Qt::Key_Return);
    EXPECT_EQ(grid.Text(1, 2), "12");
}

TEST_F(EditedGrid, TheRowThatEnterGoesToIsBroughtIntoView) {
    for (int row = 1; row < 20; ++row) {
        Type("3");
        Key(Qt::Key_Return);
    }
    EXPECT_EQ(Where(), "20,2");
    EXPECT_GT(view->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(view->viewport()->rect().contains(Middle(20, 2)));
    EXPECT_EQ(grid.Text(19, 2), "3");
}

TEST_F(EditedGrid, TheListOpensOnAClickAndByTyping) {
    Click_Cell(*view, 2, 1);
    EXPECT_TRUE(combo->hasFocus());
    EXPECT_EQ(combo->currentIndex(), -1);
    Key(Qt::Key_Down);
    EXPECT_EQ(combo->currentText(), QStringLiteral("W8x10"));
    Key(Qt::Key_Return);
    EXPECT_EQ(grid.Text(2, 1) + " then " + Where(), "W8x10 then 3,1");
    EXPECT_TRUE(view->hasFocus());
    Type("w10"); // from the first character on
    EXPECT_EQ(list.Text(), "W10x12");
    Key(Qt::Key_Tab);
    EXPECT_EQ(grid.Text(3, 1) + " then " + Where(), "W10x12 then 3,2");
}

TEST_F(EditedGrid, TheWheelClosesTheListAndCommitsNothing) {
    Click_Cell(*view, 2, 1);
    Key(Qt::Key_Down);
    QWheelEvent wheel({5, 5}, combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &wheel);
    QCoreApplication::processEvents();
    EXPECT_GT(grid.Top_Row(), 1);
    EXPECT_FALSE(combo->isVisible());
    EXPECT_EQ(grid.Text(2, 1), "");
    EXPECT_TRUE(view->hasFocus());
}
