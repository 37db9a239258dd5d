// Drives the real program through its screens without a display and saves a picture of each:
//   picture_tour FOLDER
// The user's own settings and data are left alone.
#include "window/AboutForm.h"
#include "window/Program.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>

#include <functional>

namespace {

using namespace Tensarix;

constexpr QSize pictureSize{1240, 700};

class Tour {
  public:
    Tour(Program& program, const QString& folder) : program_(program), folder_(folder) {}

    void Take(const QString& name, QWidget& widget) {
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

    void About(const QString& suffix) {
        AboutFrm about(program_.Form().Shared);
        AboutForm form(about, &program_.Window());
        form.show();
        Take(QStringLiteral("about") + suffix, form);
    }

    bool Failed() const { return failed_; }

  private:
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

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        QTextStream(stderr) << "usage: picture_tour FOLDER\n";
        return 2;
    }
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Program::Prepare_Application();
    Program program({Program_Folders().Program, home.path().toStdString()});
    if (!program.Start())
        return 1;
    program.Window().resize(pictureSize);
    Tour tour(program, QString::fromLocal8Bit(argv[1]));
    tour.Browse({});
    tour.Browse_Units();
    tour.About({});
    QApplication::setPalette(Dark_Palette());
    tour.Browse(QStringLiteral("-dark"));
    tour.About(QStringLiteral("-dark"));
    program.Window().close();
    return tour.Failed() ? 1 : 0;
}
