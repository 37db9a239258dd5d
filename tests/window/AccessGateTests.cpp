// What has to hold on every screen for whoever works without a mouse or without seeing it.
#include "EveryScreen.h"
#include "Kept.h"
#include "Looks.h"
#include "WindowTest.h"
#include "window/To_Qt.h"
#include "window/calculator/CalcKeyLayout.h"
#include "window/calculator/CalcWindow.h"
#include "window/grid/GridView.h"
#include "window/pages/IconList.h"
#include "window/pages/ReportView.h"
#include "window/pages/WtCalcsDialog.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTextBrowser>
#include <QToolTip>

#include <algorithm>
#include <set>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

using Widgets = std::vector<QWidget*>;

constexpr int mostLinks = 300; // of a page of the guide

QString Accessible_Text(QWidget& widget, QAccessible::Text kind) {
    return QAccessible::queryAccessibleInterface(&widget)->text(kind).trimmed();
}

QString Title(const QWidget* widget) {
    if (!widget)
        return QStringLiteral("nothing");
    return widget->objectName().isEmpty()
               ? QLatin1String(widget->metaObject()->className()) + QStringLiteral(" ?")
               : widget->objectName();
}

template <typename Widget = QWidget, typename Test>
std::vector<Widget*> Visible(const QWidget& top, Test test) {
    std::vector<Widget*> found;
    for (auto* widget : top.findChildren<Widget*>())
        if (widget->isVisible() && widget->window() == &top && test(*widget))
            found.push_back(widget);
    return found;
}

// What lies over a grid belongs to it.
QWidget* With_Grid(QWidget* widget) {
    for (QWidget* over = widget; over; over = over->parentWidget())
        if (qobject_cast<GridView*>(over))
            return over;
    return widget;
}

// Of a group Tab takes the chosen one.
bool Another_Is_Chosen(const QAbstractButton& button) {
    const auto group =
        button.parent()->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    return button.autoExclusive() && !button.isChecked() &&
           std::any_of(group.begin(), group.end(), [](const QAbstractButton* other) {
               return other->autoExclusive() && other->isChecked();
           });
}

bool Taken_By_Tab(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() &&
           !widget.focusProxy() && !(button && Another_Is_Chosen(*button));
}

// Cuts the widgets apart by straight lines across, the parts by lines down, and so on.
void Read(Widgets widgets, Widgets& order, bool across = true, int uncut = 0) {
    constexpr int overlap = 3;
    if (widgets.size() < 2 || uncut == 2) {
        order.insert(order.end(), widgets.begin(), widgets.end());
        return;
    }
    const auto from = [across](const QWidget* at) { return across ? at->y() : at->x(); };
    const auto to = [across](const QWidget* at) {
        return (across ? at->geometry().bottom() : at->geometry().right()) - overlap;
    };
    std::stable_sort(widgets.begin(), widgets.end(),
                     [from](QWidget* a, QWidget* b) { return from(a) < from(b); });
    std::vector<Widgets> parts;
    int last = 0;
    for (QWidget* widget : widgets) {
        if (parts.empty() || from(widget) > last)
            parts.emplace_back();
        parts.back().push_back(widget);
        last = std::max(last, to(widget));
    }
    for (Widgets& part : parts)
        Read(std::move(part), order, !across, parts.size() == 1 ? uncut + 1 : 0);
}

// What Tab has to reach, as it is read: what stands together in one frame or page is read together.
void Add_In_Reading_Order(const QWidget& parent, Widgets& found) {
    Widgets children, order;
    for (QObject* child : parent.children())
        if (auto* widget = qobject_cast<QWidget*>(child);
            widget && widget->isVisible() && !widget->isWindow())
            children.push_back(widget);
    Read(children, order);
    for (QWidget* child : order) {
        if (Taken_By_Tab(*child))
            found.push_back(child);
        if (!qobject_cast<GridView*>(child)) // what lies over a grid belongs to it
            Add_In_Reading_Order(*child, found);
    }
}

// What a widget says: its texts, tips and names, and the items of menus, tabs and short lists.
QString Words_Of(QWidget& widget) {
    constexpr int shortList = 20;
    QStringList words;
    const char* const properties[] = {"windowTitle",     "title",          "text",
                                      "placeholderText", "accessibleName", "accessibleDescription",
                                      "toolTip"};
    for (const char* property : properties)
        words << widget.property(property).toString();
    for (const QAction* action : widget.actions())
        if (!action->isSeparator() &&
            (qobject_cast<QMenu*>(&widget) || action->parent() == &widget))
            words << (action->text() + QLatin1Char(' ') + action->shortcut().toString()).trimmed();
    if (const auto* tabs = qobject_cast<QTabBar*>(&widget))
        for (int i = 0; i < tabs->count(); ++i)
            words << tabs->tabText(i);
    if (const auto* list = qobject_cast<QComboBox*>(&widget); list && list->count() <= shortList)
        for (int i = 0; i < list->count(); ++i)
            words << list->itemText(i);
    if (const CalcKey* key = Find_Key(widget.objectName().toStdString()))
        words << To_Qt(Look_Of(*key).Rich);
    words.removeAll(QString());
    return words.join(QStringLiteral(" | ")).replace(QLatin1Char('\n'), QStringLiteral("\\n"));
}

