#include "shell/Travel.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "shell/MainFrm.h"

#include <tuple>

namespace Tensarix {

namespace {

constexpr std::size_t mostStops = 50;

int Position_Of(const ComboBox& list, const std::string& text) {
    for (int i = 0; i < list.Count(); ++i)
        if (list.Item(i) == text)
            return i;
    return -1;
}

std::optional<SectionPlace> Chosen_Place(const ComboBox& family, const ComboBox& size) {
    if (family.ListIndex() < 0 || size.ListIndex() < 0)
        return std::nullopt;
    return SectionPlace{family.ListIndex(), size.ListIndex()};
}

} // namespace

Travel::Travel(MainFrm& form) : form_(form) {
    mnuShowBrowse.Set_Caption("Show on Browse");
    mnuShowBeam.Set_Caption("Show on Beam Load");
    mnuShowWeights.Set_Caption("Show on Weights");
    mnuCompare.Set_Caption("Compare");
    const auto withCurrent = [this](auto act) {
        return [this, act] {
            if (const std::optional<SectionPlace> place = Current())
                act(*place);
        };
    };
    mnuShowBrowse.OnClick = withCurrent([this](SectionPlace place) { Show(Mode::Browse, place); });
    mnuShowBeam.OnClick = withCurrent([this](SectionPlace place) { Show(Mode::BeamLoad, place); });
    mnuShowWeights.OnClick =
        withCurrent([this](SectionPlace place) { form_.Show_Weights_Of(place); });
    mnuCompare.OnClick = withCurrent([this](SectionPlace place) { form_.Compare_Section(place); });
    Wire(form.Find.fShapeFlex);
    Wire(form.ViewAll.xShapeFlex);
    for (const auto& [family, us, si] :
         {std::tie(form.Browse.ShapeType, form.Browse.ShapeSizeUS, form.Browse.ShapeSizeSI),
          std::tie(form.Beam.zShapeType, form.Beam.zShapeSizeUS, form.Beam.zShapeSizeSI)})
        for (ComboBox* size : {&us, &si})
            size->OnTypedInVain = [this, list = &family](const std::string& typed) {
                Tell_Of_Other_Family(*list, typed);
            };
}

void Travel::Wire(FlexGrid& grid) {
    grid.OnDblClick = [this] { mnuShowBrowse.OnClick(); };
    grid.OnKeyDown = [this](int keyCode) {
        if (keyCode == Keys::Enter)
            mnuShowBrowse.OnClick();
    };
}

Mode Travel::Page() const {
    return static_cast<Mode>(form_.SelectionTab.Tab());
}

FlexGrid* Travel::Table_Of(Mode page) const {
    return page == Mode::Find      ? &form_.Find.fShapeFlex
           : page == Mode::ViewAll ? &form_.ViewAll.xShapeFlex
                                   : nullptr;
}

std::optional<SectionPlace> Travel::Current() const {
    switch (Page()) {
    case Mode::Browse:
        return Chosen_Place(form_.Browse.ShapeType, form_.Browse.ShapeSizeUS);
    case Mode::Find:
        return Place_Of_Row(form_.Find.fShapeType, form_.Find.fShapeFlex);
    case Mode::ViewAll:
        return Place_Of_Row(form_.ViewAll.xShapeType, form_.ViewAll.xShapeFlex);
    case Mode::BeamLoad:
        return Chosen_Place(form_.Beam.zShapeType, form_.Beam.zShapeSizeUS);
    default:
        return std::nullopt;
    }
}

std::optional<SectionPlace> Travel::Place_Of_Row(const ComboBox& family,
                                                 const FlexGrid& grid) const {
    std::optional<SectionPlace> place;
    Attempt([&] {
        const std::string name = Trim(grid.Text(grid.Row(), 0));
        ComboBox us, si;
        FillSizeLists(us, si, Family_At(family.ListIndex()).Type, form_.Shared.Host.Places.Program);
        if (const int position = Position_Of(us, name); position >= 0)
            place = SectionPlace{family.ListIndex(), position};
    });
    return place;
}

void Travel::Prepare() {
    const std::optional<SectionPlace> place = Current();
    mnuShowBrowse.Enable(place && Page() != Mode::Browse);
    mnuShowBeam.Enable(place && place->Family < beamFamilies && Page() != Mode::BeamLoad);
    mnuShowWeights.Enable(place.has_value());
    mnuCompare.Enable(place.has_value());
}

void Travel::Note_Stop() {
    Stop stop{Page(), Current().value_or(SectionPlace{})};
    if (const FlexGrid* table = Table_Of(stop.Page)) {
        stop.Row = table->Row();
        stop.Col = table->Col();
    }
    if (stops_.size() == mostStops)
        stops_.erase(stops_.begin());
    stops_.push_back(stop);
}

void Travel::Show(Mode page, SectionPlace place) {
    if (page == Mode::BeamLoad && place.Family >= beamFamilies)
        return;
    Note_Stop();
    Choose(page, place);
}

void Travel::Choose(Mode page, SectionPlace place) {
    form_.OptButton[static_cast<std::size_t>(page)].Select();
    if (page == Mode::Browse) {
        Attempt([&] { form_.Browse.ShapeType.Select(place.Family); });
        Attempt([&] { form_.Browse.ShapeSizeUS.Select(place.Position); });
        form_.Browse.ShapeFlex.Focus.Set();
    } else if (page == Mode::BeamLoad) {
        Attempt([&] { form_.Beam.zShapeType.Select(place.Family); });
        Attempt([&] { form_.Beam.zShapeSizeUS.Select(place.Position); });
        form_.Beam.zShapeFlex.Focus.Set();
    }
}

void Travel::Back() {
    if (stops_.empty())
        return;
    const Stop stop = stops_.back();
    stops_.pop_back();
    Choose(stop.Page, stop.Place);
    if (FlexGrid* table = Table_Of(stop.Page)) {
        table->Focus.Set();
        if (stop.Row < table->Rows() && stop.Col < table->Cols())
            table->Press(stop.Row, stop.Col);
        Run(table->BringIntoView);
    }
}

void Travel::Go_To_Lightest() {
    FlexGrid& table = form_.Find.fShapeFlex;
    const std::string name = form_.Find.Lightest();
    if (Page() != Mode::Find || name.empty())
        return;
    for (int row = table.FixedRows(); row < table.Rows(); ++row)
        if (Trim(table.Text(row, 0)) == name || Trim(table.Text(row, 1)) == name) {
            table.Focus.Set();
            table.Press(row, table.Col());
            Run(table.BringIntoView);
            return;
        }
}

void Travel::Tell_Of_Other_Family(const ComboBox& family, const std::string& typed) {
    const std::string note =
        Other_Family_Note(typed, family.ListIndex(), form_.Shared.Host.Places.Program);
    if (!note.empty())
        form_.Shared.StatBar.Set_Remark(note + ": Ctrl+K finds it");
}

} // namespace Tensarix
