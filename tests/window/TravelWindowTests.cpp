// From section to section with real keys and clicks.
#include "WindowTest.h"
#include "common/NumberText.h"
#include "window/grid/FindBar.h"
#include "window/pages/CompareWindow.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct TravelWindowTest : WindowTest {
    MainFrm& Form() { return program->Form(); }
    void Open(Mode mode) {
        Key(static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(mode)), Qt::ControlModifier);
        // A button's key presses it, and lets it go a little later.
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return Form().SelectionTab.Tab() == static_cast<int>(mode); }));
        Settle();
    }
    // Opens the field, and goes on in it once it has the keyboard.
    void In_Field(const std::function<void(QWidget& field)>& act) {
        bool done = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            QWidget* field = QApplication::activeModalWidget();
            if (done || !field || !field->isActiveWindow())
                return;
            done = true;
            act(*field);
            field->close();
        });
        timer.start(1);
        Key(Qt::Key_K, Qt::ControlModifier);
        EXPECT_TRUE(done);
        program->Window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&program->Window()));
        Settle();
    }
};

} // namespace

TEST_F(TravelWindowTest, AnySectionByKeys) {
    Find<QComboBox>("ShapeType").setFocus();
    In_Field([&](QWidget& field) {
        QTest::keyClicks(QApplication::focusWidget(), "w18x5");
        Key(Qt::Key_Down);
        EXPECT_TRUE(field.findChild<QLineEdit*>("SearchBox")->hasFocus());
        Key(Qt::Key_Return);
    });
    EXPECT_EQ(Form().Browse.ShapeSizeUS.Text(), "W18x50");
    EXPECT_TRUE(Find<GridView>("ShapeFlex").hasFocus());

    In_Field([&](QWidget&) {
        QTest::keyClicks(QApplication::focusWidget(), "MC 18 X 58");
        Key(Qt::Key_Return, Qt::ControlModifier);
    });
    EXPECT_EQ(Form().Beam.zShapeSizeUS.Text(), "MC18x58");
    EXPECT_TRUE(Find<GridView>("zShapeFlex").isVisible());
    Key(Qt::Key_Backspace);
    EXPECT_TRUE(Find<GridView>("ShapeFlex").hasFocus());

    // Escape leaves a cell in the middle of its editing.
    Open(Mode::Connection);
    Find<GridView>("cFlex").setFocus();
    Key(Qt::Key_7);
    In_Field([&](QWidget&) {
        QTest::keyClicks(QApplication::focusWidget(), "w18x50");
        Key(Qt::Key_Escape);
    });
    auto& editor = Find<QLineEdit>("EdiTxt");
    EXPECT_TRUE(editor.hasFocus());
    EXPECT_EQ(editor.text(), "7");
    EXPECT_EQ(Form().Browse.ShapeSizeUS.Text(), "W18x50");
}

TEST_F(TravelWindowTest, FromARowAndBack) {
    Open(Mode::ViewAll);
    auto& all = Find<GridView>("xShapeFlex");
    all.setFocus();
    for (int i = 0; i < 30; ++i)
        Key(Qt::Key_Down);
    const QString row = Find<QLabel>("Panel1").text();
    const std::string name = Form().ViewAll.xShapeFlex.Text(31, 0);
    Key(Qt::Key_Return);
    EXPECT_EQ(Form().SelectionTab.Tab(), 0);
    EXPECT_EQ(Form().Browse.ShapeSizeUS.Text() + "  ", name + "  ");
    EXPECT_TRUE(Find<GridView>("ShapeFlex").hasFocus());
    Key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(all.hasFocus());
    EXPECT_EQ(Find<QLabel>("Panel1").text(), row);
    EXPECT_TRUE(all.rect().contains(all.Cell_Rect(31, 1)));

    Click_Cell(all, 31, 4);
    QTest::mouseDClick(all.viewport(), Qt::LeftButton, {},
                       all.viewport()->mapFrom(&all, all.Cell_Rect(31, 4).center()));
    Settle();
    EXPECT_EQ(Form().SelectionTab.Tab(), 0);
    Key(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Form().Beam.zShapeSizeUS.Text(), Form().Browse.ShapeSizeUS.Text());
    // Where it is typed, Backspace stays a key of the box.
    auto& span = Find<QLineEdit>("BeamSpanBox");
    span.setFocus();
    span.selectAll();
    QTest::keyClicks(&span, "25'");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(span.text(), "25");
    EXPECT_EQ(Form().SelectionTab.Tab(), 3);
    Key(Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Form().SelectionTab.Tab(), 0);
}

