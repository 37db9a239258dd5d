// The scientific calculator with real keys and clicks.
#include "Kept.h"
#include "Looks.h"
#include "StandIns.h"
#include "WindowTest.h"
#include "calculator/CalcConstants.h"
#include "window/calculator/CalcHelpDialog.h"
#include "window/calculator/CalcWindow.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

QWidget* Modal() {
    return QApplication::activeModalWidget();
}

// What is done in a modal dialog as soon as the next one is open. The dialog is closed behind it.
void In_Next_Dialog(const std::function<void(QWidget&)>& work) {
    QWidget* const below = Modal();
    QTimer::singleShot(0, qApp, [work, below] {
        QWidget* const dialog = Modal();
        if (!dialog || dialog == below) {
            ADD_FAILURE() << "no dialog has opened";
            return;
        }
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }));
        work(*dialog);
        dialog->close();
    });
}

class CalcWindowTest : public WindowTest {
  protected:
    // Opens the calculator from the menu, does the work in it and closes it.
    void Calculate(const std::function<void(QWidget&)>& work) {
        In_Next_Dialog(work);
        Find<QAction>("mnuCalc").trigger();
    }
    static void Type(QWidget& calculator, const char* keys) {
        QTest::keyClicks(&calculator, QLatin1String(keys));
    }
    static void Click(QWidget& calculator, const char* key) {
        QTest::mouseClick(&Of<QAbstractButton>(calculator, key), Qt::LeftButton);
    }
    static std::string Display(QWidget& calculator) {
        return (Of<QLabel>(calculator, "DisplayBox").text() +
                Of<QLabel>(calculator, "ExpoBox").text())
            .toStdString();
    }
};

} // namespace

TEST_F(CalcWindowTest, KeyboardAndClicksCalculateTheSame) {
    Calculate([](QWidget& calculator) {
        Type(calculator, "1+2");
        QTest::keyClick(&calculator, Qt::Key_Return);
        EXPECT_EQ(Display(calculator), "3.");
        EXPECT_TRUE(Of<CalcKeyButton>(calculator, "key_equal").Is_Lit());
        for (const char* key : {"key_AC", "key_1", "key_plus", "key_2", "key_equal"})
            Click(calculator, key);
        EXPECT_EQ(Display(calculator), "3.");
    });
}

TEST_F(CalcWindowTest, ARemarkStandsUnderTheNumberUntilTheNextKey) {
    Calculate([](QWidget& calculator) {
        auto& remark = Of<QLabel>(calculator, "PanelRemark");
        const QSize size = calculator.size();
        Type(calculator, "1+3^2*4=");
        EXPECT_EQ(Display(calculator), "40.");
        EXPECT_EQ(remark.text(), "By operator priority: 37");
        EXPECT_EQ(remark.toolTip(), remark.text());
        EXPECT_TRUE(remark.autoFillBackground());
        EXPECT_EQ(remark.accessibleDescription(), "Caution on the number shown");
        Settle();
        EXPECT_GE(remark.height(), remark.fontMetrics().height());
        EXPECT_EQ(calculator.size(), size);
        Type(calculator, "5+7");
        EXPECT_EQ(remark.text(), "");
        EXPECT_FALSE(remark.autoFillBackground());
        EXPECT_EQ(Of<QLabel>(calculator, "WaitingLab").text(), "5 +");
    });
}

TEST_F(CalcWindowTest, ComesBackInItsLastSize) {
    QSize last;
    Calculate([&last](QWidget& calculator) {
        last = calculator.size() + QSize(40, 30);
        calculator.resize(last);
    });
    Stop();
    Start();
    Calculate([last](QWidget& calculator) { EXPECT_EQ(calculator.size(), last); });
}

TEST_F(CalcWindowTest, TypedKeys) {
    struct {
        const char* Typed;
        std::vector<Qt::Key> Then;
        const char* Shown;
    } const cases[] = {
        {"2^10=", {}, "1024."},
        {"12*3/4-1=", {}, "8."},
        {"1.5e3", {}, "1.5 03"},
        {"1234", {Qt::Key_Backspace}, "123."},
        {"5+7", {Qt::Key_Escape}, "0."},
        {"9r", {}, "3."},
        {"p", {}, "3.14159265358979"},
        {"7n", {}, "-7."},
        {"6/4", {Qt::Key_Enter, Qt::Key_Delete}, "0."},
    };
    Calculate([&](QWidget& calculator) {
        for (const auto& each : cases) {
            QTest::keyClick(&calculator, Qt::Key_Delete);
            Type(calculator, each.Typed);
            for (const Qt::Key key : each.Then)
                QTest::keyClick(&calculator, key);
            EXPECT_EQ(Display(calculator), each.Shown) << each.Typed;
        }
    });
}

