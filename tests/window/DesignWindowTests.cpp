// Connection Design through real keys, clicks and searches.
#include "ScreenReader.h"
#include "WindowTest.h"
#include "window/pages/IconList.h"
#include "window/pages/ReportView.h"

#include <QClipboard>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct DesignWindowTest : WindowTest {
    void SetUp() override {
        WindowTest::SetUp();
        To(Mode::Connection);
    }
    DesignPage& Design() { return program->Form().Design; }
    void Click(const char* button) {
        QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
    }
    // Types cell by cell as a user does, with Tab.
    void Type_Bolt_Row(int row, std::initializer_list<const char*> texts) {
        Find<GridView>("cFlex").setFocus();
        Design().Bolts.cFlex.Move_To(row, 1);
        for (const char* text : texts) {
            Type(text);
            Key(Qt::Key_Tab);
        }
    }
    void To_Welds() {
        Design().DesignSSTab.Select(weldTab);
        Settle();
        Find<GridView>("WeldFlex").setFocus();
        Design().Welds.WeldFlex.Move_To(0, 1);
    }
    void Type_Weld(std::initializer_list<const char*> texts) {
        To_Welds();
        for (const char* text : texts) {
            Type(text);
            Key(Qt::Key_Return);
        }
    }
    // A search of several seconds.
    void Start_Long_Weld() {
        WeldPage& welds = Design().Welds;
        Design().DesignSSTab.Select(weldTab);
        welds.WeldView.Click(5);
        welds.WeldStripBox.Select(3);
        int row = 0;
        for (const char* text : {"1000", "500", "50", "60"})
            welds.WeldFlex.Set_Text(row++, 1, text);
        Settle();
        Click("StartIterationButton");
    }
    bool Computing(int row) {
        return Design().Bolts.cFlex.Remark(row, BoltColumn::C) == "Computing ...";
    }
    bool Weld_Runs() { return !Design().Welds.StartIterationButton.Enabled(); }
};

const std::initializer_list<const char*> tooLong{"1000", "1000", "3", "3", "6", "75"};

} // namespace

TEST_F(DesignWindowTest, ARowIsTypedAndSavedAndComesBack) {
    Type_Bolt_Row(2, {"6", "1", "3", "3", "4", "0"});
    EXPECT_EQ(Design().Bolts.cFlex.Text(2, 7), "4.558  ");
    EXPECT_EQ(Design().Bolts.cFlex.Row(), 3); // Tab goes on to the next row
    EXPECT_FALSE(Find<QLineEdit>("EdiTxt").isVisible());
    When([] { return QApplication::activeModalWidget() != nullptr; },
         [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    Click("SaveButton");
    Stop();
    Start();
    EXPECT_EQ(Design().Bolts.cFlex.Text(2, 7), "4.558  ");
}

TEST_F(DesignWindowTest, AddedRowsAreInView) {
    for (int i = 0; i < 20; ++i)
        Click("AddRowButton");
    Settle();
    auto& grid = Find<GridView>("cFlex");
    EXPECT_EQ(Design().Bolts.cFlex.Rows(), 36);
    EXPECT_TRUE(grid.rect().contains(grid.Cell_Rect(35, 1)));
    EXPECT_TRUE(Find<QPushButton>("RemRowButton").isEnabled());
}

TEST_F(DesignWindowTest, InANarrowWindowTheDrawingIsUnderTheTable) {
    auto& table = Find<GridView>("cFlex");
    auto& drawing = Find<QWidget>("GroupSketch");
    for (const auto& [size, under] :
         {std::pair{QSize(800, 600), true}, {QSize(1240, 700), false}}) {
        program->Window().resize(size);
        for (int turn = 0; turn < 5; ++turn)
            Settle();
        EXPECT_EQ(drawing.y() > table.geometry().bottom(), under);
        EXPECT_EQ(drawing.x() > table.geometry().right(), !under);
    }
}

TEST_F(DesignWindowTest, ConfigurationsByTheArrowKeys) {
    To_Welds();
    auto& list = Find<IconList>("WeldView");
    const ScreenReader reader;
    list.setFocus(Qt::TabFocusReason);
    Settle();
    EXPECT_EQ(ScreenReader::Told(), (QStringList{list.accessibleName(), "Weld Configuration 1"}));
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    Settle();
    EXPECT_EQ(Find<QLabel>("Panel1").text(), " SELECTION:   Weld Configuration 3");
    int clicks = 0;
    const Handler before = Design().Welds.WeldView.OnItemClick;
    Design().Welds.WeldView.OnItemClick = [&] {
        ++clicks;
        before();
    };
    const auto press = [&](int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(row)).center());
    };
    press(6);
    EXPECT_EQ(Design().Welds.WeldView.Selected_Item(), 7);
    EXPECT_EQ(clicks, 1);
    press(6);
    EXPECT_EQ(clicks, 2);
}

