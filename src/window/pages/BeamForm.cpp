#include "window/pages/BeamForm.h"

#include "ui_BeamForm.h"
#include "window/Bind.h"
#include "window/FirstClick.h"
#include "window/FittingArea.h"
#include "window/LabelOf.h"
#include "window/drawing/DrawingView.h"

namespace Tensarix {

namespace {

constexpr double resultSize = 1.5;              // of the font of its label
constexpr int leastChars = 40, leastLines = 13; // of a drawing
const QString widestSpan = QStringLiteral("000'-00 00/00\"   ");
constexpr int leastTableLines = 9; // three rows
constexpr int factorWidth = 12;    // average characters

void Enlarge(QLabel* result) {
    QFont font = result->font();
    font.setPointSizeF(font.pointSizeF() * resultSize);
    result->setFont(font);
}

} // namespace

QWidget* Make_Beam_Form(BeamPage& page, QWidget* parent) {
    auto* form = new FittingPage(parent);
    Ui::BeamForm ui;
    ui.setupUi(form);
    ui.AppliedCode->addTab(QStringLiteral(" Per AISC 9th Edition "));
    ui.AppliedCode->addTab(QStringLiteral(" Per AISC 13th Edition "));
    Bind(ui.zShapeType, page.zShapeType);
    Bind(ui.zShapeLab, page.zShapeLab);
    Bind(ui.zShapeSizeUS, page.zShapeSizeUS);
    Bind(ui.zShapeSizeSI, page.zShapeSizeSI);
    Bind(ui.ShapeLab, page.ShapeLab);
    Bind(ui.zShapeFlex, page.zShapeFlex);
    ui.zShapeFlex->Show_All_Columns();
    ui.zShapeFlex->setMinimumHeight(leastTableLines * ui.zShapeFlex->fontMetrics().lineSpacing());
    Bind(ui.AppliedCode, page.AppliedCode);
    Bind(ui.CodeFrame, page.CodeFrame);
    Bind(ui.CodeOpt0, page.CodeOpt[0]);
    Bind(ui.CodeOpt1, page.CodeOpt[1]);
    for (QWidget* option : {ui.CodeOpt0, ui.CodeOpt1})
        Label_Of(option, ui.CodeFrame->accessibleName());
    Bind(ui.FyBox, page.FyBox);
    Bind(ui.BeamSpanBox, page.BeamSpanBox);
    Bind(ui.CFactor, page.CFactor);
    Choose_All_At_First_Click(ui.BeamSpanBox);
    Choose_All_At_First_Click(ui.CFactor);
    Bind(ui.UniWTLab, page.UniWTLab);
    Bind(ui.LimSpanLab, page.LimSpanLab);
    Bind(ui.BeamReactionLab, page.BeamReactionLab);
    Bind(ui.SpanRemark, page.SpanRemark);
    Bind(ui.RuleRemark, page.RuleRemark);
    Bind(ui.LoadNotes, page.LoadNotes);
    Bind(ui.CodeNote, page.CodeNote);
    Bind(ui.BeamSketch, page.BeamSketch);
    Bind(ui.LoadPlot, page.LoadPlot);
    for (QLabel* result : {ui.UniWTLab, ui.BeamReactionLab})
        Enlarge(result);
    for (DrawingView* drawing : {ui.BeamSketch, ui.LoadPlot})
        drawing->setMinimumSize(leastChars * drawing->fontMetrics().averageCharWidth(),
                                leastLines * drawing->fontMetrics().lineSpacing());
    ui.BeamSpanBox->setFixedWidth(ui.BeamSpanBox->fontMetrics().horizontalAdvance(widestSpan));
    ui.CFactor->setMaximumWidth(factorWidth * ui.CFactor->fontMetrics().averageCharWidth());
    form->Let_Stack({{ui.inputsLayout},
                     {ui.resultsAndRemarks},
                     {ui.pageLayout, ui.choicesLayout},
                     {ui.drawingsLayout},
                     {ui.codeLayout}});
    return form;
}

} // namespace Tensarix