TEST_F(CalcWindowTest, TheNumberPadsSeparatorIsAPoint) {
    Calculate([](QWidget& calculator) {
        Type(calculator, "2");
        QTest::sendKeyEvent(QTest::Click, &calculator, Qt::Key_Comma, QStringLiteral(","),
                            Qt::KeypadModifier);
        Type(calculator, "5");
        QTest::keyClick(&calculator, Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(Display(calculator), "2.5");
    });
}

TEST_F(CalcWindowTest, KeysLookAsTheyAre) {
    std::string text;
    Calculate([&text](QWidget& calculator) {
        for (const QRgb window : {0xEFEFEFU, 0x2B2F33U})
            for (const char* name :
                 {"key_7", "key_plus", "key_equal", "key_AC", "key_Sin", "key_Mr", "HelpButton"}) {
                auto& key = Of<CalcKeyButton>(calculator, name);
                key.setPalette({QColor(window), QColor(window)});
                const auto look = [&](const char* state) {
                    text += std::string(name) + " " + state +
                            Main_Colours(key.grab().toImage(), key.rect()).toStdString() + "\n";
                };
                look("at rest");
                key.setAttribute(Qt::WA_UnderMouse);
                look("pointed at");
                key.setDown(true);
                look("pressed");
                key.setDown(false);
                key.setEnabled(false);
                look("disabled");
                key.setEnabled(true);
            }
    });
#ifndef _WIN32 // where the letters, and so the keys, are of other sizes
    Expect_As_Kept("keys.txt", text);
#endif
}

TEST_F(CalcWindowTest, TabAndSpacePressKeysAndEnterStaysEquals) {
    Calculate([](QWidget& calculator) {
        auto& seven = Of<CalcKeyButton>(calculator, "key_7");
        for (int i = 0; i < 60 && !seven.hasFocus(); ++i)
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &calculator,
                            Qt::Key_Tab);
        ASSERT_TRUE(seven.hasFocus());
        QTest::keyClick(&seven, Qt::Key_Space);
        QTest::keyClicks(&seven, QStringLiteral("*6"));
        QTest::keyClick(&seven, Qt::Key_Return);
        EXPECT_EQ(Display(calculator), "42.");
        auto& pages = Of<QTabWidget>(calculator, "MultiPage1");
        pages.setCurrentIndex(3);
        auto& option = Of<QRadioButton>(calculator, "ScnButton");
        QTest::mouseClick(&option, Qt::LeftButton, {}, {8, option.height() / 2});
        EXPECT_EQ(Display(calculator), "4.20 01");
        EXPECT_TRUE(Of<QComboBox>(calculator, "PrecBox").isEnabled());
        auto& decimals = Of<QComboBox>(calculator, "PrecBox");
        for (QWidget* focused :
             {static_cast<QWidget*>(&option), static_cast<QWidget*>(&decimals)}) {
            focused->setFocus();
            QTest::keyClicks(focused, QStringLiteral("+4"));
            QTest::keyClick(focused, Qt::Key_Return);
        }
        EXPECT_EQ(Display(calculator), "5.00 01");
        QTest::keyClick(&decimals, Qt::Key_Up);
        EXPECT_EQ(Display(calculator), "5.0 01");
    });
}

TEST_F(CalcWindowTest, ATypedFunctionBringsItsPageToTheFront) {
    Calculate([](QWidget& calculator) {
        Type(calculator, "30s");
        EXPECT_EQ(Display(calculator), "0.5");
        EXPECT_EQ(Of<QTabWidget>(calculator, "MultiPage1").currentIndex(), 1);
        EXPECT_TRUE(Of<CalcKeyButton>(calculator, "key_Sin").Is_Lit());
    });
}

