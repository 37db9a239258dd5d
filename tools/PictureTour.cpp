// Drives the real program through its screens without a display and saves a picture of each:
//   picture_tour [--font-size POINTS] [--window WIDTHxHEIGHT] FOLDER
// The environment's QT_SCALE_FACTOR is the screen's. The user's own settings and data are left
// alone.
#include "window/Program.h"
#include "window/calculator/CalcConstantDialog.h"
#include "window/calculator/CalcDataDialog.h"
#include "window/calculator/CalcHelpDialog.h"
#include "window/calculator/CalcMemoryDialog.h"
#include "window/calculator/CalcWindow.h"
#include "window/grid/GridView.h"
#include "window/pages/AboutDialog.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QEventLoop>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QPalette>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <functional>

namespace {

using namespace Tensarix;

constexpr int layoutTurns = 5; // until page and window have followed a change

class Tour {
  public:
    Tour(Program& program, const QString& folder) : program_(program), folder_(folder) {}

    void Take(const QString& name, QWidget& widget) {
        for (int turn = 0; turn < layoutTurns; ++turn)
            QCoreApplication::processEvents();
        const QString path = folder_ + QLatin1Char('/') + name + QStringLiteral(".png");
        if (!widget.grab().save(path))
            failed_ = true;
        QTextStream(stdout) << path << '\n';
    }

    void Browse(const QString& suffix) {
        BrowsePage& page = program_.Form().Browse;
        for (int family = 0; family < page.ShapeType.Count(); ++family) {
            page.ShapeType.Select(family);
            Take(QStringLiteral("browse-%1%2").arg(family, 2, 10, QLatin1Char('0')).arg(suffix),
                 program_.Window());
        }
        page.ShapeType.Select(0);
    }

    void Browse_Units() {
        BrowsePage& page = program_.Form().Browse;
        page.DimOption2.Select();
        page.ShapeFlex.Move_To(3, 1);
        Take(QStringLiteral("browse-imperial"), program_.Window());
        page.ProfileOption2.Select();
        page.ShapeFlex.Move_To(13, 1);
        Take(QStringLiteral("browse-si"), program_.Window());
        page.ProfileOption1.Select();
        page.DimOption1.Select();
    }

    // The pages, a remark, an error, and the display at its fullest.
    void Calculator(const QString& suffix) {
        CalcVariables vars;
        CalcWindow form(program_.Form().Shared, vars, &program_.Window());
        form.show();
        for (const char* key : {"key_Sqr", "key_Sqrt", "key_1", "key_2", "key_dot", "key_5"})
            form.Press_Key(key);
        auto& pages = *form.findChild<QTabWidget*>();
        for (int page = 0; page < pages.count(); ++page) {
            pages.setCurrentIndex(page);
            Take(QStringLiteral("calculator-%1%2").arg(page + 1).arg(suffix), form);
        }
        for (const char* key : {"key_AC", "key_1", "key_plus", "key_3", "key_Xy", "key_2",
                                "key_multiply", "key_4", "key_equal"})
            form.Press_Key(key);
        Take(QStringLiteral("calculator-remark") + suffix, form);
        for (const char* key : {"key_divide", "key_0", "key_equal"})
            form.Press_Key(key);
        form.findChild<QWidget*>(QStringLiteral("key_AC"))->setFocus();
        Take(QStringLiteral("calculator-error") + suffix, form);
        pages.setCurrentIndex(0);
        form.resize(form.size() * 3 / 2);
        for (const char* key : {"key_AC", "key_6", "key_9", "key_Fact", "key_PM", "key_Min",
                                "key_Rcp", "key_plus", "key_plus"})
            form.Press_Key(key);
        Take(QStringLiteral("calculator-large") + suffix, form);
        Calculator_Dialogs(vars, form, suffix);
        form.close();
    }