TEST_F(TravelWindowTest, ThePopupAndTheLightest) {
    Open(Mode::Find);
    FindPage& page = Form().Find;
    page.fPoperty.Select(13);
    page.fCriterion.Select(4);
    page.fValue.Set_Text("100");
    page.FindButton.Click();
    Settle();
    auto& grid = Find<GridView>("fShapeFlex");
    QTest::mouseClick(&Find<QLabel>("CountPanel"), Qt::LeftButton);
    Settle();
    EXPECT_TRUE(Find<QLabel>("Panel1").text().startsWith(" SELECTION:   W21x48"));
    EXPECT_TRUE(grid.hasFocus());
    Key(Qt::Key_Home, Qt::ControlModifier);
    Key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(Find<QLabel>("Panel1").text().startsWith(" SELECTION:   W21x48"));
    EXPECT_TRUE(grid.rect().contains(grid.Cell_Rect(page.fShapeFlex.Row(), 1)));

    Key(Qt::Key_F10, Qt::ShiftModifier);
    auto& menu = Find<QMenu>("mnuEdit1");
    const auto action = [&](const char* name) {
        return menu.findChild<QAction*>(QLatin1String(name));
    };
    EXPECT_TRUE(action("mnuShowBeam")->isVisible() && action("mnuShowBeam")->isEnabled());
    const QList<QAction*> items = menu.actions();
    EXPECT_LT(items.indexOf(action("mnuDummyExit")), items.indexOf(action("mnuShowBrowse")));
    action("mnuShowBeam")->trigger();
    menu.close();
    Settle();
    EXPECT_EQ(Form().Beam.zShapeSizeUS.Text(), "W21x48");
    Open(Mode::Connection);
    Form().Design.Bolts.cFlex.OnPopup();
    Settle();
    EXPECT_FALSE(action("mnuShowBeam")->isVisible());
    menu.close();
}

TEST_F(TravelWindowTest, ASizeOfAnotherFamilyIsTold) {
    auto& sizes = Find<QComboBox>("ShapeSizeUS");
    sizes.setFocus();
    QTest::keyClicks(&sizes, "pipe8std");
    Settle();
    EXPECT_EQ(Find<QLabel>("RemarkPanel").text(),
              "Pipe8STD is in the list of Pipe: Ctrl+K finds it");
}

TEST_F(TravelWindowTest, AHeadOrItsKeySortsAndAThirdTimeNot) {
    Open(Mode::ViewAll);
    const FlexGrid& grid = Form().ViewAll.xShapeFlex;
    auto& all = Find<GridView>("xShapeFlex");
    all.setFocus();
    for (int i = 0; i < 4; ++i)
        Key(Qt::Key_Right);
    const int col = grid.Col();
    EXPECT_EQ(grid.Text(0, col), "bf\n[in.]");
    QWidget* const head = all.horizontalHeader()->viewport();
    const QPoint place(all.columnViewportPosition(col) + all.columnWidth(col) / 2, 8);
    const std::function<void()> ways[] = {
        [] { Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier); },
        [&] { QTest::mouseClick(head, Qt::LeftButton, {}, place); }};
    for (const auto& sort : ways) {
        std::string leading;
        for (int state = 0; state < 3; ++state) {
            sort();
            EXPECT_EQ(grid.Sort_Col(), state == 2 ? -1 : col);
            EXPECT_EQ(grid.Sort_Descends() && state < 2, state == 1);
            leading += grid.Text(1, 0) + "|";
        }
        EXPECT_EQ(leading, "W8x10|W36x800|W44x335|"); // of equal ones in the Manual's order
    }
}