class AccessGate : public WindowTest {
  protected:
    QString screen, written, looks;
    std::set<QString> said, seen; // by an earlier screen
    QStringList offences;

    // What of this screen no earlier one has said. While a search runs that depends on the time.
    void Write_Down(QWidget& top) {
        if (screen.endsWith(QStringLiteral("running")))
            return;
        written += QStringLiteral("== ") + screen + QLatin1Char('\n');
        looks += QStringLiteral("== ") + screen + QLatin1Char('\n');
        const QImage image = top.grab().toImage();
        std::vector<QWidget*> all = Visible(top, [](const QWidget&) { return true; });
        all.insert(all.begin(), &top);
        const auto add = [](QString& text, std::set<QString>& known, const QString& line) {
            if (known.insert(line).second)
                text += line + QLatin1Char('\n');
        };
        for (QWidget* widget : all) {
            const QString title = Title(widget) + QStringLiteral(": "), words = Words_Of(*widget);
            if (!words.isEmpty() && title != QLatin1String("ElapsedIndicator: ")) // a clock
                add(written, said, title + words);
            add(looks, seen, title + Look_Of(*widget, image));
        }
    }

    void Offend(const QString& what) { offences.append(screen + QStringLiteral(": ") + what); }
    void Offend(const QWidget* widget, const QString& what) {
        Offend(Title(widget) + QStringLiteral(": ") + what);
    }

