#include "EveryScreen.h"

#include "window/calculator/CalcResultsDialog.h"
#include "window/calculator/CalcWindow.h"
#include "window/grid/GridView.h"
#include "window/pages/CompareWindow.h"
#include "window/pages/GuideWindow.h"
#include "window/pages/ReportView.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <utility>

namespace Tensarix {

namespace {

constexpr int openTries = 200, openWaitMs = 10;
constexpr int layoutTurns = 5;      // until page and window have followed a change
constexpr int piecesOfReport = 400; // enough to fill the box

using Act = std::function<void(QWidget& dialog)>;
using Texts = std::initializer_list<const char*>;

void Settle() {
    for (int turn = 0; turn < layoutTurns; ++turn)
        QCoreApplication::processEvents();
}

class Walk {
  public:
    Walk(Program& program, const Visit& visit) : program_(program), visit_(visit) {}

    std::vector<std::string> All() {
        Browse();
        Any_Section();
        Guide();
        Compare();
        Find();
        View_All();
        Beam();
        Bolts();
        Welds();
        Menus();
        Weights_1();
        Weights_2();
        Calculator();
        In_Dialog([this] { program_.Form().mnuAbout.Click(); }, Visited("about"));
        In_Dialog(
            [this] {
                program_.Window().findChild<QAction*>(QStringLiteral("mnuRemarks"))->trigger();
            },
            Visited("remarks"));
        return faults_;
    }

  private:
    void Expect(bool holds, const std::string& otherwise) {
        if (!holds)
            faults_.push_back(otherwise);
    }

    // Without a desktop nobody gives the keyboard back to the window below what has closed.
    void Activate(QWidget& top) {
        top.activateWindow();
        Expect(QTest::qWaitForWindowActive(&top), "a window does not become the active one");
        Settle();
    }

    // By Escape, which in the calculator clears what is being typed.
    void Leave(QWidget& dialog) {
        if (dialog.isVisible() && !dynamic_cast<CalcWindow*>(&dialog)) {
            Activate(dialog);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            Expect(!dialog.isVisible(),
                   std::string{"Escape leaves open: "} + dialog.metaObject()->className());
        }
        dialog.close();
    }

    // Tries again until the next dialog has the keyboard. One that never gets it is closed: else it
    // would stay open for ever.
    void When_Open(const QWidget* below, const std::shared_ptr<bool>& done, const Act& act,
                   int tries = openTries) {
        QTimer::singleShot(openWaitMs, qApp, [=, this] {
            QWidget* const dialog = QApplication::activeModalWidget();
            const bool open = dialog && dialog != below, active = open && dialog->isActiveWindow();
            if (*done || (!open && tries == 0))
                return;
            if (!active && tries > 0)
                return When_Open(below, done, act, tries - 1);
            if (!active) {
                dialog->close();
                return;
            }
            *done = true;
            act(*dialog);
            Leave(*dialog);
        });
    }

    // Opens a modal dialog, acts in it, and closes it.
    void In_Dialog(const std::function<void()>& open, const Act& act) {
        const auto done = std::make_shared<bool>(false);
        When_Open(QApplication::activeModalWidget(), done, act);
        open();
        Expect(std::exchange(*done, true), "no dialog has opened with the keyboard in it");
        Settle();
    }

    // Gives the keys to the named widget, to a grid at its first value, then to whatever has the
    // focus.
    void Keys_To(QWidget& top, const char* name, const char* keys) {
        Activate(top);
        auto* const widget = top.findChild<QWidget*>(QLatin1String(name));
        widget->setFocus();
        if (qobject_cast<GridView*>(widget))
            QTest::keyClick(widget, Qt::Key_Home, Qt::ControlModifier);
        for (; *keys; ++keys) {
            Settle();
            QTest::keyClick(QApplication::focusWidget(), *keys);
        }
    }

    void Show(const std::string& name, QWidget& top) {
        Settle();
        if (!top.windowFlags().testFlag(Qt::Popup))
            Activate(top);
        program_.Window().findChild<ReportView*>()->Flush(); // without waiting for its timer
        visit_(name, top);
        Settle();
    }
    void Show(const std::string& name) { Show(name, program_.Window()); }
    Act Visited(const std::string& name) {
        return [this, name](QWidget& dialog) { Show(name, dialog); };
    }
    void To(Mode mode) {
        program_.Form().OptButton[static_cast<std::size_t>(mode)].Select();
        Settle();
        const QString button = QStringLiteral("OptButton%1").arg(static_cast<int>(mode));
        program_.Window().findChild<QWidget*>(button)->setFocus();
    }