// A hidden list that changed would be told to a screen reader.
TEST_F(CalcWindowTest, TheListOfDecimalsChangesOnlyInSight) {
    Calculate([](QWidget& calculator) {
        auto& decimals = Of<QComboBox>(calculator, "PrecBox");
        int changes = 0;
        QObject::connect(&decimals, &QComboBox::currentIndexChanged, [&changes] { ++changes; });
        EXPECT_EQ(decimals.currentIndex(), -1);
        dynamic_cast<CalcWindow&>(calculator).Press_Key("FxnButton");
        EXPECT_EQ(Display(calculator), "0.00");
        EXPECT_EQ(changes, 0);
        Of<QTabWidget>(calculator, "MultiPage1").setCurrentIndex(3);
        EXPECT_EQ(decimals.currentIndex(), 2);
        EXPECT_TRUE(decimals.isEnabled());
    });
}

TEST_F(CalcWindowTest, AResultOfBeforeGoesIntoTheDisplay) {
    Calculate([](QWidget& calculator) {
        Type(calculator, "5+3*7=1/4=2*");
        QTest::keyClick(&calculator, Qt::Key_L, Qt::ControlModifier);
        auto& list = Of<QListWidget>(calculator, "ResultBox");
        ASSERT_EQ(list.count(), 2);
        EXPECT_EQ(list.item(1)->text(), "5 + 3 × 7 = 26");
        list.setCurrentRow(1);
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_EQ(Display(calculator), "26.");
        QTest::keySequence(&list, QKeySequence::Copy);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "26");
        Type(calculator, "=");
        EXPECT_EQ(Display(calculator), "52.");
        EXPECT_EQ(list.item(0)->text(), "2 × 26 = 52");
        EXPECT_EQ(list.currentRow(), 2);
        Click(calculator, "ResultsButton");
        Settle();
        EXPECT_EQ(calculator.findChild<QListWidget*>(QStringLiteral("ResultBox")), nullptr);
    });
}

TEST_F(CalcWindowTest, AnErrorLatchesUntilAllClear) {
    Calculate([](QWidget& calculator) {
        Type(calculator, "1/0=");
        EXPECT_EQ(Display(calculator), "*Divide by Zero*");
        Type(calculator, "5");
        QTest::keyClick(&calculator, Qt::Key_Escape);
        EXPECT_EQ(Display(calculator), "*Divide by Zero*");
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        QTest::keySequence(&calculator, QKeySequence::Copy);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
        QTest::keyClick(&calculator, Qt::Key_Delete);
        EXPECT_EQ(Display(calculator), "0.");
    });
}

TEST_F(CalcWindowTest, CopyAndPaste) {
    Calculate([](QWidget& calculator) {
        Type(calculator, "1.5e3n=");
        QTest::keySequence(&calculator, QKeySequence::Copy);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "0.0015");
        QGuiApplication::clipboard()->setText(QStringLiteral(" -12.25\n"));
        QTest::keySequence(&calculator, QKeySequence::Paste);
        Type(calculator, "*2=");
        EXPECT_EQ(Display(calculator), "-24.5");
        QGuiApplication::clipboard()->setText(QStringLiteral("12 ft"));
        QTest::keySequence(&calculator, QKeySequence::Paste);
        EXPECT_EQ(Display(calculator), "-24.5");
    });
}

TEST_F(CalcWindowTest, ReopeningKeepsTheStateAndARestartTheMemories) {
    Calculate([](QWidget& calculator) {
        Type(calculator, "2+3*");
        Click(calculator, "ExitButton");
        EXPECT_FALSE(calculator.isVisible());
    });
    const QString registers = home.filePath(QStringLiteral("CalcMem.mem"));
    EXPECT_EQ(QFileInfo(registers).size(), 100 * 10);
    EXPECT_TRUE(QFileInfo::exists(home.filePath(QStringLiteral("SdfInput.sdf"))));
    Calculate([](QWidget& calculator) {
        EXPECT_EQ(Display(calculator), "3.");
        Type(calculator, "4=");
        EXPECT_EQ(Display(calculator), "14.");
        Of<QTabWidget>(calculator, "MultiPage1").setCurrentIndex(2);
        Click(calculator, "key_Min");
        EXPECT_EQ(Of<QLabel>(calculator, "Mem_Indicator").text(), "MEM");
    });
    Stop();
    Start();
    Calculate([](QWidget& calculator) {
        EXPECT_EQ(Display(calculator), "0.");
        EXPECT_EQ(Of<QLabel>(calculator, "Mem_Indicator").text(), "MEM");
        Type(calculator, "m");
        EXPECT_EQ(Display(calculator), "14.");
    });
}