    void Calculator_Dialogs(CalcVariables& vars, CalcWindow& form, const QString& suffix) {
        vars.Memory.Registers[2] = {1.75, "Bolt spacing"};
        vars.Statistics.DataList = {2, 4, 4, 4, 5, 5, 7, 9};
        for (const RegisterUse use : {RegisterUse::In, RegisterUse::Delete}) {
            CalcMemoryFrm memory(vars.Memory, use, 12.5, {});
            memory.Select_Row(2);
            CalcMemoryDialog dialog(memory, &form);
            Show_And_Take(QStringLiteral("calculator-memory-%1").arg(int(use)) + suffix, dialog);
        }
        CalcDataFrm data(vars.Statistics, {});
        data.Toggle_Row(3, true);
        CalcDataDialog dataForm(data, &form);
        Show_And_Take(QStringLiteral("calculator-data") + suffix, dataForm);
        CalcConstantFrm constant(vars.Memory);
        CalcConstantDialog constantForm(constant, &form);
        constantForm.findChild<QListWidget*>()->setCurrentRow(4);
        Show_And_Take(QStringLiteral("calculator-constants") + suffix, constantForm);
        CalcHelpFrm help("1.0", false, {});
        CalcHelpDialog helpForm(help, program_.Form().Shared.Host.Speech, &form);
        helpForm.findChild<QListWidget*>()->setCurrentRow(6);
        Show_And_Take(QStringLiteral("calculator-help") + suffix, helpForm);
    }

    void Show_And_Take(const QString& name, QDialog& dialog) {
        dialog.show();
        Take(name, dialog);
        dialog.close();
    }

    void Weights(const QString& suffix) {
        While_Open(program_.Form().mnuWtCalc, [&](QWidget& dialog) {
            Keys(dialog, "ShapeSizeUS", "w18x50");
            Keys(dialog, "ImperialFlex", "12'-6 3/8\t20000'\t6\t5.5'");
            Take(QStringLiteral("weights-1-editing") + suffix, dialog);
            Keys(dialog, "EdiTxt", "\t");
            Take(QStringLiteral("weights-1") + suffix, dialog);
        });
        While_Open(program_.Form().mnuWtCalcA, [&](QWidget& dialog) {
            Keys(dialog, "ImperialFlex", "w8x10\t12'-6\tw18x50\t20'\tw14x90\t6\tw");
            Take(QStringLiteral("weights-2-list") + suffix, dialog);
            Keys(dialog, "ShapeSizeUS", "24x55\t33'-4 1/2");
            Take(QStringLiteral("weights-2-editing") + suffix, dialog);
            Keys(dialog, "EdiTxt", "\t");
            dialog.findChild<QTabBar*>()->setCurrentIndex(1);
            Keys(dialog, "MetricFlex", "w200x15\t2.5\tw460x74\t12.25\t");
            Take(QStringLiteral("weights-2-metric") + suffix, dialog);
        });
    }

    void About(const QString& suffix) {
        AboutFrm about(program_.Form().Shared);
        AboutDialog form(about, &program_.Window());
        form.show();
        Take(QStringLiteral("about") + suffix, form);
    }

    void Find(const QString& suffix) {
        program_.Form().OptButton[1].Select();
        FindPage& page = program_.Form().Find;
        Take(QStringLiteral("find-empty") + suffix, program_.Window());
        page.fPoperty.Select(13);
        page.fCriterion.Select(4);
        page.fValue.Set_Text("500");
        page.FindButton.Click();
        page.fShapeFlex.Press(2, 15);
        Take(QStringLiteral("find-zx") + suffix, program_.Window());
        page.fProfileOption2.Select();
        Take(QStringLiteral("find-si") + suffix, program_.Window());
        page.fProfileOption1.Select();
        page.fShapeType.Select(13);
        page.fPoperty.Select(24);
        Take(QStringLiteral("find-no-column") + suffix, program_.Window());
        page.fShapeType.Select(0);
    }

    void View_All(const QString& suffix) {
        program_.Form().OptButton[2].Select();
        ViewPage& page = program_.Form().ViewAll;
        for (const int family : {0, 4, 10, 12, 16}) {
            page.xShapeType.Select(family);
            page.xShapeFlex.Press(3, 13);
            Take(QStringLiteral("view-%1%2").arg(family, 2, 10, QLatin1Char('0')).arg(suffix),
                 program_.Window());
        }
        page.xDimOption2.Select();
        Take(QStringLiteral("view-imperial") + suffix, program_.Window());
        page.xProfileOption2.Select();
        page.xShapeFlex.Set_Top_Row(200);
        page.xShapeFlex.Set_Left_Col(5);
        Take(QStringLiteral("view-si") + suffix, program_.Window());
        page.xProfileOption1.Select();
        page.xDimOption1.Select();
        program_.Form().OptButton[0].Select();
    }