    void Browse() {
        BrowsePage& page = program_.Form().Browse;
        To(Mode::Browse);
        for (int family = 0; family < page.ShapeType.Count(); ++family) {
            page.ShapeType.Select(family);
            Show("browse " + page.ShapeType.Text());
        }
        page.ShapeType.Select(0);
        page.DimOption2.Select();
        page.ShapeFlex.Move_To(3, 1);
        Show("browse, inches");
        page.ProfileOption2.Select();
        page.ShapeFlex.Move_To(13, 1);
        Show("browse, SI");
        program_.Window().findChild<QWidget*>(QStringLiteral("ShapeFlex"))->setFocus();
        page.ShapeFlex.Press(3, 1);
        page.ShapeFlex.Extend_To(5, 2);
        page.ShapeFlex.OnPopup();
        Menu("popup", *program_.Window().findChild<QMenu*>(QStringLiteral("mnuEdit1")));
    }

    void Any_Section() {
        In_Dialog([this] { program_.Form().AnySectionButton.Click(); },
                  [this](QWidget& dialog) {
                      Show("any section", dialog);
                      Keys_To(dialog, "SearchBox", "hss8x8x");
                      Show("any section, found", dialog);
                  });
    }

    void Guide() {
        program_.Form().mnuGuide.Click();
        QWidget& guide = *program_.Window().findChild<GuideWindow*>();
        Show("guide", guide);
        Keys_To(guide, "SearchBox", "status bar");
        Show("guide, searched", guide);
        Leave(guide);
    }

    void Compare() {
        MainFrm& form = program_.Form();
        const DesignationSearch search(form.Shared.Host.Places.Program);
        const auto add = [&](Texts names) {
            for (const char* name : names)
                form.Compare_Section(search.Find(name, 1).at(0).Place);
        };
        form.mnuCompared.Click();
        QWidget& window = *program_.Window().findChild<CompareWindow*>();
        Show("compare, empty", window);
        add({"w18x50", "hss8x8x1/2", "c15x50"});
        form.Compare.CompareFlex.Move_To(5, 4);
        Show("compare", window);
        add({"w44x335", "2l8x6x1x3/8", "pipe8std", "w21x48"});
        form.Compare.CompareProfile2.Select();
        form.Compare.CompareFlex.Move_To(20, 5);
        add({"w21x48"});
        Show("compare, six", window);
        Leave(window);
    }

    void Find() {
        FindPage& page = program_.Form().Find;
        To(Mode::Find);
        Show("find");
        In_Dialog([&page] { page.FindButton.Click(); }, Visited("find, message"));
        page.fPoperty.Select(13);
        page.fCriterion.Select(4);
        page.fValue.Set_Text("500");
        page.FindButton.Click();
        page.fShapeFlex.Press(2, 15);
        Show("find, found");
        page.fShapeType.Select(13);
        page.fPoperty.Select(24);
        Show("find, note");
        page.fProfileOption2.Select();
        page.fShapeType.Select(0);
        Show("find, SI");
        page.fCriterion.Select(-1);
    }

    void View_All() {
        ViewAllPage& page = program_.Form().ViewAll;
        To(Mode::ViewAll);
        for (int family = 0; family < page.xShapeType.Count(); family += 4) {
            page.xShapeType.Select(family);
            page.xShapeFlex.Press(3, 13);
            Show("view all " + page.xShapeType.Text());
        }
        page.xShapeType.Select(0);
        page.xDimOption2.Select();
        Show("view all, inches");
        page.xProfileOption2.Select();
        page.xShapeFlex.Set_Top_Row(200);
        page.xShapeFlex.Set_Left_Col(5);
        Show("view all, SI");
        In_Table("xShapeFlex", "74", [this] { Show("view all, in table"); });
    }

    // With the field under the table open.
    void In_Table(const char* grid, const char* text, const std::function<void()>& act) {
        Keys_To(program_.Window(), grid, "");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
        act();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    }

    void Beam() {
        BeamPage& page = program_.Form().Beam;
        To(Mode::BeamLoad);
        page.zShapeFlex.Move_To(13, 1);
        Show("beam, 9th");
        page.AppliedCode.Select(code13thEdition);
        page.BeamSpanBox.Set_Text("25'-6 1/2\"");
        page.CFactor.Set_Text("15.00");
        Show("beam, 13th");
        page.CodeOpt[1].Select();
        page.zShapeType.Select(firstChannelFamily);
        Show("beam, channel");
        page.BeamSpanBox.Set_Text("1'");
        Show("beam, all remarks");
        page.BeamSpanBox.Set_Text("5'6\"");
        In_Dialog([&page] { page.BeamSpanBox.OnKeyDown(Keys::Enter); }, Visited("beam, message"));
    }

    // Typed in as the user would.
    static void Type(FlexGrid& grid, TextBox& editor, Texts texts, int row, int col, bool down) {
        for (const char* text : texts) {
            grid.Move_To(row, col);
            grid.OnDblClick();
            editor.Set_Text(text);
            editor.OnKeyDown(Keys::Enter);
            (down ? row : col) += 1;
        }
    }