TEST_F(CalcWindowTest, ARegisterIsSavedOverwrittenAfterAQuestionAndRecalled) {
    Calculate([](QWidget& calculator) {
        Of<QTabWidget>(calculator, "MultiPage1").setCurrentIndex(2);
        Type(calculator, "12.5");
        In_Next_Dialog([](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Memory IN");
            auto& rows = Of<QTreeWidget>(dialog, "ItemBox");
            EXPECT_FALSE(Of<QPushButton>(dialog, "OKButton").isEnabled());
            rows.setCurrentItem(rows.topLevelItem(2));
            EXPECT_EQ(rows.topLevelItem(2)->text(1), "=   12.5");
            auto& description = Of<QLineEdit>(dialog, "DescBox");
            description.selectAll();
            QTest::keyClicks(&description, QStringLiteral("pitch"));
            QTest::keyClick(&description, Qt::Key_Return);
            EXPECT_FALSE(dialog.isVisible());
        });
        Click(calculator, "key_Kin");
        QTest::keyClick(&calculator, Qt::Key_Delete);
        In_Next_Dialog([](QWidget& dialog) {
            auto& rows = Of<QTreeWidget>(dialog, "ItemBox");
            rows.setCurrentItem(rows.topLevelItem(2));
            EXPECT_EQ(Of<QLineEdit>(dialog, "DescBox").text(), "pitch");
            In_Next_Dialog([](QWidget& question) {
                auto& box = dynamic_cast<QMessageBox&>(question);
                EXPECT_EQ(box.text(), "Do you wish to OVERWRITE Reg-03 ?");
                box.button(QMessageBox::No)->click();
            });
            Of<QPushButton>(dialog, "OKButton").click();
            EXPECT_TRUE(dialog.isVisible());
        });
        Click(calculator, "key_Mplus");
        In_Next_Dialog([](QWidget& dialog) {
            auto& rows = Of<QTreeWidget>(dialog, "ItemBox");
            EXPECT_TRUE(Of<QLineEdit>(dialog, "DescBox").isReadOnly());
            const QPoint third = rows.visualItemRect(rows.topLevelItem(2)).center();
            QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, third);
            QTest::mouseDClick(rows.viewport(), Qt::LeftButton, {}, third);
            EXPECT_FALSE(dialog.isVisible());
        });
        Click(calculator, "key_Kout");
        EXPECT_EQ(Display(calculator), "12.5");
    });
}

TEST_F(CalcWindowTest, DataAreDeletedByRows) {
    Calculate([](QWidget& calculator) {
        Of<QTabWidget>(calculator, "MultiPage1").setCurrentIndex(2);
        for (const char* number : {"2", "4", "9"}) {
            Type(calculator, number);
            Click(calculator, "key_Data");
        }
        In_Next_Dialog([](QWidget& dialog) {
            auto& rows = Of<QTreeWidget>(dialog, "ItemBox");
            ASSERT_EQ(rows.topLevelItemCount(), 3);
            auto& remove = Of<QPushButton>(dialog, "DeleteButton");
            EXPECT_FALSE(remove.isEnabled());
            rows.topLevelItem(1)->setSelected(true);
            EXPECT_TRUE(remove.isEnabled());
            In_Next_Dialog([](QWidget& question) {
                dynamic_cast<QMessageBox&>(question).button(QMessageBox::Yes)->click();
            });
            remove.click();
            ASSERT_EQ(rows.topLevelItemCount(), 2);
            EXPECT_EQ(rows.topLevelItem(1)->text(1), "=    9");
        });
        Click(calculator, "key_Del");
        Click(calculator, "key_Dts");
        EXPECT_EQ(Display(calculator), "11.");
    });
}

