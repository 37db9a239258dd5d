// What a user waits for on the screen: the start, and a change of section up to the painted grid.
#include "Compare.h"
#include "window/Program.h"
#include "window/calculator/CalcWindow.h"
#include "window/pages/AnySectionDialog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>

namespace {

using namespace Tensarix;

void Start_To_Painted_Window(benchmark::State& state) {
    QTemporaryDir home;
    for (auto _ : state) {
        Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
        program.Start();
        program.Window().grab();
        state.PauseTiming();
        program.Window().close();
        state.ResumeTiming();
    }
}
BENCHMARK(Start_To_Painted_Window)->Unit(benchmark::kMillisecond)->UseRealTime();

void Change_Of_Section_To_Painted_Grid(benchmark::State& state) {
    QTemporaryDir home;
    Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    program.Start();
    ComboBox& sizes = program.Form().Browse.ShapeSizeUS;
    int position = 0;
    Bench::Compare(
        state, "ratio_to_unpainted",
        [&] {
            sizes.Select(++position % sizes.Count());
            QCoreApplication::processEvents(); // takes over the change
            QCoreApplication::processEvents(); // paints it
        },
        [&] { sizes.Select(++position % sizes.Count()); });
    program.Window().close();
}
BENCHMARK(Change_Of_Section_To_Painted_Grid)->Unit(benchmark::kMillisecond)->UseManualTime();

// The same in processor time, of the whole process and of every section of two families: the table
// and the drawing, W as the deepest lists have it and the angles with the most dimensions.
void Change_Of_Section_With_Its_Drawing(benchmark::State& state) {
    QTemporaryDir home;
    Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    program.Start();
    program.Form().Browse.ShapeType.Select(static_cast<int>(state.range(0)));
    ComboBox& sizes = program.Form().Browse.ShapeSizeUS;
    int position = 0;
    for (auto _ : state) {
        sizes.Select(++position % sizes.Count());
        QCoreApplication::processEvents(); // takes over the change
        QCoreApplication::processEvents(); // paints it
    }
    program.Window().close();
}
BENCHMARK(Change_Of_Section_With_Its_Drawing)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Arg(0)
    ->Arg(13);

// A key typed in the field of any section, to the painted list.
void Search_Keystroke_To_Painted_List(benchmark::State& state) {
    QTemporaryDir home;
    Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    program.Start();
    AnySectionFrm field(program.Form().Shared);
    AnySectionDialog dialog(field, &program.Window());
    dialog.show();
    dialog.grab();
    auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("SearchBox"));
    const std::string typed = "hss8x8x1/2";
    std::size_t at = 0;
    for (auto _ : state) {
        if (at == typed.size()) {
            state.PauseTiming();
            box->selectAll();
            at = 0;
            state.ResumeTiming();
        }
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QLatin1Char(typed[at++])));
        QCoreApplication::sendEvent(box, &press);
        QCoreApplication::processEvents(); // takes over the list
        QCoreApplication::processEvents(); // paints it
    }
    program.Window().close();
}
BENCHMARK(Search_Keystroke_To_Painted_List)->Unit(benchmark::kMillisecond);

// The longest family and another one in turn, so that sizes change as well.
void View_All_To_Painted_Grid(benchmark::State& state) {
    QTemporaryDir home;
    Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    program.Start();
    program.Form().OptButton[static_cast<std::size_t>(Mode::ViewAll)].Select();
    ComboBox& families = program.Form().ViewAll.xShapeType;
    const auto showAnother = [&] {
        families.Select(pipeFamily);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    };
    const auto chooseLongest = [&] { families.Select(unEqualDoubleAngleFamily); };
    double painted = 1e9, unpainted = 1e9;
    for (auto _ : state) {
        showAnother();
        const double seconds = Bench::Seconds_Of([&] {
            chooseLongest();
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
        });
        state.SetIterationTime(seconds);
        painted = std::min(painted, seconds);
        showAnother();
        unpainted = std::min(unpainted, Bench::Seconds_Of(chooseLongest));
    }
    state.counters["ratio_to_unpainted"] = painted / unpainted;
    program.Window().close();
}
BENCHMARK(View_All_To_Painted_Grid)->Unit(benchmark::kMillisecond)->UseManualTime();

// The key that sorts the longest family, to the painted table: each of its three orders in turn.
void Sort_Keystroke_To_Painted_Table(benchmark::State& state) {
    QTemporaryDir home;
    Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    program.Start();
    program.Form().OptButton[static_cast<std::size_t>(Mode::ViewAll)].Select();
    program.Form().ViewAll.xShapeType.Select(unEqualDoubleAngleFamily);
    auto* table = program.Window().findChild<QWidget*>(QStringLiteral("xShapeFlex"));
    program.Window().grab();
    for (auto _ : state) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCoreApplication::sendEvent(table, &press);
        QCoreApplication::processEvents(); // takes over the order
        QCoreApplication::processEvents(); // paints it
    }
    program.Window().close();
}
BENCHMARK(Sort_Keystroke_To_Painted_Table)->Unit(benchmark::kMillisecond);

// A typed key of the calculator: computed, lit and painted.
void Calculator_Key_To_Painted_Panel(benchmark::State& state) {
    QTemporaryDir home;
    Program program({TENSARIX_PROGRAM_DIR, home.path().toStdString()});
    program.Start();
    CalcVariables vars;
    CalcWindow form(program.Form().Shared, vars, nullptr);
    form.show();
    form.grab();
    const std::string keys = "12.5*7+3/9=s8-4^2=";
    std::size_t at = 0;
    for (auto _ : state) {
        const QString typed{QLatin1Char(keys[at++ % keys.size()])};
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, typed);
        QCoreApplication::sendEvent(&form, &press);
        benchmark::DoNotOptimize(form.grab()); // all of it, at once
    }
    program.Window().close();
}
BENCHMARK(Calculator_Key_To_Painted_Panel)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    QTemporaryDir home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Program::Prepare_Application();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
