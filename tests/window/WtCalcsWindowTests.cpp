// The weight calculators as the user meets them: opened from the menu, driven by real keys.
#include "WindowTest.h"

#include <QClipboard>
#include <QDialog>
#include <QMenu>
#include <QMessageBox>
#include <QTabBar>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct WtCalcsWindowTest : WindowTest {
    QDialog* dialog = nullptr;
    int messages = 0;

    // Opens a calculator, acts while it is open, and closes it if the act did not.
    void While_Open(const MenuItem& item, const std::function<void()>& act) {
        QTimer::singleShot(0, qApp, [&] {
            dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            EXPECT_TRUE(QTest::qWaitFor([&] {
                QWidget* focus = QApplication::focusWidget();
                return focus && focus->window() == dialog;
            }));
            EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("ShapeType"));
            act();
            if (dialog->isVisible())
                dialog->close();
        });
        item.Click();
    }
    template <typename Widget>
    Widget& In(const char* name) {
        return Of<Widget>(*dialog, name);
    }
    QString Cell(const char* grid, int row, int col) {
        return In<GridView>(grid).model()->index(row - 1, col).data().toString();
    }
    void Click(const char* grid, int row, int col) { Click_Cell(In<GridView>(grid), row, col); }
    // Answers the next message.
    void Expect_Message() {
        const auto box = [] {
            return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        };
        When([box] { return box() != nullptr; },
             [this, box] {
                 ++messages;
                 box()->accept();
             });
    }
};

} // namespace

TEST_F(WtCalcsWindowTest, LengthsAreTypedDownTheSheet) {
    While_Open(program->Form().mnuWtCalc, [&] {
        auto& sizes = In<QComboBox>("ShapeSizeUS");
        sizes.setFocus();
        Type("w8x10");
        Settle();
        EXPECT_EQ(In<QComboBox>("ShapeSizeSI").currentText(), QStringLiteral("W200x15"));
        Click("ImperialFlex", 1, 1);
        Type("10'-6\"");
        Key(Qt::Key_Return);
        Type("12");
        Key(Qt::Key_Tab);
        Type("3'");
        Key(Qt::Key_Escape);
        EXPECT_TRUE(dialog->isVisible()) << "Escape closed the editor alone";
        EXPECT_EQ(Cell("ImperialFlex", 1, 1) + Cell("ImperialFlex", 1, 2) +
                      Cell("ImperialFlex", 2, 2) + Cell("ImperialFlex", 3, 1).trimmed(),
                  "10'-6\"     105.00     10.00     ");
        EXPECT_EQ(In<QLabel>("TotalLabel").text(), "Rows: 2     Total weight: 115.00 lb");
        Key(Qt::Key_Escape);
        EXPECT_FALSE(dialog->isVisible()) << "nothing is lost: the lengths are kept";
    });
    While_Open(program->Form().mnuWtCalc, [&] {
        EXPECT_EQ(In<QComboBox>("ShapeSizeUS").currentText(), QStringLiteral("W8x10"));
        EXPECT_EQ(Cell("ImperialFlex", 2, 2), QStringLiteral("10.00     "));
    });
}

TEST_F(WtCalcsWindowTest, AnInvalidLengthShowsOneMessageByWhicheverWayOut) {
    const std::function<void()> ways[] = {
        [] { Key(Qt::Key_Return); },
        [] { Key(Qt::Key_Tab); },
        [] { Key(Qt::Key_Down); },
        [this] { Click("ImperialFlex", 5, 2); },
        [this] { QTest::mouseClick(&In<QComboBox>("ShapeType"), Qt::LeftButton); },
        [this] { dialog->close(); },
    };
    for (const auto& way : ways)
        While_Open(program->Form().mnuWtCalc, [&] {
            messages = 0;
            Click("ImperialFlex", 1, 1);
            Type("5'6\"");
            Expect_Message();
            way();
            EXPECT_TRUE(QTest::qWaitFor([this] { return messages > 0; }));
            Settle();
            EXPECT_EQ(messages, 1);
            EXPECT_FALSE(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
            EXPECT_EQ(Cell("ImperialFlex", 1, 1).trimmed(), QStringLiteral("5'-0\""));
            if (QWidget* popup = QApplication::activePopupWidget())
                popup->close();
        });
}

TEST_F(WtCalcsWindowTest, PasteCopyAndTheButtonsByTheirKeys) {
    While_Open(program->Form().mnuWtCalc, [&] {
        Click("ImperialFlex", 2, 1);
        QApplication::clipboard()->setText(QStringLiteral("1'\n2'-6\n"));
        Key(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Cell("ImperialFlex", 3, 1), QStringLiteral("2'-6\"     "));
        Key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().simplified(), QStringLiteral("1'-0\" 2'-6\""));
        Key(Qt::Key_F2);
        QApplication::clipboard()->setText(QStringLiteral("3'\n4'"));
        Key(Qt::Key_V, Qt::ControlModifier); // into an open editor
        EXPECT_EQ(Cell("ImperialFlex", 2, 1), QStringLiteral("3'-0\"     "));
        EXPECT_EQ(Cell("ImperialFlex", 3, 1), QStringLiteral("4'-0\"     "));
        Key(Qt::Key_F2);
        Key(Qt::Key_C, Qt::AltModifier);
        // The button first shows that it is pressed.
        EXPECT_TRUE(QTest::qWaitFor([this] { return Cell("ImperialFlex", 2, 1).isEmpty(); }));
        EXPECT_FALSE(In<QLineEdit>("EdiTxt").isVisible());
        Click("ImperialFlex", 1, 1);
        Type("4'");
        Key(Qt::Key_X, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog->isVisible(); }));
    });
    While_Open(program->Form().mnuWtCalc,
               [&] { EXPECT_EQ(Cell("ImperialFlex", 1, 1), QStringLiteral("4'-0\"     ")); });
}