TEST_F(DesignWindowTest, AWeldIsTypedAndComputedAndItsReportCopied) {
    Type_Weld({"10", "5", "4", "30"});
    Click("StartIterationButton");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Weld_Runs(); }, 30000));
    Settle();
    EXPECT_TRUE(Find<QLineEdit>("CBox").isReadOnly());
    auto& report = Find<ReportView>("IterationDisplayBox");
    report.setFocus();
    QTest::keyClick(&report, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&report, Qt::Key_C, Qt::ControlModifier);
    const QString copied = QApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith(" -> Ro    = 0.00000 [Rotated 30°]\n    Fy[v] = "));
    EXPECT_TRUE(copied.contains("\n\n ** Instantaneous Center LOCATED !\n\n Reference:"));
    QTest::keyClick(&report, Qt::Key_Home);
    EXPECT_EQ(report.verticalScrollBar()->value(), 0);
    Click("ClearDisplayButton");
    EXPECT_TRUE(QTest::qWaitFor([&] { return report.Lines() == 1; }, 60000));
}

TEST_F(DesignWindowTest, StopResumeAndLeavingThePage) {
    // Start and Stop hand the keyboard to each other.
    When([this] { return Find<QPushButton>("StopIterationButton").hasFocus(); },
         [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); });
    Start_Long_Weld();
    Settle();
    EXPECT_EQ(Design().Welds.StopIterationButton.Caption(), "Resume Iteration");
    EXPECT_TRUE(Find<QLineEdit>("CBox").text().startsWith("** "));
    When([this] { return Weld_Runs(); },
         [this] {
             auto* bar = Find<QTabWidget>("DesignSSTab").tabBar();
             QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(boltTab).center());
         });
    Click("StopIterationButton"); // resumes
    Settle();
    EXPECT_EQ(Design().DesignSSTab.Tab(), boltTab);
    EXPECT_EQ(Design().Welds.StopIterationButton.Caption(), "Resume Iteration");
    EXPECT_TRUE(Find<QLineEdit>("CBox").text().startsWith("** "));
}

// Two bolt searches and a weld search, one inside the other; none of them would end soon. Events
// come through however deep they are nested, and closing ends them all, before any has a result.
TEST_F(DesignWindowTest, EventsComeThroughNestedSearchesAndClosingEndsThem) {
    int events = 0;
    const std::function<void()> nextEvent = [&] {
        if (++events < 20)
            When([this] { return Weld_Runs(); }, nextEvent);
        else
            program->Window().close();
    };
    When([this] { return Computing(1); },
         [&] {
             When([this] { return Computing(2); },
                  [&] {
                      When([this] { return Weld_Runs(); }, nextEvent);
                      Start_Long_Weld();
                  });
             Type_Bolt_Row(2, tooLong);
         });
    Type_Bolt_Row(1, tooLong);
    EXPECT_EQ(events, 20);
    EXPECT_FALSE(program->Window().isVisible());
    for (const int row : {1, 2})
        EXPECT_EQ(Design().Bolts.cFlex.Text(row, 7), "");
    EXPECT_EQ(Design().Welds.CBox.Text(), "");
    program.reset();
    const QSettings saved(Settings_Folder() + "/Tensarix.ini", QSettings::IniFormat);
    EXPECT_EQ(saved.value("TensarixSetting/WeldView").toString(), "5");
    EXPECT_EQ(saved.value("TensarixSetting/WeldStrip").toString(), "3");
}

TEST(ReportViewTest, LinesOfPieces) {
    ReportBox box;
    ReportView view;
    Bind(&view, box);
    for (const char* piece : {"one\r", "\ntwo", "\r\r three\n", "\r\n", "four\r"}) {
        box.Append(piece);
        view.Flush();
    }
    QStringList lines;
    for (int line = 0; line < view.Lines(); ++line)
        lines.append(view.Line(line));
    EXPECT_EQ(lines, (QStringList{"one", "two", "", " three", "", "four"}));
    box.Set_Text("x");
    view.Flush();
    EXPECT_EQ(view.Lines(), 1);
}

// A screen reader reads it line by line, and is told of new lines once, however often they come.
TEST(ReportViewTest, TheReportIsAText) {
    ReportBox box;
    ReportView view;
    Bind(&view, box);
    const ScreenReader reader;
    for (const char* piece : {"Ro = 30°\n", "two words\n", "\n", "end"}) {
        box.Append(piece);
        view.Flush();
    }
    EXPECT_EQ(ScreenReader::Told(), QStringList("text"));
    auto* const text = QAccessible::queryAccessibleInterface(&view)->textInterface();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->characterCount(), 23);
    EXPECT_EQ(text->text(5, 12), QStringLiteral("30°\ntwo"));
    const auto piece = [text](int at, QAccessible::TextBoundaryType boundary) {
        int start = 0, end = 0;
        const QString found = text->textAtOffset(at, boundary, &start, &end);
        return QStringLiteral("%1-%2 %3").arg(start).arg(end).arg(found.trimmed());
    };
    EXPECT_EQ(piece(12, QAccessible::LineBoundary), "9-19 two words");
    EXPECT_EQ(piece(14, QAccessible::WordBoundary), "13-19 words");
    EXPECT_EQ(piece(22, QAccessible::CharBoundary), "22-23 d");
    int start = 0, end = 0;
    EXPECT_EQ(text->textAfterOffset(3, QAccessible::LineBoundary, &start, &end), "two words\n");
    EXPECT_EQ(text->textBeforeOffset(21, QAccessible::LineBoundary, &start, &end), "\n");
    text->setSelection(0, 10, 12);
    text->selection(0, &start, &end);
    EXPECT_EQ(text->text(start, end), "two words");
    EXPECT_EQ(text->cursorPosition(), 9);
}