TEST_F(CalcWindowTest, AConstantIsPutOnTheDisplay) {
    Calculate([](QWidget& calculator) {
        Type(calculator, "2*");
        In_Next_Dialog([](QWidget& dialog) {
            EXPECT_FALSE(Of<QPushButton>(dialog, "OKButton").isEnabled());
            auto& rows = Of<QListWidget>(dialog, "ConstantBox");
            QTest::keyClick(&rows, Qt::Key_Down);
            rows.setCurrentRow(0);
            EXPECT_EQ(Of<QLabel>(dialog, "ConstLab").text(), "Constant No. 001");
            EXPECT_EQ(Of<QLabel>(dialog, "OriginLab").text(), "AISC 360-05 (2005): nominal");
            QTest::keyClick(&rows, Qt::Key_Return);
            EXPECT_FALSE(dialog.isVisible());
        });
        Click(calculator, "key_Cnst");
        Type(calculator, "=");
        EXPECT_EQ(Display(calculator), "58000.");
        In_Next_Dialog([](QWidget& dialog) {
            Of<QListWidget>(dialog, "ConstantBox").setCurrentRow(1);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        Click(calculator, "key_Cnst");
        EXPECT_EQ(Display(calculator), "58000.");
    });
}

// Any key ends the clock; so does closing, without a rest.
TEST_F(CalcWindowTest, TheClockEndsWithAKeyAndWithTheCalculator) {
    bool ended = false;
    Calculate([&](QWidget& calculator) {
        Of<QTabWidget>(calculator, "MultiPage1").setCurrentIndex(3);
        Type(calculator, "12");
        const auto runs = [&] {
            return Of<QLabel>(calculator, "DisplayBox").text().endsWith(QLatin1Char('M'));
        };
        When(runs, [&] {
            EXPECT_FALSE(Of<QLabel>(calculator, "DateBox").text().isEmpty());
            QTest::keyClick(&calculator, Qt::Key_7);
        });
        Click(calculator, "key_Time"); // returns when the clock has ended
        EXPECT_EQ(Display(calculator), "12.");
        EXPECT_EQ(Of<QLabel>(calculator, "DateBox").text(), "");
        When(runs, [&] { calculator.close(); });
        Click(calculator, "key_Time");
        ended = !calculator.isVisible();
    });
    EXPECT_TRUE(ended);
}

TEST_F(CalcWindowTest, HelpOpensWithItsTopics) {
    Calculate([](QWidget& calculator) {
        In_Next_Dialog([](QWidget& dialog) {
            auto& topics = Of<QListWidget>(dialog, "MenuBox");
            auto& text = Of<QPlainTextEdit>(dialog, "HBox");
            EXPECT_EQ(topics.count(), 8);
            EXPECT_EQ(text.toPlainText(), "Select a menu option to see a brief description.");
            QTest::mouseClick(topics.viewport(), Qt::LeftButton, {},
                              topics.visualItemRect(topics.item(5)).center());
            EXPECT_TRUE(text.toPlainText().startsWith("Pick any of the numeric keys"));
            EXPECT_TRUE(text.hasFocus());
            EXPECT_EQ(text.textCursor().position(), 0);
            Click(dialog, "ExitButton");
            EXPECT_FALSE(dialog.isVisible());
        });
        QTest::keyClick(&calculator, Qt::Key_F1);
    });
}

TEST(CalcHelpDialog, TheSpokenWordIsMarkedAndClosingSilences) {
    TestMachine machine;
    Desk desk(machine.Host);
    CalcVariables vars;
    CalcWindow form(desk, vars, nullptr);
    for (const bool aloud : {true, false}) {
        desk.ReadOut = aloud;
        machine.Speech.Spoken.clear();
        In_Next_Dialog([&](QWidget& dialog) {
            Of<QListWidget>(dialog, "MenuBox").setCurrentRow(0);
            EXPECT_EQ(machine.Speech.Spoken.empty(), !aloud);
            if (!aloud)
                return;
            const std::string spoken = machine.Speech.Spoken.back();
            const std::size_t word = spoken.find("calculator", spoken.find(" :::: "));
            ASSERT_NE(word, std::string::npos);
            machine.Speech.OnWord(word, 10);
            EXPECT_EQ(Of<QPlainTextEdit>(dialog, "HBox").textCursor().selectedText(), "calculator");
        });
        form.Press_Key("HelpButton");
        EXPECT_FALSE(machine.Speech.OnWord);
        EXPECT_EQ(machine.Speech.Spoken.empty(), !aloud);
        if (aloud) {
            EXPECT_EQ(machine.Speech.Spoken.back(), "");
        }
    }
}
