// What all tables have in common on the screen: widths, drags, the looks of remarks, and what a
// screen reader is told.
#include "ScreenReader.h"
#include "WindowTest.h"
#include "window/RemarkLook.h"
#include "window/To_Qt.h"
#include "window/grid/GridModel.h"

#include <QHeaderView>
#include <QPainter>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

class GridWindowTest : public WindowTest {};

} // namespace

TEST_F(GridWindowTest, NumbersAreNeverCutAndColumnsCanBeWidened) {
    To(Mode::ViewAll);
    FlexGrid& grid = program->Form().ViewAll.xShapeFlex;
    auto& view = Find<GridView>("xShapeFlex");
    const int before = view.columnWidth(4), other = view.columnWidth(5);
    grid.Set_Text(9, 4, "123456x10^12 and more");
    Settle();
    EXPECT_GT(view.columnWidth(4), view.fontMetrics().horizontalAdvance("123456x10^12 and more"));
    EXPECT_EQ(view.columnWidth(5), other);
    view.setColumnWidth(5, 300);
    EXPECT_EQ(view.columnWidth(5), 300);
    view.setColumnWidth(5, 5); // which would cut
    EXPECT_EQ(view.columnWidth(5), other);
    program->Form().ViewAll.xShapeType.Select(1); // remembers nothing
    Settle();
    EXPECT_LE(view.columnWidth(4), before);
}

TEST_F(GridWindowTest, ADragFromTheNamesMarksTheBlock) {
    To(Mode::ViewAll);
    FlexGrid& grid = program->Form().ViewAll.xShapeFlex;
    auto& view = Find<GridView>("xShapeFlex");
    ASSERT_GT(grid.FixedCols(), 0);
    const QPoint from = view.Cell_Rect(2, 0).center(), to = view.Cell_Rect(5, 3).center();
    // The pane in which it began goes on to get the moves.
    QWidget* const pane = view.childAt(from);
    QTest::mousePress(pane, Qt::LeftButton, {}, pane->mapFrom(&view, from));
    QMouseEvent move(QEvent::MouseMove, pane->mapFrom(&view, to), view.mapToGlobal(to),
                     Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(pane, &move);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Row_Sel(), 5);
    EXPECT_EQ(grid.Col_Sel(), 3);
}

TEST_F(GridWindowTest, TheEditorSaysWhereItIs) {
    To(Mode::Connection);
    FlexGrid& grid = program->Form().Design.Bolts.cFlex;
    auto& view = Find<GridView>("cFlex");
    view.setFocus();
    grid.Move_To(3, 5);
    Settle();
    const ScreenReader reader;
    QTest::keyClick(&view, '7');
    auto& editor = Find<QLineEdit>("EdiTxt");
    const QString name = QStringLiteral("Bolt group input, row 3, Load Eccentricity");
    EXPECT_EQ(ScreenReader::Told(), (QStringList{name, "text"}));
    auto* const label = QAccessible::queryAccessibleInterface(&editor)
                            ->relations(QAccessible::Label)
                            .value(0)
                            .first;
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text(QAccessible::Name), name);
    QTest::keyClick(&editor, ','); // refused, and answered
    EXPECT_EQ(editor.text(), "7");
    EXPECT_EQ(program->Form().Shared.StatBar.Remark(), "Type the decimal point as .");
    ScreenReader::Told();
    QTest::keyClick(&editor, Qt::Key_Tab);
    Settle();
    EXPECT_EQ(ScreenReader::Told().filter("cell").size(), 1) << "the one that Tab goes to";
}

TEST_F(GridWindowTest, TheSortMarkStandsInsideItsHead) {
    To(Mode::ViewAll);
    auto& view = Find<GridView>("xShapeFlex");
    QHeaderView* const heads = view.horizontalHeader();
    const QImage before = heads->grab().toImage();
    program->Form().ViewAll.xShapeFlex.OnHeadClick(3);
    Settle();
    const QImage after = heads->grab().toImage();
    QRect mark;
    for (int x = 0; x < after.width(); ++x)
        for (int y = 0; y < after.height(); ++y)
            if (after.pixel(x, y) != before.pixel(x, y))
                mark |= QRect(x, y, 1, 1);
    const QRect head(heads->sectionViewportPosition(3), 0, heads->sectionSize(3), heads->height());
    EXPECT_TRUE(head.adjusted(head.width() / 2, 0, -3, -3).contains(mark));
    EXPECT_GE(mark.width(), 8);
}

TEST(GridModel, ARepaintTellsOfEveryRowThereIs) {
    for (const int rows : {1, 2}) {
        FlexGrid grid;
        grid.Set_Rows(rows + 1);
        grid.Set_Cols(2);
        grid.Set_Fixed(1, 0);
        GridModel model(grid, nullptr);
        model.Reset();
        int told = 0;
        QObject::connect(
            &model, &GridModel::dataChanged,
            [&told](const auto& from, const auto& to) { told += to.row() - from.row() + 1; });
        model.Repaint();
        EXPECT_EQ(told, rows);
    }
}

TEST_F(GridWindowTest, AScreenReaderIsToldEachMoveOnce) {
    To(Mode::ViewAll);
    FlexGrid& grid = program->Form().ViewAll.xShapeFlex;
    auto& view = Find<GridView>("xShapeFlex");
    Find<QComboBox>("xShapeType").setFocus();
    grid.Move_To(2, 3);
    Settle();
    const ScreenReader reader;
    grid.Move_To(2, 2); // the keyboard is elsewhere
    Settle();
    EXPECT_EQ(ScreenReader::Told(), QStringList());
    view.setFocus(Qt::TabFocusReason);
    Settle();
    const auto cell = [&grid](int row, int col) {
        return QStringLiteral("cell ") + To_Qt(grid.Text(row, col)).trimmed();
    };
    EXPECT_EQ(ScreenReader::Told(), (QStringList{view.accessibleName(), cell(2, 2)}));
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down}) {
        QTest::keyClick(&view, key);
        Settle();
        EXPECT_EQ(ScreenReader::Told(), QStringList(cell(grid.Row(), grid.Col())));
    }
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    Settle();
    EXPECT_EQ(ScreenReader::Told(), QStringList("selection"));
}