    void Bolts() {
        DesignPage& design = program_.Form().Design;
        BoltPage& page = design.Bolts;
        const auto type = [&page](int row, Texts texts) {
            Type(page.cFlex, page.EdiTxt, texts, row, 1, false);
        };
        To(Mode::Connection);
        design.DesignSSTab.Select(boltTab);
        Show("bolts");
        type(1, {"6", "1", "3", "3", "4", "0"});
        type(2, {"6", "2", "3", "3", "6", "0"});
        type(3, {"3", "1", "3", "3", "8", "0"});
        type(4, {"4", "2", "3", "3", "8", "30"});
        page.cFlex.Move_To(3, 7);
        Show("bolts, result");
        In_Table("cFlex", "3.0", [this] { Show("bolts, in table"); });
        page.cFlex.Move_To(3, 7);
        QTimer::singleShot(0, qApp, [&] { // in the search, which is as long as one can be
            Show("bolts, computing");
            page.cFlex.Move_To(5, 1);
            page.cFlex.OnKeyDown(Keys::Delete); // ends it
        });
        type(5, {"1000", "1000", "3", "3", "6", "75"});
        Keys_To(program_.Window(), "cFlex", "");
        page.cFlex.Move_To(2, 1);
        page.cFlex.OnDblClick();
        Show("bolts, editing");
        page.EdiTxt.OnKeyDown(Keys::Escape);
        In_Dialog([&page] { page.ClearButton.Click(); }, Visited("bolts, question"));
    }

    void Welds() {
        DesignPage& design = program_.Form().Design;
        WeldPage& page = design.Welds;
        design.DesignSSTab.Select(weldTab);
        Settle();
        In_Dialog([&page] { page.StartIterationButton.Click(); }, Visited("weld, message"));
        for (int configuration = 1; configuration <= page.WeldView.Count(); configuration += 4) {
            page.WeldView.Click(configuration);
            Show("weld " + std::to_string(configuration));
        }
        page.WeldView.Click(5);
        Type(page.WeldFlex, page.EdiTxtA, {"100", "50", "5", "45"}, 0, 1, true);
        page.WeldStripBox.Select(3);
        Start_And_Stop(page);
        Show("weld, stopped");
        page.WeldView.Click(2);
        Type(page.WeldFlex, page.EdiTxtA, {"10", "5", "4", "0"}, 0, 1, true);
        page.WeldStripBox.Select(1);
        page.StartIterationButton.Click();
        Show("weld, result");
        Keys_To(program_.Window(), "WeldFlex", "");
        page.WeldFlex.Move_To(1, 1);
        page.WeldFlex.OnDblClick();
        Show("weld, editing");
        page.EdiTxtA.OnKeyDown(Keys::Escape);
    }

    // Where the report has come to, not the clock, says when it is looked at and stopped.
    void Start_And_Stop(WeldPage& page) {
        Handler& changed = page.IterationDisplayBox.Shown.OnChanged;
        const Handler usual = changed;
        int pieces = 0;
        changed = [&] {
            usual();
            if (++pieces != piecesOfReport)
                return;
            Show("weld, running");
            page.StopIterationButton.Click();
        };
        page.StartIterationButton.Click();
        changed = usual;
        Expect(pieces > piecesOfReport, "the search on the weld page ends too soon");
    }

    void Menu(const std::string& name, QMenu& menu) {
        Show(name, menu);
        menu.close();
        Settle();
    }

    void Menus() {
        for (auto* menu : program_.Window().findChildren<QMenu*>())
            if (!menu->title().isEmpty()) {
                menu->popup(program_.Window().mapToGlobal(QPoint(0, 0)));
                Menu("menu " + menu->title().remove(QLatin1Char('&')).toStdString(), *menu);
            }
    }

    void Weights_1() {
        In_Dialog([this] { program_.Form().mnuWtCalc.Click(); },
                  [this](QWidget& dialog) {
                      Show("weights 1, empty", dialog);
                      Keys_To(dialog, "ShapeSizeUS", "w18x50");
                      Keys_To(dialog, "ImperialFlex", "12'-6 3/8\t20000'\t6\t5.5'");
                      Show("weights 1, editing", dialog);
                      Keys_To(dialog, "EdiTxt", "\t");
                      Show("weights 1", dialog);
                      auto& sheet = *dialog.findChild<GridView*>(QStringLiteral("ImperialFlex"));
                      QTest::mouseClick(sheet.viewport(), Qt::RightButton, {}, {40, 40});
                      Menu("weights 1, menu", *sheet.findChild<QMenu*>());
                      dialog.findChild<QTabBar*>()->setCurrentIndex(1);
                      Keys_To(dialog, "MetricFlex", "12.5\t2\t");
                      Show("weights 1, metric", dialog);
                      dialog.findChild<QTabBar*>()->setCurrentIndex(0);
                      Keys_To(dialog, "ImperialFlex", "5'6\"");
                      In_Dialog(
                          [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); },
                          Visited("weights 1, message"));
                  });
    }

