#include "EveryScreen.h"

#include "window/calculator/CalcWindow.h"
#include "window/grid/GridView.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace Tensarix::Tests {

namespace {

constexpr int openTries = 200, openWaitMs = 10;

using Act = std::function<void(QWidget& dialog)>;

void Settle() {
    QCoreApplication::processEvents(); // takes over the change
    QCoreApplication::processEvents(); // lays out anew what it has widened
}

// Without a desktop nobody gives the keyboard back to the window below what has closed.
void Activate(QWidget& top) {
    top.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&top));
    Settle();
}

// By Escape, which in the calculator clears what is being typed.
void Leave(QWidget& dialog) {
    if (dialog.isVisible() && !dynamic_cast<CalcWindow*>(&dialog)) {
        Activate(dialog);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible())
            << "Escape leaves " << dialog.metaObject()->className() << " open";
    }
    dialog.close();
}

// Tries again until the next dialog has the keyboard.
void When_Open(const QWidget* below, const std::shared_ptr<bool>& done, const Act& act,
               int tries = openTries) {
    QTimer::singleShot(openWaitMs, qApp, [=] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (*done || tries == 0)
            return;
        if (!dialog || dialog == below || !dialog->isActiveWindow())
            return When_Open(below, done, act, tries - 1);
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
    EXPECT_TRUE(std::exchange(*done, true)) << "no dialog has opened";
    Settle();
}

// Gives the keys to the named widget, to a grid at its first value, then to whatever has the focus.
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

class Walk {
  public:
    Walk(Program& program, const Visit& visit) : program_(program), visit_(visit) {}

    void All() {
        Browse();
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
    }

  private:
    void Show(const std::string& name, QWidget& top) {
        SCOPED_TRACE(name);
        Settle();
        if (!top.windowFlags().testFlag(Qt::Popup))
            Activate(top);
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
        page.DimOption2.Select();
        Show("browse, inches");
        page.ProfileOption2.Select();
        page.ShapeType.Select(0);
        Show("browse, SI");
        page.ShapeFlex.Press(3, 1);
        page.ShapeFlex.OnPopup();
        Menu("popup", *program_.Window().findChild<QMenu*>(QStringLiteral("mnuEdit1")));
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
        ViewPage& page = program_.Form().ViewAll;
        To(Mode::ViewAll);
        for (int family = 0; family < page.xShapeType.Count(); family += 4) {
            page.xShapeType.Select(family);
            Show("view all " + page.xShapeType.Text());
        }
        page.xDimOption2.Select();
        page.xProfileOption2.Select();
        Show("view all, SI");
    }

    void Beam() {
        BeamPage& page = program_.Form().Beam;
        To(Mode::BeamLoad);
        Show("beam, 9th");
        page.AppliedCode.Select(Code13thEdition);
        page.BeamSpanBox.Set_Text("25'-6 1/2\"");
        Show("beam, 13th");
        page.zShapeType.Select(FirstChannelFamily);
        Show("beam, channel");
        page.BeamSpanBox.Set_Text("1'");
        Show("beam, all remarks");
        page.BeamSpanBox.Set_Text("5'6\"");
        In_Dialog([&page] { page.BeamSpanBox.OnKeyDown(Keys::Enter); }, Visited("beam, message"));
    }

    // Typed in as the user would.
    static void Type(FlexGrid& grid, TextBox& editor, std::initializer_list<const char*> texts,
                     int row, int col, bool down) {
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
        To(Mode::Connection);
        design.DesignSSTab.Select(boltTab);
        Show("bolts");
        Type(page.cFlex, page.EdiTxt, {"6", "2", "3", "3", "6", "75"}, 1, 1, false);
        page.cFlex.Move_To(1, 7);
        Show("bolts, result");
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
        page.WeldView.Click(2);
        Type(page.WeldFlex, page.EdiTxtA, {"1000", "500", "50", "60"}, 0, 1, true);
        page.WeldStripBox.Select(3);
        QTimer::singleShot(0, qApp, [&] {
            Show("weld, running");
            page.StopIterationButton.Click();
        });
        page.StartIterationButton.Click();
        Show("weld, stopped");
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

    void Menu(const std::string& name, QMenu& menu) {
        Show(name, menu);
        menu.close();
        Settle();
    }

    void Menus() {
        for (auto* menu : program_.Window().findChildren<QMenu*>())
            if (!menu->title().isEmpty()) {
                menu->popup(program_.Window().mapToGlobal(QPoint(0, 0)));
                Menu("menu " + menu->title().toStdString(), *menu);
            }
    }

    void Weights_1() {
        In_Dialog([this] { program_.Form().mnuWtCalc.Click(); },
                  [this](QWidget& dialog) {
                      Show("weights 1", dialog);
                      Keys_To(dialog, "ImperialFlex", "12'-6 3/8\t20'\t5.5'");
                      Show("weights 1, editing", dialog);
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
                      Show("weights 2", dialog);
                      Keys_To(dialog, "ImperialFlex", "w8x10\t12'-6\tw18x50\t33'");
                      Show("weights 2, editing", dialog);
                      Keys_To(dialog, "ImperialFlex", "w");
                      Show("weights 2, list in a cell", dialog);
                      auto& sizes = *dialog.findChild<QComboBox*>(QStringLiteral("ShapeSizeUS"));
                      sizes.showPopup();
                      Show("weights 2, list open", *sizes.view()->window());
                      sizes.hidePopup();
                      dialog.findChild<QTabBar*>()->setCurrentIndex(1);
                      Keys_To(dialog, "MetricFlex", "w200x15\t2.5\t");
                      Show("weights 2, metric", dialog);
                  });
    }

    void Calculator() {
        In_Dialog([this] { program_.Form().mnuCalc.Click(); },
                  [this](QWidget& dialog) {
                      auto& form = dynamic_cast<CalcWindow&>(dialog);
                      auto& pages = *form.findChild<QTabWidget*>();
                      for (int page = 0; page < pages.count(); ++page) {
                          pages.setCurrentIndex(page);
                          Show("calculator " + std::to_string(page + 1), form);
                      }
                      for (const char* key : {"key_divide", "key_0", "key_equal"})
                          form.Press_Key(key);
                      Show("calculator, error", form);
                      form.Press_Key("key_AC");
                      Calculator_Dialogs(form);
                  });
    }

    void Calculator_Dialogs(CalcWindow& form) {
        const auto keys = [&form](std::initializer_list<const char*> names) {
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
};

} // namespace

void For_Each_Screen(Program& program, const Visit& visit) {
    Walk(program, visit).All();
}

} // namespace Tensarix::Tests
