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

constexpr int remarkLines = 4;
const QString widestResult = QStringLiteral("** 000.00000   ");
constexpr int remarkWidth = 30; // average characters
constexpr int drawingWidth = 34, drawingLines = 14;

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

// A drawing is never smaller than its texts need.
void Keep_Room(DrawingView* drawing) {
    drawing->setMinimumSize(drawingWidth * drawing->fontMetrics().averageCharWidth(),
                            drawingLines * drawing->fontMetrics().lineSpacing());
}

QWidget* Make_Bolt_Form(BoltPage& page, QWidget* parent) {
    auto* form = new FittingPage(parent);
    Ui::BoltForm ui;
    ui.setupUi(form);
    Bind(ui.cFlex, page.cFlex);
    Lay_Over(ui.cFlex, page.cFlex, page.EdiTxt, QStringLiteral("EdiTxt"),
             QStringLiteral("Bolt group input"));
    Bind(ui.ccFlex, page.ccFlex);
    Bind(ui.xxFlex, page.xxFlex);
    ui.cFlex->Show_All_Columns(); // and leaves the rest to the drawing
    ui.cFlex->Take_What_Is_Needed();
    Show_Whole(ui.ccFlex);
    Show_Whole(ui.xxFlex);
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
    Keep_Room(ui.WeldSketch);
    Bind(ui.SearchPlot, page.SearchPlot);
    Bind(ui.WeldFlex, page.WeldFlex);
    Lay_Over(ui.WeldFlex, page.WeldFlex, page.EdiTxtA, QStringLiteral("EdiTxtA"),
             QStringLiteral("Weld parameter"));
    Show_Whole(ui.WeldFlex);
    Bind(ui.WeldStripBox, page.WeldStripBox);
    Bind(ui.IterationDisplayBox, page.IterationDisplayBox);
    Bind(ui.ElapsedIndicator, page.ElapsedIndicator);
    Bind(ui.CBox, page.CBox);
    ui.CBox->setMinimumWidth(ui.CBox->fontMetrics().horizontalAdvance(widestResult));
    Bind(ui.BalancedCaption, page.BalancedCaption);
    Bind(ui.BalancedBox, page.BalancedBox);
    ui.BalancedBox->setMinimumWidth(ui.CBox->minimumWidth());
    Bind(ui.CRemark, page.CRemark);
    // Its room is kept, so that nothing moves when a run ends.
    ui.CRemark->setMinimumHeight(remarkLines * ui.CRemark->fontMetrics().lineSpacing());
    Bind(ui.StartIterationButton, page.StartIterationButton);
    Bind(ui.StopIterationButton, page.StopIterationButton);
    Bind(ui.ClearDisplayButton, page.ClearDisplayButton);
    Share_Focus(ui.StartIterationButton, ui.StopIterationButton);
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
