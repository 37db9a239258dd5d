#include "window/pages/GuideWindow.h"

#include "ui_GuideWindow.h"
#include "window/FittingArea.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimer>

namespace Tensarix {

namespace {

const QString guideFile = QStringLiteral("guide.md");
constexpr int firstCharacters = 100, firstLines = 40;
constexpr int pictureMargin = 24; // at the right of the text

// As links in Markdown name a head: in small letters, without signs, with a dash for a blank.
QString Anchor_Of(const QString& head) {
    QString anchor;
    for (const QChar c : head.toLower())
        if (c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_'))
            anchor += c;
        else if (c == QLatin1Char(' '))
            anchor += QLatin1Char('-');
    return anchor;
}

} // namespace

GuideWindow* GuideWindow::Open(const std::filesystem::path& programFolder, const QString& chapter,
                               QWidget* of) {
    auto* guide = of->findChild<GuideWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!guide)
        guide = new GuideWindow(programFolder, of);
    guide->show();
    guide->raise();
    guide->activateWindow();
    guide->Load(guideFile);
    guide->Show_Chapter(chapter);
    return guide;
}

GuideWindow::GuideWindow(const std::filesystem::path& programFolder, QWidget* parent)
    : QDialog(parent), folder_(QDir(programFolder).filePath(QStringLiteral("guide"))) {
    Ui::GuideWindow ui;
    ui.setupUi(this);
    text_ = ui.GuideText;
    search_ = ui.SearchBox;
    places_ = ui.PlacesLabel;
    text_->setSearchPaths({folder_});
    text_->setOpenLinks(false);
    connect(text_, &QTextBrowser::anchorClicked, this, &GuideWindow::Follow);
    connect(search_, &QLineEdit::textChanged, this, [this] {
        QTextCursor start = text_->textCursor();
        start.setPosition(start.selectionStart());
        text_->setTextCursor(start);
        Search(false);
        Count_Places();
    });
    connect(ui.NextButton, &QPushButton::clicked, this, [this] { Search(false); });
    connect(ui.PreviousButton, &QPushButton::clicked, this, [this] { Search(true); });
    const QSize one(fontMetrics().averageCharWidth(), fontMetrics().lineSpacing());
    Fit_To_Screen(*this, QSize(firstCharacters * one.width(), firstLines * one.height()));
    text_->setFocus();
}

void GuideWindow::Load(const QString& file) {
    if (file_ == file)
        return;
    QFile markdown(QDir(folder_).filePath(file));
    file_ = file;
    if (!markdown.open(QIODevice::ReadOnly)) {
        text_->setPlainText(QStringLiteral("The guide is not beside the program: ") +
                            markdown.fileName());
        return;
    }
    text_->setMarkdown(QString::fromUtf8(markdown.readAll()));
    Fit_Pictures();
    Count_Places();
}

void GuideWindow::Follow(const QUrl& link) {
    Load(link.path().isEmpty() ? file_ : link.path());
    if (!Show_Head(link.fragment(), true))
        text_->verticalScrollBar()->setValue(0);
}

bool GuideWindow::Show_Chapter(const QString& chapter) {
    return Show_Head(chapter, false);
}

bool GuideWindow::Show_Head(const QString& head, bool asAnchor) {
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 ||
            (asAnchor ? Anchor_Of(block.text()) : block.text()) != head)
            continue;
        // From the end backwards, so that the head comes to the top.
        text_->moveCursor(QTextCursor::End);
        text_->setTextCursor(QTextCursor(block));
        const QRect place = text_->cursorRect();
        text_->verticalScrollBar()->setValue(text_->verticalScrollBar()->value() + place.top());
        return true;
    }
    return false;
}

// No wider than the window, nor than they are.
void GuideWindow::Fit_Pictures() {
    const int room = text_->viewport()->width() - pictureMargin;
    QTextCursor cursor(text_->document());
    cursor.beginEditBlock(); // laid out once
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
            if (!picture.isValid())
                continue;
            const QSize size = QImageReader(QDir(folder_).filePath(picture.name())).size();
            const double scale = std::min(1.0, static_cast<double>(room) / size.width());
            picture.setWidth(size.width() * scale);
            picture.setHeight(size.height() * scale);
            cursor.setPosition(part.fragment().position());
            cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
            cursor.setCharFormat(picture);
            break; // each stands alone
        }
    cursor.endEditBlock();
}

void GuideWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    Fit_Pictures();
}

void GuideWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Fit_Pictures();
}

// From the place found before on, and round the end.
void GuideWindow::Search(bool back) {
    const QString wanted = search_->text();
    const QTextDocument::FindFlags way =
        back ? QTextDocument::FindBackward : QTextDocument::FindFlags{};
    if (wanted.isEmpty() || text_->find(wanted, way))
        return;
    const QTextCursor before = text_->textCursor();
    text_->moveCursor(back ? QTextCursor::End : QTextCursor::Start);
    if (!text_->find(wanted, way))
        text_->setTextCursor(before);
}

void GuideWindow::Count_Places() {
    const QString wanted = search_->text();
    int count = 0;
    for (QTextCursor at = text_->document()->find(wanted); !at.isNull();
         at = text_->document()->find(wanted, at))
        ++count;
    places_->setText(wanted.isEmpty() ? QString()
                     : count == 1     ? QStringLiteral("1 place")
                                      : QStringLiteral("%1 places").arg(count));
}

} // namespace Tensarix
