// Every screen holds at any size of font and window: nothing is cut, nothing lies over its
// neighbour, and every number has a point.
#include "EveryScreen.h"
#include "WindowTest.h"
#include "window/ElidedLabel.h"
#include "window/FittingArea.h"
#include "window/calculator/CalcDigits.h"
#include "window/calculator/CalcKeyButton.h"
#include "window/calculator/CalcWindow.h"
#include "window/grid/GridView.h"
#include "window/pages/ReportView.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>

#include <set>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

constexpr int leastChars = 100; // of a window in which no page scrolls sideways

// The offences of one screen.
class Inspection {
  public:
    Inspection(const std::string& screen, std::set<std::string>& offences, bool largeFont)
        : screen_(screen), offences_(offences), largeFont_(largeFont) {}

    void Look_At(QWidget& top) {
        const QSize room = top.screen()->availableSize();
        if (!qobject_cast<QMainWindow*>(&top) &&
            (top.width() > room.width() || top.height() > room.height()))
            Complain(top, "is larger than the screen", top.size(), room);
        if (auto* menu = qobject_cast<QMenu*>(&top))
            for (const QAction* action : menu->actions())
                Read(*menu, action->text());
        Look_Inside(top);
        // A dialog is as wide as its contents, but with a large font.
        for (const auto* area : top.findChildren<FittingArea*>())
            if (!qobject_cast<QMainWindow*>(&top) && !largeFont_ &&
                area->horizontalScrollBar()->maximum() > 0)
                Complain(*area, "scrolls sideways");
    }

  private:
    void Complain(const QWidget& widget, const char* what, QSize wanted = {}, QSize has = {}) {
        std::string path;
        for (const QWidget* w = &widget; w && path.size() < 60; w = w->parentWidget())
            path = "/" +
                   (w->objectName().isEmpty() ? std::string(w->metaObject()->className())
                                              : w->objectName().toStdString()) +
                   path;
        const auto text = [](QSize size) {
            return std::to_string(size.width()) + "x" + std::to_string(size.height());
        };
        offences_.insert(screen_ + ": " + path + " " + what +
                         (wanted.isValid() ? " " + text(wanted) + ", " + text(has) : ""));
    }
    void Expect_Room(const QWidget& widget, const char* what, QSize wanted, QSize has) {
        if (wanted.width() > has.width() || wanted.height() > has.height())
            Complain(widget, what, wanted, has);
    }
    void Expect_Width(const QWidget& widget, const QString& text, int width) {
        Expect_Room(widget, ("cuts \"" + text.toStdString() + "\"").c_str(),
                    {widget.fontMetrics().horizontalAdvance(text), 0}, {width, 0});
        Read(widget, text);
    }

    // The only commas between digits group the thousands of a weight, before a point, or of a
    // stored value.
    void Read(const QWidget& widget, const QString& text) {
        static const QRegularExpression comma(QStringLiteral("\\d,\\d")),
            weight(QStringLiteral("\\b\\d{1,3}(,\\d{3})+\\.\\d\\d\\b")),
            stored(QStringLiteral("[Ss]tored value: \\d{1,3}(,\\d{3})+\\b"));
        const bool weights = screen_.rfind("weights", 0) == 0;
        if (QString(text).remove(weights ? weight : stored).contains(comma))
            Complain(widget, ("has a comma: " + text.toStdString()).c_str());
    }

    void Look_Inside(const QWidget& widget) {
        Look_At_Text(widget);
        Look_At_List(widget);
        Look_At_Bars(widget);
        const QList<QWidget*> all = widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        QList<QWidget*> shown;
        for (QWidget* child : all)
            if (child->isVisible() && !child->isWindow())
                shown.append(child);
        if (!Places_Itself(widget))
            Look_At_Places(widget, shown);
        for (const QWidget* child : shown)
            Look_Inside(*child);
    }

