#include "window/pages/FindForm.h"

#include "ui_FindForm.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/LabelOf.h"

#include <QFontMetrics>

namespace Tensarix {

QWidget* Make_Find_Form(FindPage& page, QWidget* parent) {
    auto* form = new FittingPage(parent);
    Ui::FindForm ui;
    ui.setupUi(form);
    Bind(ui.fShapeType, page.fShapeType);
    Bind(ui.fPoperty, page.fPoperty);
    Bind(ui.fCriterion, page.fCriterion);
    Bind(ui.fValue, page.fValue);
    // Room for the longest unit, so that the button beside it stays in its place.
    ui.UnitLabel->setMinimumWidth(
        ui.UnitLabel->fontMetrics().horizontalAdvance(QStringLiteral("mm^6/10^9")));
    Bind(ui.UnitLabel, page.UnitLabel);
    Bind(ui.SearchNote, page.SearchNote);
    Bind(ui.FindButton, page.FindButton);
    Bind(ui.fProfileOption1, page.fProfileOption1);
    Bind(ui.fProfileOption2, page.fProfileOption2);
    Bind(ui.fDimOption1, page.fDimOption1);
    Bind(ui.fDimOption2, page.fDimOption2);
    Bind(ui.fSectionDrawing, page.SectionDrawing);
    Bind(ui.fShapeFlex, page.fShapeFlex);
    ui.fShapeFlexFind->Find_In(page.fShapeFlex, *ui.fShapeFlex);
    Label_Of(ui.fCriterion, ui.fCriterion->accessibleName());
    Label_Of(ui.fValue, ui.fValue->accessibleName());
    for (QWidget* option : {ui.fProfileOption1, ui.fProfileOption2})
        Label_Of(option, ui.fProfileFrame->accessibleName());
    for (QWidget* option : {ui.fDimOption1, ui.fDimOption2})
        Label_Of(option, ui.fDimFrame->accessibleName());
    form->Let_Stack({{ui.searchLayout}, {ui.optionsLayout}, {ui.headLayout}});
    return form;
}

} // namespace Tensarix
