// From section to section with real keys and clicks.
#include "WindowTest.h"
#include "window/grid/GridView.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

class TravelWindowTest : public WindowTest {
  protected:
    MainFrm& Form() { return program->Form(); }
    static void Key(Qt::Key key, Qt::KeyboardModifiers with = {}) {
        Tests::Key(key, with);
        Settle();
    }
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

    const QRect cell = all.Cell_Rect(31, 4);
    const QPoint at = all.viewport()->mapFrom(&all, cell.center());
    QTest::mouseClick(all.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(all.viewport(), Qt::LeftButton, {}, at);
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