    // A page scrolls down at the most, the calculator not at all.
    void Look_At_Bars(const QWidget& widget) {
        const auto* area = qobject_cast<const FittingArea*>(&widget);
        if (!area)
            return;
        const QWidget& page = *area->widget();
        const QWidget& window = *page.window();
        const bool wide = window.width() >= leastChars * window.fontMetrics().averageCharWidth();
        if (qobject_cast<const QMainWindow*>(&window) && wide &&
            area->horizontalScrollBar()->isVisible())
            Complain(page, "scrolls sideways", page.minimumSizeHint(), area->viewport()->size());
        if (qobject_cast<const CalcWindow*>(widget.parentWidget()) &&
            area->verticalScrollBar()->isVisible())
            Complain(page, "scrolls", page.minimumSizeHint(), area->viewport()->size());
    }

    // The toolkit lays the parts of these over one another or scrolls them.
    static bool Places_Itself(const QWidget& widget) {
        return qobject_cast<const QAbstractScrollArea*>(&widget) ||
               qobject_cast<const QAbstractScrollArea*>(widget.parentWidget()) ||
               qobject_cast<const QTabWidget*>(&widget) || qobject_cast<const QTabBar*>(&widget);
    }

    void Look_At_Places(const QWidget& parent, const QList<QWidget*>& shown) {
        for (const QWidget* child : shown) {
            if (!parent.rect().contains(child->geometry()))
                Complain(*child, "reaches out of its parent", child->size(), parent.size());
            for (const QWidget* other : shown)
                if (child < other && child->geometry().intersects(other->geometry()))
                    Complain(*child, ("lies over " + other->objectName().toStdString()).c_str());
        }
    }

    void Look_At_Text(const QWidget& widget) {
        if (auto* label = qobject_cast<const QLabel*>(&widget))
            Look_At_Label(*label);
        else if (auto* key = qobject_cast<const CalcKeyButton*>(&widget))
            Expect_Room(*key, "is too small", key->minimumSizeHint(), key->size());
        else if (auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            Read(*button, button->text());
            Expect_Room(*button, "is too small", button->sizeHint(), button->size());
        } else if (auto* list = qobject_cast<const QComboBox*>(&widget)) {
            QStyleOptionComboBox option;
            option.initFrom(list);
            option.editable = list->isEditable();
            Expect_Width(*list, list->currentText(),
                         list->style()
                             ->subControlRect(QStyle::CC_ComboBox, &option,
                                              QStyle::SC_ComboBoxEditField, list)
                             .width());
            for (int item = 0; item < list->count(); ++item)
                Read(*list, list->itemText(item));
        } else if (auto* line = qobject_cast<const QLineEdit*>(&widget))
            Expect_Width(*line, line->text(), line->width() - Line_Frame(*line));
        else if (auto* box = qobject_cast<const QGroupBox*>(&widget))
            Expect_Width(*box, box->title(), box->width());
        else if (auto* tabs = qobject_cast<const QTabBar*>(&widget))
            for (int tab = 0; tab < tabs->count(); ++tab) {
                Expect_Width(*tabs, tabs->tabText(tab).remove(QLatin1Char('&')),
                             (tabs->tabRect(tab) & tabs->rect()).width());
            }
    }

    static int Line_Frame(const QLineEdit& line) {
        const int frame =
            line.hasFrame() ? line.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
        constexpr int margin = 2; // the toolkit's, beside the text
        return 2 * (frame + margin);
    }

    void Look_At_Label(const QLabel& label) {
        Read(label, label.text());
        // The one tells by an ellipsis that it is cut, the other is as large as it has room for.
        if (qobject_cast<const ElidedLabel*>(&label) || dynamic_cast<const CalcDigits*>(&label) ||
            label.text().isEmpty())
            return;
        if (label.wordWrap())
            Expect_Room(label, "is cut", {0, label.heightForWidth(label.width())}, label.size());
        else
            Expect_Room(label, "is cut", label.sizeHint(), label.size());
    }

    void Look_At_List(const QWidget& widget) {
        if (auto* grid = qobject_cast<const GridView*>(&widget))
            Look_At_Grid(*grid);
        else if (auto* list = qobject_cast<const QListWidget*>(&widget)) {
            Expect_Room(*list, "cuts its items", {list->sizeHintForColumn(0), 0},
                        {list->viewport()->width(), 0});
            for (int row = 0; row < list->count(); ++row)
                Read(*list, list->item(row)->text());
        } else if (auto* tree = qobject_cast<const QTreeWidget*>(&widget)) {
            for (int row = 0; row < tree->topLevelItemCount(); ++row)
                for (int col = 0; col < tree->columnCount(); ++col) {
                    const QString text = tree->topLevelItem(row)->text(col);
                    Expect_Width(*tree, text, tree->columnWidth(col));
                }
        } else if (auto* edit = qobject_cast<const QPlainTextEdit*>(&widget))
            Read(*edit, edit->toPlainText());
    }

