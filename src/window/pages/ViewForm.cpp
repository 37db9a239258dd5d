#include "window/pages/ViewForm.h"

#include "ui_ViewForm.h"
#include "window/Bind.h"
#include "window/FittingArea.h"

namespace Tensarix {

QWidget* Make_View_Form(ViewPage& page, QWidget* parent) {
    auto* form = new FittingPage(parent);
    Ui::ViewForm ui;
    ui.setupUi(form);
    Bind(ui.xShapeType, page.xShapeType);
    Bind(ui.xProfileOption1, page.xProfileOption1);
    Bind(ui.xProfileOption2, page.xProfileOption2);
    Bind(ui.xDimOption1, page.xDimOption1);
    Bind(ui.xDimOption2, page.xDimOption2);
    Bind(ui.xSectionDrawing, page.SectionDrawing);
    Bind(ui.xShapeFlex, page.xShapeFlex);
    form->Let_Stack({{ui.optionsLayout}, {ui.choicesLayout}});
    return form;
}

} // namespace Tensarix
