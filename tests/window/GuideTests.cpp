// The guide in the program: its window, its chapters, and that it is whole.
#include "WindowTest.h"
#include "window/pages/GuideWindow.h"

#include <QTextBlock>
#include <QTextBrowser>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct GuideTest : WindowTest {
    GuideWindow& Guide() { return Find<GuideWindow>("GuideWindow"); }
    QTextBrowser& Text() { return *Guide().findChild<QTextBrowser*>(); }
    // What stands at the top of what shows.
    QString Top_Line() {
        Settle();
        return Text().cursorForPosition({4, 4}).block().text();
    }
};

} // namespace

TEST_F(GuideTest, F1OpensTheChapterOfThePage) {
    const std::tuple<int, int, const char*> pages[] = {{0, boltTab, "Browse: one section"},
                                                       {1, boltTab, "Find: sections by a property"},
                                                       {2, boltTab, "View All: a whole family"},
                                                       {3, boltTab, "Beam load"},
                                                       {4, boltTab, "Bolt groups"},
                                                       {4, weldTab, "Weld groups"}};
    for (const auto& [mode, tab, chapter] : pages) {
        program->Window().activateWindow();
        program->Form().OptButton[static_cast<std::size_t>(mode)].Select();
        program->Form().Design.DesignSSTab.Select(tab);
        Settle();
        QTest::keyClick(&program->Window(), Qt::Key_F1);
        Settle();
        ASSERT_TRUE(Guide().isVisible());
        EXPECT_EQ(Top_Line(), chapter);
    }
}

TEST_F(GuideTest, OfADialogItCanBeUsed) {
    bool done = false;
    const auto isOpen = [] {
        QWidget* const focus = QApplication::focusWidget();
        return focus && focus->window() == QApplication::activeModalWidget();
    };
    When(isOpen, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        QTest::keyClick(dialog->findChild<QComboBox*>("ShapeType"), Qt::Key_F1);
        auto* guide = dialog->findChild<GuideWindow*>();
        ASSERT_TRUE(guide);
        EXPECT_TRUE(QTest::qWaitForWindowActive(guide));
        QTest::keyClicks(guide->findChild<QLineEdit*>(), "12'-6\"");
        EXPECT_FALSE(guide->findChild<QTextBrowser*>()->textCursor().selectedText().isEmpty());
        done = true;
        dialog->close();
    });
    program->Form().mnuWtCalcA.Click();
    EXPECT_TRUE(done);
}

TEST_F(GuideTest, SearchGoesRoundAndLinksLead) {
    program->Form().mnuGuide.Click();
    auto& box = *Guide().findChild<QLineEdit*>("SearchBox");
    QTest::keyClicks(&box, "Invalid Distance Input");
    const int first = Text().textCursor().position();
    EXPECT_TRUE(Text().textCursor().hasSelection());
    EXPECT_EQ(Guide().findChild<QLabel*>("PlacesLabel")->text(), "1 place");
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(Text().textCursor().position(), first); // round to the same
    emit Text().anchorClicked(QUrl(QStringLiteral("validation.md#weld-groups")));
    EXPECT_EQ(Top_Line(), "Weld groups");
    EXPECT_TRUE(Text().toPlainText().startsWith("What the numbers were held"))
        << qPrintable(Top_Line());
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_FALSE(Guide().isVisible());
}

// Every link leads somewhere, every picture is there and no wider than the window.
TEST_F(GuideTest, LinksAndPicturesHold) {
    program->Form().mnuGuide.Click();
    int pictures = 0;
    std::vector<QUrl> links;
    for (QTextBlock block = Text().document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isAnchor())
                links.emplace_back(format.anchorHref());
            if (format.isImageFormat()) {
                ++pictures;
                const QTextImageFormat image = format.toImageFormat();
                EXPECT_TRUE(
                    QFile::exists(QStringLiteral(TENSARIX_PROGRAM_DIR "/guide/") + image.name()))
                    << image.name().toStdString();
                EXPECT_LT(image.width(), Text().viewport()->width());
            }
        }
    for (const QUrl& link : links) {
        emit Text().anchorClicked(link);
        EXPECT_TRUE(link.fragment().isEmpty() ||
                    Text().textCursor().block().blockFormat().headingLevel() > 0)
            << link.toString().toStdString();
        EXPECT_FALSE(Text().toPlainText().startsWith("The guide is not"))
            << link.toString().toStdString();
        Text().moveCursor(QTextCursor::End);
    }
    EXPECT_GT(links.size(), 15u);
    EXPECT_GT(pictures, 9);
}