TEST_F(GridWindowTest, RemarksLookAndSoundAsTheyWeigh) {
    To(Mode::Connection);
    FlexGrid& grid = program->Form().Design.Bolts.cFlex;
    auto& view = Find<GridView>("cFlex");
    grid.Move_To(1, 1);
    grid.Set_Remark(2, 7, "digits are lost");
    grid.Set_Remark(3, 7, "of another column", RemarkWeight::Caution);
    grid.Set_Remark(4, 7, "use 0.732", RemarkWeight::Unsafe);
    Settle();
    const auto cell = [&view](int row, int col, int role) {
        return view.model()->index(row - 1, col).data(role);
    };
    const auto ground = [&cell](int row, int col) {
        return cell(row, col, Qt::BackgroundRole).value<QBrush>();
    };
    EXPECT_FALSE(cell(2, 7, Qt::BackgroundRole).isValid());
    EXPECT_NE(ground(3, 7), ground(4, 7));
    EXPECT_NE(ground(1, 3), ground(3, 7)); // the current row
    EXPECT_TRUE(cell(1, 3, Qt::BackgroundRole).isValid());
    EXPECT_FALSE(cell(2, 3, Qt::BackgroundRole).isValid());
    EXPECT_EQ(cell(2, 7, Qt::AccessibleDescriptionRole), "digits are lost");
    EXPECT_EQ(cell(3, 7, Qt::AccessibleDescriptionRole), "Caution: of another column");
    EXPECT_EQ(cell(4, 7, Qt::ToolTipRole), "Unsafe: use 0.732");
    EXPECT_EQ(cell(4, 0, Qt::AccessibleDescriptionRole), "Unsafe: a number in this row");
    EXPECT_TRUE(cell(4, 0, GridModel::UnsafeRowRole).toBool());
    EXPECT_FALSE(cell(3, 0, GridModel::UnsafeRowRole).toBool());
    // A column that isn't what its head says: each of its values, and not the cells without.
    grid.Set_Remark(0, 5, "of another column", RemarkWeight::Caution);
    grid.Set_Remark(0, 4, "in inches");
    grid.Set_Text(1, 5, "6.000");
    grid.Set_Text(2, 5, "4.000");
    grid.Set_Text(2, 4, "3.000");
    Settle();
    EXPECT_EQ(ground(1, 5), ground(3, 7));
    EXPECT_EQ(ground(2, 5), ground(3, 7));
    EXPECT_EQ(cell(2, 5, Qt::ToolTipRole), "Caution: of another column");
    EXPECT_FALSE(cell(3, 5, Qt::BackgroundRole).isValid());
    EXPECT_EQ(cell(2, 4, Qt::ToolTipRole).toString(), "");
    grid.Set_Remark(2, 5, "of a third one"); // knows better than the head
    EXPECT_EQ(cell(2, 5, Qt::AccessibleDescriptionRole), "Caution: of a third one");
    // Not by colour alone: without any, the signs still differ.
    const auto marks = [&](int row) {
        QImage image(60, 24, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        Paint_Remark_Mark(painter, image.rect(), grid.Remark_Weight(row, 7), view.palette());
        if (grid.Remark_Weight(row, 7) == RemarkWeight::Unsafe)
            Paint_Unsafe_Sign(painter, image.rect(), view.palette());
        return image.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
    };
    EXPECT_NE(marks(2), marks(3));
    EXPECT_NE(marks(3), marks(4));
    // Where the choice hides the ground, a frame all around shows it.
    for (const RemarkWeight weight : {RemarkWeight::Note, RemarkWeight::Caution}) {
        QImage chosen(60, 24, QImage::Format_RGB32);
        chosen.fill(Qt::black);
        QPainter painter(&chosen);
        Paint_Remark_Mark(painter, chosen.rect(), weight, view.palette(), true);
        for (const QPoint& edge : {QPoint(1, 12), QPoint(30, 1), QPoint(58, 18), QPoint(30, 22)})
            EXPECT_EQ(chosen.pixelColor(edge) == QColor(Qt::black), weight == RemarkWeight::Note);
        EXPECT_EQ(chosen.pixelColor(30, 12), QColor(Qt::black));
    }

    auto& label = Find<QLabel>("RowRemark");
    program->Form().Design.Bolts.RowRemark.Set_Caption("use 0.732, 75 % less",
                                                       RemarkWeight::Unsafe);
    Settle();
    EXPECT_EQ(label.text(), QStringLiteral("use 0.732, 75\u00A0% less"));
    EXPECT_TRUE(label.accessibleDescription().startsWith("Unsafe: "));
    EXPECT_TRUE(label.autoFillBackground());
    EXPECT_EQ(label.lineWidth(), 2);
}

TEST(TipText, LinesOfSixtyCharacters) {
    const QString long1 = QStringLiteral("word ").repeated(30).trimmed(), long2(70, u'x');
    const QStringList lines = Tip_Text(long1 + '\n' + long2).split('\n');
    EXPECT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0].size(), 59);
    EXPECT_EQ(lines[3], long2);
    EXPECT_EQ(Tip_Text("short"), "short");
}