    void Weights_2() {
        In_Dialog([this] { program_.Form().mnuWtCalcA.Click(); },
                  [this](QWidget& dialog) {
                      Show("weights 2, empty", dialog);
                      Keys_To(dialog, "ImperialFlex",
                              "w8x10\t12'-6\tw18x50\t20'\tw14x90\t6\tw24x55\t33'-4 1/2");
                      Show("weights 2", dialog);
                      Keys_To(dialog, "ImperialFlex", "w");
                      Show("weights 2, list in a cell", dialog);
                      auto& sizes = *dialog.findChild<QComboBox*>(QStringLiteral("ShapeSizeUS"));
                      sizes.showPopup();
                      Show("weights 2, list open", *sizes.view()->window());
                      sizes.hidePopup();
                      dialog.findChild<QTabBar*>()->setCurrentIndex(1);
                      Keys_To(dialog, "MetricFlex", "w200x15\t2.5\tw460x74\t12.25\t");
                      Show("weights 2, metric", dialog);
                  });
    }

    void Calculator() {
        In_Dialog([this] { program_.Form().mnuCalc.Click(); },
                  [this](QWidget& dialog) {
                      auto& form = dynamic_cast<CalcWindow&>(dialog);
                      auto& pages = *form.findChild<QTabWidget*>();
                      Press(form, {"key_Sqr", "key_Sqrt", "key_1", "key_2", "key_dot", "key_5"});
                      for (int page = 0; page < pages.count(); ++page) {
                          pages.setCurrentIndex(page);
                          Show("calculator " + std::to_string(page + 1), form);
                      }
                      Press(form, {"key_AC", "key_1", "key_plus", "key_3", "key_Xy", "key_2",
                                   "key_multiply", "key_4", "key_equal"});
                      Show("calculator, remark", form);
                      QTest::keyClick(&form, Qt::Key_L, Qt::ControlModifier);
                      auto& results = *form.findChild<CalcResultsDialog*>();
                      Activate(results);
                      Show("calculator, results", results);
                      Leave(results);
                      Activate(form);
                      Press(form, {"key_divide", "key_0", "key_equal"});
                      Show("calculator, error", form);
                      Press(form, {"key_AC", "key_6", "key_9", "key_Fact", "key_PM", "key_Min",
                                   "key_Rcp", "key_plus", "key_plus"});
                      Show("calculator, fullest", form);
                      Press(form, {"key_AC"});
                      Calculator_Dialogs(form);
                  });
    }

    static void Press(CalcWindow& form, Texts keys) {
        for (const char* key : keys)
            form.Press_Key(key);
    }

    void Calculator_Dialogs(CalcWindow& form) {
        const auto keys = [&form](Texts names) {
            return [&form, names = std::vector<const char*>(names)] {
                for (const char* name : names)
                    form.Press_Key(name);
            };
        };
        // The second time it asks whether to overwrite what the first has left.
        const auto firstRow = [this](const std::string& name) {
            return [this, name](QWidget& dialog) {
                auto& rows = *dialog.findChild<QTreeWidget*>();
                rows.setCurrentItem(rows.topLevelItem(0));
                Show("calculator, " + name, dialog);
                dialog.findChild<QAbstractButton*>(QStringLiteral("OKButton"))->click();
            };
        };
        In_Dialog(keys({"key_5", "key_Kin"}), firstRow("memory in"));
        In_Dialog(keys({"key_6", "key_Kin"}), [&](QWidget& dialog) {
            In_Dialog([&] { firstRow("memory in again")(dialog); },
                      Visited("calculator, question"));
        });
        In_Dialog(keys({"key_Kout"}), firstRow("memory out"));
        In_Dialog(keys({"key_KAC"}), Visited("calculator, memory delete"));
        In_Dialog(keys({"key_2", "key_Data", "key_7", "key_Data", "key_Del"}),
                  Visited("calculator, data"));
        for (const auto& [key, name] : {std::pair{"key_Cnst", "constants"}, {"HelpButton", "help"}})
            In_Dialog(keys({key}), [this, name = std::string(name)](QWidget& dialog) {
                dialog.findChild<QListWidget*>()->setCurrentRow(4);
                Show("calculator, " + name, dialog);
            });
    }

    Program& program_;
    const Visit& visit_;
    std::vector<std::string> faults_;
};

} // namespace

std::vector<std::string> For_Each_Screen(Program& program, const Visit& visit) {
    return Walk(program, visit).All();
}

} // namespace Tensarix
