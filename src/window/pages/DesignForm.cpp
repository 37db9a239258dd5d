#include "window/pages/DesignForm.h"

#include "ui_BoltForm.h"
#include "ui_WeldForm.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/drawing/DrawingView.h"
#include "window/grid/CellOverlay.h"

#include <QApplication>
#include <QTabWidget>
#include <QTimer>

namespace Tensarix {

namespace {

constexpr double resultSize = 1.25; // of the font of its label
constexpr int remarkLines = 4;
const QString widestResult = QStringLiteral("** 000.00000   ");
constexpr int remarkWidth = 30; // average characters
constexpr int drawingWidth = 34, drawingLines = 14, weldLines = 10, plotLines = 10;
constexpr int tableLines = 17; // seven rows
constexpr int reportWidth = 40, reportLines = 8;

// A small grid shows whole.
void Show_Whole(GridView* view) {
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->Show_All_Rows();
    view->Show_All_Columns();
}

// A remark is as wide as its column, which a long one does not widen.
void Keep_Width(QLabel* remark) {
    QSizePolicy policy = remark->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    remark->setSizePolicy(policy);
    remark->setMinimumWidth(remarkWidth * remark->fontMetrics().averageCharWidth());
}

void Enlarge(QLineEdit* result) {
    QFont font = result->font();
    font.setPointSizeF(font.pointSizeF() * resultSize);
    result->setFont(font);
}

// What lies below doesn't move when it shows.
void Keep_Place(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

// A drawing is never smaller than its texts need.
void Keep_Room(DrawingView* drawing, int lines = drawingLines) {
    drawing->setMinimumSize(drawingWidth * drawing->fontMetrics().averageCharWidth(),
                            lines * drawing->fontMetrics().lineSpacing());
}

QWidget* Make_Bolt_Form(BoltPage& page, QWidget* parent) {
    auto* form = new FittingPage(parent);
    Ui::BoltForm ui;
    ui.setupUi(form);
    Bind(ui.cFlex, page.cFlex);
    Lay_Over(ui.cFlex, page.cFlex, page.EdiTxt, QStringLiteral("EdiTxt"),
             QStringLiteral("Bolt group input"));
    ui.cFlexFind->Find_In(page.cFlex, *ui.cFlex);
    Bind(ui.ccFlex, page.ccFlex);
    Bind(ui.xxFlex, page.xxFlex);
    ui.cFlex->Take_What_Is_Needed();
    ui.cFlex->Let_Columns_Give_Way();
    ui.cFlex->setMinimumHeight(tableLines * ui.cFlex->fontMetrics().lineSpacing());
    for (GridView* values : {ui.ccFlex, ui.xxFlex}) {
        Show_Whole(values);
        values->Take_What_Is_Needed();
    }
    Bind(ui.GroupSketch, page.GroupSketch);
    Keep_Room(ui.GroupSketch);
    ui.Verdicts->Show_Verdicts(page.Verdicts);
    Bind(ui.RowRemark, page.RowRemark);
    Keep_Width(ui.RowRemark);
    Bind(ui.AddRowButton, page.AddRowButton);
    Bind(ui.RemRowButton, page.RemRowButton);
    Bind(ui.SaveButton, page.SaveButton);
    Bind(ui.UnsavedNote, page.UnsavedNote);
    Bind(ui.ClearButton, page.ClearButton);
    form->Let_Stack({{ui.pageLayout, ui.sideLayout}});
    return form;
}

// Of two buttons of which one is enabled at a time: the keyboard stays with the pair.
void Share_Focus(QPushButton* one, QPushButton* other) {
    const auto handOver = [](QPushButton* from, QPushButton* to) {
        QObject::connect(qApp, &QApplication::focusChanged, from, [from, to](QWidget* old) {
            if (old == from && !from->isEnabled())
                QTimer::singleShot(0, to, [to] { to->setFocus(); });
        });
    };
    handOver(one, other);
    handOver(other, one);
}

QWidget* Make_Weld_Form(WeldPage& page, QWidget* parent) {
    auto* form = new FittingPage(parent);
    Ui::WeldForm ui;
    ui.setupUi(form);
    Bind(ui.WeldView, page.WeldView);
    Bind(ui.WeldSketch, page.WeldSketch);
    Keep_Room(ui.WeldSketch, weldLines);
    Bind(ui.SearchPlot, page.SearchPlot);
    Keep_Room(ui.SearchPlot, plotLines);
    Bind(ui.WeldFlex, page.WeldFlex);
    Lay_Over(ui.WeldFlex, page.WeldFlex, page.EdiTxtA, QStringLiteral("EdiTxtA"),
             QStringLiteral("Weld parameter"));
    Show_Whole(ui.WeldFlex);
    ui.WeldFlex->Take_What_Is_Needed();
    Bind(ui.WeldStripBox, page.WeldStripBox);
    Bind(ui.IterationDisplayBox, page.IterationDisplayBox);
    const QFontMetrics metrics = ui.IterationDisplayBox->fontMetrics();
    ui.IterationDisplayBox->setMinimumSize(reportWidth * metrics.averageCharWidth(),
                                           reportLines * metrics.lineSpacing());
    Bind(ui.ElapsedIndicator, page.ElapsedIndicator);
    Bind(ui.CBox, page.CBox);
    for (QLineEdit* result : {ui.CBox, ui.BalancedBox})
        Enlarge(result);
    ui.CBox->setMinimumWidth(ui.CBox->fontMetrics().horizontalAdvance(widestResult));
    Bind(ui.BalancedCaption, page.BalancedCaption);
    Bind(ui.BalancedBox, page.BalancedBox);
    ui.BalancedBox->setMinimumWidth(ui.CBox->minimumWidth());
    Keep_Place(ui.BalancedBox);
    Bind(ui.CRemark, page.CRemark);
    // Its room is kept, so that nothing moves when a run ends.
    ui.CRemark->setMinimumHeight(remarkLines * ui.CRemark->fontMetrics().lineSpacing());
    Bind(ui.StartIterationButton, page.StartIterationButton);
    Bind(ui.StopIterationButton, page.StopIterationButton);
    Bind(ui.ClearDisplayButton, page.ClearDisplayButton);
    Share_Focus(ui.StartIterationButton, ui.StopIterationButton);
    form->Let_Stack({{ui.displayLayout}, {ui.pageLayout}});
    return form;
}

} // namespace

QWidget* Make_Design_Form(DesignPage& page, QWidget* parent) {
    auto* tabs = new QTabWidget(parent);
    tabs->setObjectName(QStringLiteral("DesignSSTab"));
    tabs->addTab(new FittingArea(Make_Bolt_Form(page.Bolts, tabs)),
                 QStringLiteral("Bolt Coefficient"));
    tabs->addTab(new FittingArea(Make_Weld_Form(page.Welds, tabs)),
                 QStringLiteral("Weld Coefficient"));
    Bind(tabs, page.DesignSSTab);
    return tabs;
}

} // namespace Tensarix