    void Check_Names(QWidget& top) {
        for (QWidget* widget : Visible(top, [](const QWidget& candidate) {
                 return candidate.focusPolicy() != Qt::NoFocus && !candidate.focusProxy();
             }))
            if (Accessible_Text(*widget, QAccessible::Name).isEmpty())
                Offend(widget, QStringLiteral("has no name"));
        // The name of these is their text, on a real desktop.
        for (QWidget* widget : Visible(top, [](const QWidget& candidate) {
                 return qobject_cast<const QComboBox*>(&candidate) ||
                        qobject_cast<const QRadioButton*>(&candidate);
             }))
            if (QAccessible::queryAccessibleInterface(widget)
                    ->relations(QAccessible::Label)
                    .isEmpty())
                Offend(widget, QStringLiteral("no label says what it stands for"));
        for (QLabel* label : Visible<QLabel>(top, [](const QLabel& candidate) {
                 return !candidate.text().isEmpty() && candidate.textFormat() != Qt::RichText;
             }))
            if (!label->buddy() &&
                Accessible_Text(*label, QAccessible::Name) != label->text().trimmed())
                Offend(label, QStringLiteral("its text can't be heard"));
            else if (!qobject_cast<QMessageBox*>(&top) &&
                     label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse) &&
                     !(label->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard) &&
                       Taken_By_Tab(*label)))
                Offend(label, QStringLiteral("its text is copied by the mouse alone"));
    }

    // Tab walks through a table to be filled in; with Control it leaves it.
    static QWidget* Next(Qt::KeyboardModifiers back) {
        QWidget* const from = QApplication::focusWidget();
        QTest::keyClick(from, Qt::Key_Tab, back);
        // In a text with links Tab goes from link to link first.
        for (int links = 0; links < mostLinks && qobject_cast<QTextBrowser*>(from) &&
                            QApplication::focusWidget() == from;
             ++links)
            QTest::keyClick(from, Qt::Key_Tab, back);
        if (With_Grid(QApplication::focusWidget()) == With_Grid(from))
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, back | Qt::ControlModifier);
        Settle();
        return With_Grid(QApplication::focusWidget());
    }

    // It looks chosen all the time.
    static bool Is_Default(const QWidget* widget) {
        const auto* button = qobject_cast<const QPushButton*>(widget);
        return button && button->isDefault();
    }

    // True if the key goes from the one to the other; the first must have looked focused.
    bool Goes(Qt::KeyboardModifiers back, QWidget* from, const QWidget* to) {
        const QImage focused = from->grab().toImage();
        QWidget* const next = Next(back);
        if (next != from && !Is_Default(from) && from->grab().toImage() == focused)
            Offend(from, QStringLiteral("its focus can't be seen"));
        if (next != to)
            Offend(from, QKeySequence(Qt::Key_Tab | back).toString() + QStringLiteral(" goes to ") +
                             Title(next) + QStringLiteral(" instead of ") + Title(to));
        return next == to;
    }

    void Check_Tab(QWidget& top) {
        Widgets order;
        Add_In_Reading_Order(top, order);
        if (order.empty())
            return;
        order.push_back(order.front());
        top.setAttribute(Qt::WA_KeyboardFocusChange); // as after a first Tab
        for (const Qt::KeyboardModifiers back : {Qt::NoModifier, Qt::ShiftModifier}) {
            order.front()->setFocus(Qt::TabFocusReason);
            for (std::size_t at = 1; at < order.size() && Goes(back, order[at - 1], order[at]);)
                ++at;
            std::reverse(order.begin(), order.end());
        }
    }

    void Check_Mnemonics(QWidget& top) {
        QMap<QString, QString> taken;
        const auto take = [&](const QString& text) {
            const QString key = QKeySequence::mnemonic(text).toString();
            if (key.isEmpty())
                return;
            if (taken.contains(key))
                Offend(key + QStringLiteral(" chooses both ") + taken[key] +
                       QStringLiteral(" and ") + text);
            taken[key] = text;
        };
        const auto all = [](const QWidget&) { return true; };
        for (const auto* label : Visible<QLabel>(top, all))
            if (label->buddy())
                take(label->text());
        for (const auto* button : Visible<QAbstractButton>(top, all))
            take(button->text());
        for (const auto* frame : Visible<QGroupBox>(top, all))
            take(frame->title());
        for (const auto* bar : Visible<QTabBar>(top, all))
            for (int tab = 0; tab < bar->count(); ++tab)
                take(bar->tabText(tab));
        for (QWidget* menu : Visible(top, all))
            if (qobject_cast<QMenuBar*>(menu))
                for (const QAction* action : menu->actions())
                    take(action->text());
        if (qobject_cast<QMenu*>(&top))
            for (const QAction* action : top.actions())
                take(action->text());
    }

    // Enter is the calculator's and the tables' own key.
    void Check_Default(QWidget& top) {
        const bool own = dynamic_cast<CalcWindow*>(&top) || dynamic_cast<WtCalcsDialog*>(&top);
        if (!qobject_cast<QDialog*>(&top) || own)
            return;
        const auto defaults =
            Visible<QPushButton>(top, [](const QPushButton& button) { return button.isDefault(); });
        if (defaults.size() != 1)
            Offend(QStringLiteral("no default button"));
    }

    void Check_Message(QWidget& top) {
        auto* box = qobject_cast<QMessageBox*>(&top);
        if (!box)
            return;
        QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
        if (QApplication::clipboard()->text() != box->text())
            Offend(QStringLiteral("its text isn't copied"));
    }

    // The one that is being edited first: it goes with its focus.
    void Check_Lists(QWidget& top) {
        auto lists = Visible<QComboBox>(top, [](const QComboBox& candidate) {
            return candidate.isEnabled() && candidate.count() > 0;
        });
        std::stable_partition(lists.begin(), lists.end(),
                              [](const QComboBox* list) { return list->hasFocus(); });
        for (QComboBox* list : lists) {
            if (Accessible_Text(*list->view(), QAccessible::Name).isEmpty())
                Offend(list, QStringLiteral("its list has no name"));
            Check_Opens(*list, Qt::Key_F4, Qt::NoModifier);
            Check_Opens(*list, Qt::Key_Down, Qt::AltModifier);
        }
    }

    void Check_Opens(QComboBox& list, Qt::Key key, Qt::KeyboardModifier with) {
        if (!list.isVisible())
            return;
        const int before = list.currentIndex();
        list.setFocus();
        QTest::keyClick(&list, key, with);
        Settle();
        if (!list.view()->isVisible() || !list.isVisible() || list.currentIndex() != before)
            Offend(&list, QKeySequence(key | with).toString() + QStringLiteral(" doesn't open it"));
        QTest::keyClick(list.view(), Qt::Key_Escape);
        Settle();
        if (list.view()->isVisible() || QApplication::focusWidget() != &list)
            Offend(&list, QStringLiteral("Escape doesn't go back to it"));
    }
};

} // namespace

