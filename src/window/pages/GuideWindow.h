// The user's guide in a window of its own: the Markdown file and its pictures from the folder
// "guide" beside the program, with search.
#pragma once

#include <QDialog>
#include <QUrl>

#include <filesystem>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace Tensarix {

class GuideWindow final : public QDialog {
    Q_OBJECT

  public:
    // Opens the guide at the chapter with this head, or its beginning for none. A window has one
    // guide: one that is open comes to the front. The guide of a modal dialog is its own, since
    // nothing else can be used while it is open.
    static GuideWindow* Open(const std::filesystem::path& programFolder, const QString& chapter,
                             QWidget* of);

    // Goes to the chapter; false if there is none with this head.
    bool Show_Chapter(const QString& chapter);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    GuideWindow(const std::filesystem::path& programFolder, QWidget* parent);
    void Load(const QString& file);
    void Follow(const QUrl& link);
    bool Show_Head(const QString& head, bool asAnchor);
    void Fit_Pictures();
    void Search(bool back);
    void Count_Places();

    QString folder_, file_;
    QTextBrowser* text_;
    QLineEdit* search_;
    QLabel* places_;
};

} // namespace Tensarix
