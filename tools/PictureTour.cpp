// Drives the real program through its screens without a display and saves a picture of each, light
// and dark:
//   picture_tour [--font-size POINTS] [--window WIDTHxHEIGHT] FOLDER
// The environment's QT_SCALE_FACTOR is the screen's. The user's own settings and data are left
// alone. The same program makes the same pictures.
#include "EveryScreen.h"
#include "window/To_Qt.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPalette>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

using namespace Tensarix;

// The time that a search shows is the same in every picture.
class StillClock final : public Clock {
  public:
    double Seconds() override { return 0; }
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

// "find, note" is find-note.png.
QString File_Name(const std::string& screen, const QString& suffix) {
    static const QRegularExpression between(QStringLiteral("[^A-Za-z0-9]+"));
    const QStringList words = To_Qt(screen).split(between, Qt::SkipEmptyParts);
    return words.join(QLatin1Char('-')) + suffix + QStringLiteral(".png");
}

// With a home of its own, so that every tour starts as the first.
bool Take_Pictures(const Wishes& wishes, const QString& suffix) {
    const QTemporaryDir home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "LOCALAPPDATA"})
        qputenv(name, home.path().toLocal8Bit());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    Program program({Program_Folders().Program, home.path().toStdString()},
                    std::make_unique<StillClock>());
    if (!program.Start())
        return false;
    program.Window().resize(wishes.Window);
    QStringList faults;
    const auto take = [&](const std::string& screen, QWidget& top) {
        const QString path = wishes.Folder + QLatin1Char('/') + File_Name(screen, suffix);
        if (!top.grab().save(path))
            faults.append(path);
        QTextStream(stdout) << path << '\n';
    };
    for (const std::string& fault : For_Each_Screen(program, take))
        faults.append(To_Qt(fault));
    program.Window().close();
    for (const QString& fault : faults)
        QTextStream(stderr) << fault << '\n';
    return faults.isEmpty();
}

} // namespace

int main(int argc, char** argv) {
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
    QApplication::setCursorFlashTime(0); // the caret is always there
    Program::Prepare_Application();
    const bool light = Take_Pictures(wishes, {});
    QApplication::setPalette(Dark_Palette());
    return Take_Pictures(wishes, QStringLiteral("-dark")) && light ? 0 : 1;
}
