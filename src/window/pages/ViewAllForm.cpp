#include "window/pages/ViewAllForm.h"

#include "ui_ViewAllForm.h"
#include "window/Bind.h"
#include "window/FittingArea.h"

namespace Tensarix {

QWidget* Make_View_All_Form(ViewAllPage& page, QWidget* parent) {
    auto* form = new FittingPage(parent);
    Ui::ViewAllForm ui;
    ui.setupUi(form);
    Bind(ui.xShapeType, page.xShapeType);
    Bind(ui.xProfileOption1, page.xProfileOption1);
    Bind(ui.xProfileOption2, page.xProfileOption2);
    Bind(ui.xDimOption1, page.xDimOption1);
    Bind(ui.xDimOption2, page.xDimOption2);
    Bind(ui.xSectionDrawing, page.SectionDrawing);
    Bind(ui.xShapeFlex, page.xShapeFlex);
    form->Let_Stack({{ui.optionsLayout}, {ui.choicesLayout}});
    ui.xShapeFlexFind->Find_In(page.xShapeFlex, *ui.xShapeFlex);
    return form;
}

} // namespace Tensarix
