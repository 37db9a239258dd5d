#include "controls/Controls.h"

#include "common/Failure.h"
#include "common/NumberText.h"
#include "common/Utf8.h"

#include <algorithm>

namespace Tensarix {

namespace {

// Sets a value that is shown; true if it differs from what it was.
template <typename Value>
bool Change(Value& target, Value value, const View& view) {
    if (target == value)
        return false;
    target = std::move(value);
    view.Changed();
    return true;
}

void Change_Place(Placement& target, const Placement& place, const View& view) {
    target = place;
    view.Changed();
}

} // namespace

void Label::Set_Caption(std::string caption, RemarkWeight weight) {
    Change(captionWeight_, weight, Shown);
    Change(caption_, std::move(caption), Shown);
}
void Label::Set_Remark(std::string remark, RemarkWeight weight) {
    Change(remark_, {std::move(remark), weight}, Shown);
}

void Button::Set_Caption(std::string caption) {
    Change(caption_, std::move(caption), Shown);
}
void Button::Enable(bool enabled) {
    Change(enabled_, enabled, Shown);
}

void Button::Click() const {
    if (enabled_)
        Run(OnClick);
}

void OptionButton::Group(const std::vector<OptionButton*>& buttons) {
    for (OptionButton* button : buttons)
        button->group_ = buttons;
}

void OptionButton::Set_Caption(std::string caption) {
    Change(caption_, std::move(caption), Shown);
}
void OptionButton::Enable(bool enabled) {
    Change(enabled_, enabled, Shown);
}

void OptionButton::Select() {
    if (value_)
        return;
    for (OptionButton* button : group_)
        Change(button->value_, false, button->Shown);
    Change(value_, true, Shown);
    Run(OnClick);
}

void Frame::Enable(bool enabled) {
    Change(enabled_, enabled, Shown);
}

void ComboBox::Clear() {
    text_.clear();
    Clear_Items();
}

void ComboBox::Clear_Items() {
    items_.clear();
    listIndex_ = -1;
    ++itemsVersion_;
    Shown.Changed();
}

void ComboBox::Add(std::string item) {
    items_.push_back(std::move(item));
    ++itemsVersion_;
    Shown.Changed();
}

const std::string& ComboBox::Item(int position) const {
    if (position < 0 || position >= Count())
        throw Failure("no such list position");
    return items_[static_cast<std::size_t>(position)];
}

void ComboBox::Select(int position) {
    std::string text = position == -1 ? std::string{} : Item(position);
    const bool moved = Change(listIndex_, position, Shown);
    if (Change(text_, std::move(text), Shown) || moved)
        Run(OnChange);
}

void ComboBox::Set_Text(std::string text) {
    if (text_ == text)
        return;
    listIndex_ = -1;
    Change(text_, std::move(text), Shown);
    Run(OnChange);
}

void ComboBox::Enable(bool enabled) {
    Change(enabled_, enabled, Shown);
}
void ComboBox::Show(bool visible) {
    Change(visible_, visible, Shown);
}
void ComboBox::Set_Place(const Placement& place) {
    Change_Place(place_, place, Shown);
}

int TextBox::Length() const {
    return Utf8_Length(text_);
}

void TextBox::Set_Text(std::string text) {
    if (!Change(text_, std::move(text), Shown))
        return;
    selStart_ = std::min(selStart_, Length());
    Run(OnChange);
}

void TextBox::Set_SelStart(int position) {
    Change(selStart_, std::clamp(position, 0, Length()), Shown);
}

void TextBox::Enable(bool enabled) {
    Change(enabled_, enabled, Shown);
}
void TextBox::Show(bool visible) {
    Change(visible_, visible, Shown);
}
void TextBox::Set_Place(const Placement& place) {
    Change_Place(place_, place, Shown);
}

void TabControl::Select(int tab) {
    if (Change(tab_, tab, Shown))
        Run(OnChange);
}

void Picture::Set_Name(std::string name) {
    Change(name_, std::move(name), Shown);
}

void MenuItem::Set_Caption(std::string caption) {
    Change(caption_, std::move(caption), Shown);
}
void MenuItem::Enable(bool enabled) {
    Change(enabled_, enabled, Shown);
}
void MenuItem::Check(bool checked) {
    Change(checked_, checked, Shown);
}

void MenuItem::Set_Remark(std::string remark) {
    Change(remark_, std::move(remark), Shown);
}

void MenuItem::Click() const {
    if (enabled_)
        Run(OnClick);
}

void StatusBar::Set_Panel1(std::string text) {
    Change(panel1_, std::move(text), Shown);
}
void StatusBar::Set_Remark(std::string text, RemarkWeight weight) {
    Change(remark_, {std::move(text), weight}, Shown);
}
void StatusBar::Set_Count(std::string text, Handler leadsTo) {
    countLeadsTo_ = std::move(leadsTo);
    Change(count_, std::move(text), Shown);
}

} // namespace Tensarix