TEST_F(AccessGate, EveryScreen) {
    program->Window().resize(1240, 700);
    const auto faults = For_Each_Screen(*program, [this](const std::string& name, QWidget& top) {
        screen = To_Qt(name);
        Write_Down(top);
        Check_Names(top);
        Check_Mnemonics(top);
        Check_Default(top);
        Check_Message(top);
        if (top.windowFlags().testFlag(Qt::Popup))
            return;
        Check_Lists(top);
        Check_Tab(top);
    });
    for (const std::string& fault : faults)
        ADD_FAILURE() << fault;
    offences.removeDuplicates();
    EXPECT_TRUE(offences.isEmpty()) << offences.join(QLatin1Char('\n')).toStdString();
#ifndef _WIN32 // where a few tips tell what that system has
    Expect_As_Kept("screens.txt", written.toStdString());
    Expect_As_Kept("looks.txt", looks.toStdString());
#endif
}

// A screen reader tells of a cell its row, its column, its text and its remark.
TEST_F(AccessGate, TablesTellTheirHeads) {
    MainFrm& form = program->Form();
    form.ViewAll.xShapeType.Select(4);
    form.Find.fCriterion.Select(4);
    form.Find.fValue.Set_Text("0");
    form.Find.RunFind();
    const std::tuple<Mode, const char*, FlexGrid&> grids[] = {
        {Mode::Browse, "ShapeFlex", form.Browse.ShapeFlex},
        {Mode::Find, "fShapeFlex", form.Find.fShapeFlex},
        {Mode::ViewAll, "xShapeFlex", form.ViewAll.xShapeFlex},
        {Mode::BeamLoad, "zShapeFlex", form.Beam.zShapeFlex},
        {Mode::Connection, "cFlex", form.Design.Bolts.cFlex},
        {Mode::Connection, "ccFlex", form.Design.Bolts.ccFlex},
        {Mode::Connection, "WeldFlex", form.Design.Welds.WeldFlex}};
    for (const auto& [mode, name, grid] : grids) {
        SCOPED_TRACE(name);
        form.OptButton[static_cast<std::size_t>(mode)].Select();
        const int heads = grid.FixedRows(), row = std::min(heads + 2, grid.Rows() - 1);
        grid.Set_Remark(row, 1, "doubtful");
        Settle();
        auto* table =
            QAccessible::queryAccessibleInterface(&Find<GridView>(name))->tableInterface();
        ASSERT_TRUE(table);
        ASSERT_EQ(table->rowCount(), grid.Rows() - heads);
        EXPECT_NE(grid.Text(row, 0), "");
        EXPECT_EQ(table->rowDescription(row - heads).toStdString(), grid.Text(row, 0));
        for (int col = 0; heads > 0 && col < grid.Cols(); ++col)
            EXPECT_EQ(table->columnDescription(col).toStdString(), grid.Text(0, col));
        if (heads == 0) {
            EXPECT_EQ(table->columnDescription(1), "Value");
        }
        QAccessibleInterface* const cell = table->cellAt(row - heads, 1);
        EXPECT_EQ(cell->text(QAccessible::Name).toStdString(), grid.Text(row, 1));
        EXPECT_EQ(cell->text(QAccessible::Description), "doubtful");
    }
}

// What the mouse does by clicking, dragging and resting, with the keyboard.
TEST_F(AccessGate, KeysForWhatTheMouseDoes) {
    MainFrm& form = program->Form();
    const auto key = [](QWidget& widget, Qt::Key code, Qt::KeyboardModifiers with = {}) {
        widget.setFocus();
        QTest::keyClick(&widget, code, with);
        Settle();
    };
    key(Find<QPushButton>("OptButton0"), Qt::Key_Right);
    EXPECT_TRUE(form.OptButton[1].Value());
    key(Find<GridView>("fShapeFlex"), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(Find<QMenu>("mnuEdit1").isVisible());
    Find<QMenu>("mnuEdit1").close();
    form.Shared.StatBar.Set_Remark("doubtful");
    Settle();
    key(Find<GridView>("fShapeFlex"), Qt::Key_F1, Qt::ControlModifier);
    EXPECT_TRUE(QToolTip::text().endsWith(QStringLiteral("\ndoubtful")));

    form.OptButton[static_cast<std::size_t>(Mode::Connection)].Select();
    form.Design.DesignSSTab.Select(weldTab);
    int chosen = 0;
    form.Design.Welds.WeldView.OnItemClick = [&chosen] { ++chosen; };
    Settle();
    key(Find<IconList>("WeldView"), Qt::Key_Down);
    key(Find<IconList>("WeldView"), Qt::Key_Space); // the current one once more
    EXPECT_EQ(chosen, 2);
    form.Design.Welds.IterationDisplayBox.Append("one\r\ntwo\r\nthree\r\nfour");
    auto& report = Find<ReportView>("IterationDisplayBox");
    for (const Qt::Key code : {Qt::Key_End, Qt::Key_Up})
        key(report, code, Qt::ShiftModifier);
    key(report, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "one\ntwo\nthree");
}
