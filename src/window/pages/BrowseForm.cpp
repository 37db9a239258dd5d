#include "window/pages/BrowseForm.h"

#include "ui_BrowseForm.h"
#include "window/Bind.h"
#include "window/FittingArea.h"
#include "window/LabelOf.h"
#include "window/MouseWatch.h"

namespace Tensarix {

QWidget* Make_Browse_Form(BrowsePage& page, QWidget* parent) {
    auto* form = new FittingPage(parent);
    Ui::BrowseForm ui;
    ui.setupUi(form);
    Bind(ui.ShapeType, page.ShapeType);
    Bind(ui.ShapeSizeUS, page.ShapeSizeUS);
    Bind(ui.ShapeSizeSI, page.ShapeSizeSI);
    Bind(ui.ProfileOption1, page.ProfileOption1);
    Bind(ui.ProfileOption2, page.ProfileOption2);
    Bind(ui.DimOption1, page.DimOption1);
    Bind(ui.DimOption2, page.DimOption2);
    Bind(ui.BaseImage, page.SectionDrawing);
    Watch_Mouse(ui.BaseImage, [&page] { Run(page.BaseImage.OnMouseMove); });
    Bind(ui.ShapeLabel, page.ShapeLabel);
    Bind(ui.ShapeFlex, page.ShapeFlex);
    ui.ShapeFlex->Take_What_Is_Needed();
    for (QWidget* option : {ui.ProfileOption1, ui.ProfileOption2})
        Label_Of(option, ui.ProfileFrame->accessibleName());
    for (QWidget* option : {ui.DimOption1, ui.DimOption2})
        Label_Of(option, ui.DimFrame->accessibleName());
    const Handler snapBack = [&page] { page.Snap_Back(); };
    for (QWidget* around : std::initializer_list<QWidget*>{ui.choices, ui.ProfileFrame, ui.DimFrame,
                                                           ui.ProfileOption1, ui.ProfileOption2,
                                                           ui.DimOption1, ui.DimOption2})
        Watch_Mouse(around, snapBack);
    return form;
}

} // namespace Tensarix
