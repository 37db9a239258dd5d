// The about box with real keys and clicks.
#include "StandIns.h"
#include "WindowTest.h"
#include "window/pages/AboutDialog.h"

#include <QAction>

using namespace Tensarix;
using namespace Tensarix::Tests;

TEST_F(WindowTest, TheMenuOpensTheAboutBoxAndOKAndEnterCloseIt) {
    const std::function<void(QWidget&)> ways[] = {
        [](QWidget& box) {
            QTest::mouseClick(box.findChild<QPushButton*>("OKButton"), Qt::LeftButton);
        },
        [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); },
    };
    for (const auto& close : ways) {
        bool closed = false;
        QTimer::singleShot(0, &program->Window(), [&] {
            QWidget* const box = QApplication::activeModalWidget();
            ASSERT_TRUE(box);
            close(*box);
            closed = !box->isVisible();
            box->close(); // whatever happened, the test goes on
        });
        Find<QAction>("mnuAbout").trigger();
        EXPECT_TRUE(closed);
    }
}

// Silence comes once, when the box closes and not before.
TEST(AboutDialog, EscapeSilencesTheReading) {
    TestMachine machine;
    Desk desk(machine.Host);
    desk.ReadOut = true;
    AboutFrm about(desk);
    AboutDialog form(about, nullptr);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_EQ(machine.Speech.Spoken.size(), 4u);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    ASSERT_EQ(machine.Speech.Spoken.size(), 5u);
    EXPECT_EQ(machine.Speech.Spoken.back(), "");
}