TEST_F(TravelWindowTest, WeightsOfTheSection) {
    Open(Mode::ViewAll);
    Find<GridView>("xShapeFlex").setFocus();
    Key(Qt::Key_Down);
    const std::string name = Trim(Form().ViewAll.xShapeFlex.Text(2, 0));
    std::string weighed;
    When([] { return QApplication::activeModalWidget() != nullptr; },
         [&] {
             QWidget& dialog = *QApplication::activeModalWidget();
             weighed = dialog.findChild<QComboBox*>("ShapeSizeUS")->currentText().toStdString();
             dialog.close();
         });
    Key(Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(weighed, name);
}

TEST_F(TravelWindowTest, SectionsAreComparedInAWindowBeside) {
    const auto compare = [] { Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier); };
    const auto active = [](const QWidget& window) { // not only one of its transient parents
        return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; });
    };
    ComparePage& page = Form().Compare;
    Open(Mode::ViewAll);
    auto& all = Find<GridView>("xShapeFlex");
    all.setFocus();
    for (int i = 0; i < 3; ++i) {
        compare();
        ASSERT_TRUE(QTest::qWaitFor([&] { return all.hasFocus(); })); // the keyboard stays
        Key(Qt::Key_Down);
    }
    auto& window = Find<CompareWindow>("CompareWindow");
    EXPECT_TRUE(window.isVisible());
    ASSERT_EQ(page.Sections().size(), 3U);
    Key(Qt::Key_Up);
    compare(); // once more: goes there
    ASSERT_TRUE(active(window));
    EXPECT_TRUE(window.findChild<GridView*>("CompareFlex")->hasFocus());
    const std::string last = page.Sections().at(2).Names[0];
    EXPECT_EQ(page.CompareFlex.Text(0, page.CompareFlex.Col()), last);
    Key(Qt::Key_Left);
    Key(Qt::Key_Delete);
    EXPECT_EQ(page.Sections().size(), 2U);
    EXPECT_EQ(page.Sections().at(1).Names[0], last);
    Key(Qt::Key_C, Qt::AltModifier); // the whole table
    ASSERT_TRUE(QTest::qWaitFor([] {
        return QApplication::clipboard()->text().startsWith(QStringLiteral("Property\tUnit\t"));
    }));
    compare(); // back
    ASSERT_TRUE(active(program->Window()));
    EXPECT_TRUE(all.hasFocus());
    window.setGeometry(40, 50, 640, 480);
    window.activateWindow();
    ASSERT_TRUE(active(window));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    Stop();
    Start();
    Form().mnuCompared.Click();
    EXPECT_EQ(Find<CompareWindow>("CompareWindow").size(), QSize(640, 480));
}

TEST_F(TravelWindowTest, TheFieldUnderATable) {
    Open(Mode::ViewAll);
    const FlexGrid& grid = Form().ViewAll.xShapeFlex;
    auto& all = Find<GridView>("xShapeFlex");
    Find<QComboBox>("xShapeType").setFocus(); // from anywhere on the page
    Key(Qt::Key_F, Qt::ControlModifier);
    auto& bar = Find<FindBar>("xShapeFlexFind");
    auto* const box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(box && bar.isAncestorOf(box));
    QTest::keyClicks(box, "w 18x5");
    const auto at = [&] { return Trim(grid.Text(grid.Row(), 0)); };
    EXPECT_EQ(at(), "W18x55");
    EXPECT_EQ(bar.findChild<QLabel*>("FoundLabel")->text(), "2 rows");
    EXPECT_EQ(box->accessibleDescription().section(';', 1), " Standard US Profile: W18x55");
    EXPECT_TRUE(all.rect().contains(all.Cell_Rect(grid.Row(), 0)));
    std::string path;
    for (const auto& [key, with] : {std::pair{Qt::Key_Return, Qt::NoModifier},
                                    {Qt::Key_F3, Qt::NoModifier},
                                    {Qt::Key_F3, Qt::ShiftModifier},
                                    {Qt::Key_Return, Qt::ShiftModifier}}) {
        Key(key, with);
        path += at() + " ";
    }
    EXPECT_EQ(path, "W18x50 W18x55 W18x50 W18x55 ");
    EXPECT_TRUE(Find<QLabel>("Panel1").text().startsWith(" SELECTION:   W18x55"));
    QTest::keyClicks(box, "?");
    EXPECT_EQ(at(), "W18x55");
    EXPECT_EQ(box->accessibleDescription(), "no row");
    Key(Qt::Key_Escape);
    EXPECT_TRUE(all.hasFocus());
    EXPECT_FALSE(bar.isVisible());
}