TEST_F(WtCalcsWindowTest, UndoAndTheMenuOfTheRightButton) {
    While_Open(program->Form().mnuWtCalc, [&] {
        Click("ImperialFlex", 1, 1);
        for (const char* length : {"4'", "5'"}) {
            Type(length);
            Key(Qt::Key_Return);
        }
        Key(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Cell("ImperialFlex", 1, 1) + Cell("ImperialFlex", 2, 1).trimmed(), "4'-0\"     ");
        auto& view = In<GridView>("ImperialFlex");
        QTest::mouseClick(view.viewport(), Qt::RightButton, {}, QPoint(9, 9));
        auto& menu = In<QMenu>("ImperialFlexMenu");
        ASSERT_TRUE(menu.isVisible());
        const auto trigger = [&menu](const char* name) {
            auto* const action = menu.findChild<QAction*>(QLatin1String(name));
            EXPECT_TRUE(action->isEnabled()) << name;
            action->trigger();
        };
        trigger("mnuUndo");
        EXPECT_EQ(Cell("ImperialFlex", 1, 1).trimmed(), QString());
        trigger("mnuCopyAll");
        EXPECT_EQ(QApplication::clipboard()->text().count('\t'), 51 * 2);
        menu.close();
        dialog->activateWindow(); // without a desktop nobody else does
        Click("ImperialFlex", 3, 1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return view.hasFocus(); }));
        Key(Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().count('\t'), 50);
        Key(Qt::Key_F, Qt::ControlModifier); // whose Escape leaves the dialog open
        QTest::keyClicks(QApplication::focusWidget(), "7");
        Key(Qt::Key_Escape);
        EXPECT_TRUE(dialog->isVisible() && view.hasFocus());
    });
}

TEST_F(WtCalcsWindowTest, ABillOfMaterialByKeysAlone) {
    While_Open(program->Form().mnuWtCalcA, [&] {
        auto& view = In<GridView>("ImperialFlex");
        view.setFocus();
        for (const char* text : {"w8x10", "12'-6", "w18x50", "2'"}) {
            Type(text);
            Key(Qt::Key_Tab);
        }
        EXPECT_EQ(Cell("ImperialFlex", 1, 1), QStringLiteral("W8x10"));
        EXPECT_EQ(Cell("ImperialFlex", 1, 3), QStringLiteral("120.00     "));
        EXPECT_EQ(Cell("ImperialFlex", 2, 3), QStringLiteral("100.00     "));
        EXPECT_TRUE(view.hasFocus());
        for (int cell = 0; cell < 3; ++cell)
            Key(Qt::Key_Backtab);
        EXPECT_TRUE(In<QLabel>("RemarkLabel").text().startsWith(QStringLiteral("Charged for 12")));
    });
}

TEST_F(WtCalcsWindowTest, ATabThatIsLeftCommitsNothing) {
    While_Open(program->Form().mnuWtCalcA, [&] {
        Click("ImperialFlex", 1, 2);
        Type("12'");
        auto& tabs = In<QTabBar>("SSTab1");
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
        Settle();
        EXPECT_TRUE(In<GridView>("MetricFlex").isVisible());
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
        Settle();
        EXPECT_EQ(Cell("ImperialFlex", 1, 2).trimmed(), QString());
        EXPECT_FALSE(In<QLineEdit>("EdiTxt").isVisible());
    });
}
