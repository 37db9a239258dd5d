// Real widgets of the real program, without a display. Each test has a home of its own.
#pragma once

#include "window/Program.h"
#include "window/grid/GridView.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace Tensarix::Tests {

// Sets the folders of the user to a fresh one, for this process and those that it starts.
inline void Use_Home(const QString& folder) {
    for (const char* name :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "LOCALAPPDATA"})
        qputenv(name, folder.toLocal8Bit());
}

// The widget of that name.
template <typename Widget>
Widget& Of(const QWidget& parent, const char* name) {
    auto* widget = parent.findChild<Widget*>(QLatin1String(name));
    if (!widget)
        throw std::runtime_error(std::string{"no widget "} + name);
    return *widget;
}

inline void Click_Cell(const GridView& grid, int row, int col) {
    const QPoint at = grid.Cell_Rect(row, col).center();
    QWidget* const pane = grid.childAt(at);
    ASSERT_TRUE(pane) << "scrolled away";
    QTest::mouseClick(pane, Qt::LeftButton, {}, pane->mapFrom(&grid, at));
    QCoreApplication::processEvents();
}

inline void Write_File(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

// Keys go to whatever has the focus, as they do on a desktop.
inline void Type(const char* text) {
    for (; *text; ++text)
        QTest::keyClick(QApplication::focusWidget(), *text);
}
inline void Key(Qt::Key key, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, with);
    QCoreApplication::processEvents();
}

struct HomeTest : testing::Test {
    QTemporaryDir home;
    void SetUp() override { Use_Home(home.path()); }
};

struct WindowTest : HomeTest {
    std::unique_ptr<Program> program;

    void SetUp() override {
        HomeTest::SetUp();
        Start();
    }
    void TearDown() override { Stop(); }

    void Start() {
        program =
            std::make_unique<Program>(Folders{TENSARIX_PROGRAM_DIR, home.path().toStdString()});
        ASSERT_TRUE(program->Start());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&program->Window()));
    }
    void Stop() {
        if (!program)
            return;
        program->Window().close();
        program.reset();
    }

    template <typename Widget>
    Widget& Find(const char* name) { // on any page
        return Of<Widget>(program->Window(), name);
    }
    static void Settle() { QCoreApplication::processEvents(); }
    void To(Mode mode) {
        program->Form().OptButton[static_cast<std::size_t>(mode)].Select();
        Settle();
    }
    // As soon as it holds, inside whatever runs then; never once the program has ended.
    void When(const std::function<bool()>& holds, const std::function<void()>& what) {
        // At 0 it would be of the same turn of the event loop.
        QTimer::singleShot(1, &program->Window(), [=, this] {
            if (holds())
                what();
            else
                When(holds, what);
        });
    }
};

} // namespace Tensarix::Tests