    // A compact, a noncompact and a channel section; below and above the boundary span.
    void Beam(const QString& suffix) {
        MainFrm& form = program_.Form();
        BeamPage& page = form.Beam;
        form.OptButton[static_cast<std::size_t>(Mode::BeamLoad)].Select();
        page.zShapeFlex.Move_To(13, 1);
        Take(QStringLiteral("beam-9th") + suffix, program_.Window());
        page.AppliedCode.Select(Code13thEdition);
        page.BeamSpanBox.Set_Text("25'-6 1/2\"");
        page.CFactor.Set_Text("15.00");
        Take(QStringLiteral("beam-13th") + suffix, program_.Window());
        page.CodeOpt[1].Select();
        page.zShapeType.Select(FirstChannelFamily);
        Take(QStringLiteral("beam-channel") + suffix, program_.Window());
        page.AppliedCode.Select(Code9thEdition);
        page.zShapeType.Select(1);
        Take(QStringLiteral("beam-m") + suffix, program_.Window());
        page.zShapeType.Select(0);
        form.OptButton[0].Select();
    }

    // Typed in as the user would.
    static void Type_Row(FlexGrid& grid, TextBox& editor, int row, int col,
                         std::initializer_list<const char*> texts, bool down) {
        for (const char* text : texts) {
            grid.Move_To(row, col);
            Run(grid.OnDblClick);
            editor.Set_Text(text);
            editor.OnKeyDown(Keys::Enter);
            (down ? row : col) += 1;
        }
    }

    void Bolts(const QString& suffix) {
        DesignPage& page = program_.Form().Design;
        BoltPage& bolts = page.Bolts;
        program_.Form().OptButton[static_cast<std::size_t>(Mode::Connection)].Select();
        page.DesignSSTab.Select(boltTab);
        Take(QStringLiteral("bolts-before") + suffix, program_.Window());
        const auto type = [&](int row, std::initializer_list<const char*> texts) {
            Type_Row(bolts.cFlex, bolts.EdiTxt, row, 1, texts, false);
        };
        type(1, {"6", "1", "3", "3", "4", "0"});
        type(2, {"6", "2", "3", "3", "6", "0"});
        type(3, {"3", "1", "3", "3", "8", "0"});
        type(4, {"4", "2", "3", "3", "8", "30"});
        bolts.cFlex.Move_To(3, 7);
        Take(QStringLiteral("bolts-after") + suffix, program_.Window());
        QTimer::singleShot(200, [&] {
            bolts.cFlex.Move_To(5, 1);
            Run(bolts.cFlex.OnDblClick);
            Take(QStringLiteral("bolts-during") + suffix, program_.Window());
            bolts.EdiTxt.OnKeyDown(Keys::Escape);
            bolts.cFlex.Move_To(5, 1);
            bolts.cFlex.OnKeyDown(Keys::Delete); // ends the search
        });
        type(5, {"12", "8", "3", "3", "6", "75"});
    }

    void Welds(const QString& suffix) {
        DesignPage& page = program_.Form().Design;
        WeldPage& welds = page.Welds;
        program_.Form().OptButton[static_cast<std::size_t>(Mode::Connection)].Select();
        page.DesignSSTab.Select(weldTab);
        welds.WeldView.Click(5);
        Take(QStringLiteral("weld-before") + suffix, program_.Window());
        Type_Row(welds.WeldFlex, welds.EdiTxtA, 0, 1, {"100", "50", "5", "45"}, true);
        QTimer::singleShot(300, [&] {
            Take(QStringLiteral("weld-during") + suffix, program_.Window());
            welds.StopIterationButton.Click();
        });
        welds.WeldStripBox.Select(3);
        welds.StartIterationButton.Click();
        Wait(300);
        Take(QStringLiteral("weld-stopped") + suffix, program_.Window());
        welds.WeldView.Click(2);
        Type_Row(welds.WeldFlex, welds.EdiTxtA, 0, 1, {"10", "5", "4", "0"}, true);
        welds.WeldStripBox.Select(1);
        welds.StartIterationButton.Click();
        Wait(300);
        Take(QStringLiteral("weld-after") + suffix, program_.Window());
        program_.Form().OptButton[0].Select();
    }