    // Cells and heads in their columns; what the view's edge cuts is scrolled to.
    void Look_At_Grid(const GridView& grid) {
        const QAbstractItemModel& model = *grid.model();
        for (int col = 0; col < model.columnCount(); ++col) {
            const int width = grid.Cell_Rect(0, col).width();
            const bool head = !grid.horizontalHeader()->isHidden();
            for (int row = head ? -1 : 0; row < model.rowCount(); ++row) {
                const auto value = [&](int role) {
                    return row < 0 ? model.headerData(col, Qt::Horizontal, role)
                                   : model.index(row, col).data(role);
                };
                const QString text = value(Qt::DisplayRole).toString();
                if (text.isEmpty())
                    continue;
                Read(grid, text);
                const QFontMetrics metrics(value(Qt::FontRole).value<QFont>());
                const int flags = value(Qt::TextAlignmentRole).toInt();
                const QSize size =
                    row < 0 ? metrics.boundingRect(0, 0, width, 999, flags, text).size()
                            : QSize(metrics.horizontalAdvance(text.trimmed()), metrics.height());
                const int height =
                    row < 0 ? grid.horizontalHeader()->height() : grid.rowHeight(row);
                Expect_Room(grid, ("cuts \"" + text.toStdString() + "\"").c_str(), size,
                            {width, height});
            }
        }
    }

    std::string screen_;
    std::set<std::string>& offences_;
    bool largeFont_;
};

struct Variant {
    const char* Name;
    int Points; // of the font; 0: the desktop's own
    QSize Window;

    friend void PrintTo(const Variant& variant, std::ostream* out) { *out << variant.Name; }
};

class GeometryTest : public WindowTest, public testing::WithParamInterface<Variant> {
  protected:
    QFont usual = QApplication::font();

    void SetUp() override {
        if (GetParam().Points > 0) {
            QFont font = usual;
            font.setPointSize(GetParam().Points);
            QApplication::setFont(font);
        }
        WindowTest::SetUp();
        program->Window().resize(GetParam().Window);
    }
    void TearDown() override {
        WindowTest::TearDown();
        QApplication::setFont(usual);
    }
};

TEST_P(GeometryTest, EveryScreenHolds) {
    std::set<std::string> offences;
    const auto faults =
        For_Each_Screen(*program, [&offences](const std::string& name, QWidget& top) {
            Inspection(name, offences, GetParam().Points > 0).Look_At(top);
        });
    EXPECT_EQ(program->Window().size(), GetParam().Window);
    offences.insert(faults.begin(), faults.end());
    for (const std::string& offence : offences)
        ADD_FAILURE() << offence;
}

// The small ones are what a laptop shows at 200 %.
INSTANTIATE_TEST_SUITE_P(Screens, GeometryTest,
                         testing::Values(Variant{"Usual", 0, {1240, 700}},
                                         Variant{"Least", 0, {800, 600}},
                                         Variant{"Small", 0, {960, 540}},
                                         Variant{"LargeFont", 14, {1240, 700}},
                                         Variant{"SmallLargeFont", 14, {960, 540}}),
                         [](const auto& variant) { return std::string(variant.param.Name); });

// An option that isn't chosen is seen under a dark palette.
TEST(ProgramStyleTest, MarksStandOutFromADarkBackground) {
    constexpr int leastDifference = 60;
    QRadioButton option;
    option.setPalette(QPalette(QColor(0x2b, 0x2f, 0x33), QColor(0x23, 0x26, 0x29)));
    const QImage mark = option.grab().toImage();
    int brightest = 0;
    for (int y = 0; y < mark.height(); ++y)
        for (int x = 0; x < mark.width(); ++x)
            brightest = std::max(brightest, mark.pixelColor(x, y).lightness());
    EXPECT_GT(brightest, option.palette().color(QPalette::Window).lightness() + leastDifference);
}

} // namespace