    void Popup() {
        program_.Window().findChild<GridView*>(QStringLiteral("ShapeFlex"))->setFocus();
        FlexGrid& grid = program_.Form().Browse.ShapeFlex;
        grid.Press(3, 1);
        grid.Extend_To(5, 2);
        Run(grid.OnPopup);
        auto* menu = program_.Window().findChild<QMenu*>(QStringLiteral("mnuEdit1"));
        Take(QStringLiteral("popup"), *menu);
        menu->close();
    }

    void Every_Screen(const QString& suffix) {
        Browse(suffix);
        Find(suffix);
        View_All(suffix);
        Beam(suffix);
        About(suffix);
        Calculator(suffix);
        Weights(suffix);
        Bolts(suffix);
        Welds(suffix);
    }

    static void Wait(int milliseconds) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }

    bool Failed() const { return failed_; }

  private:
    // Acts on the dialog that the menu opens, then closes it.
    static void While_Open(const MenuItem& item, const std::function<void(QWidget&)>& act) {
        QTimer::singleShot(0, qApp, [&act] {
            QWidget* dialog = QApplication::activeModalWidget();
            while (!dialog->isActiveWindow())
                QCoreApplication::processEvents();
            act(*dialog);
            dialog->close();
        });
        item.Click();
    }

    // Gives the keys to the named widget, then to whatever has the focus.
    static void Keys(QWidget& dialog, const char* widget, const char* keys) {
        dialog.findChild<QWidget*>(QLatin1String(widget))->setFocus();
        for (; *keys; ++keys) {
            QCoreApplication::processEvents();
            const int key = *keys == '\t' ? Qt::Key_Tab : 0;
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(QLatin1Char(*keys)));
            QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
        }
        QCoreApplication::processEvents();
    }

    Program& program_;
    QString folder_;
    bool failed_ = false;
};

QPalette Dark_Palette() {
    QPalette palette(QColor(0x2b, 0x2f, 0x33), QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x6e, 0xa5));
    return palette;
}

struct Wishes {
    QString Folder;
    int FontSize = 0; // points; 0: the desktop's own
    QSize Window{1240, 700};
};

// False if the arguments make no sense.
bool Read_Arguments(const QStringList& arguments, Wishes& wishes) {
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("font-size"), {}, QStringLiteral("points")},
                       {QStringLiteral("window"), {}, QStringLiteral("size")}});
    if (!parser.parse(arguments) || parser.positionalArguments().size() != 1)
        return false;
    wishes.Folder = parser.positionalArguments().constFirst();
    wishes.FontSize = parser.value(QStringLiteral("font-size")).toInt();
    const QStringList sides = parser.value(QStringLiteral("window")).split(QLatin1Char('x'));
    if (sides.size() == 2)
        wishes.Window = {sides[0].toInt(), sides[1].toInt()};
    return QDir().mkpath(wishes.Folder);
}

} // namespace

int main(int argc, char** argv) {
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Wishes wishes;
    if (!Read_Arguments(QApplication::arguments(), wishes)) {
        QTextStream(stderr)
            << "usage: picture_tour [--font-size POINTS] [--window WIDTHxHEIGHT] FOLDER\n";
        return 2;
    }
    if (wishes.FontSize > 0) {
        QFont font = QApplication::font();
        font.setPointSize(wishes.FontSize);
        QApplication::setFont(font);
    }
    Program::Prepare_Application();
    Program program({Program_Folders().Program, home.path().toStdString()});
    if (!program.Start())
        return 1;
    program.Window().resize(wishes.Window);
    Tour tour(program, wishes.Folder);
    tour.Browse_Units();
    tour.Popup();
    tour.Every_Screen({});
    QApplication::setPalette(Dark_Palette());
    tour.Every_Screen(QStringLiteral("-dark"));
    program.Window().close();
    return tour.Failed() ? 1 : 0;
}
