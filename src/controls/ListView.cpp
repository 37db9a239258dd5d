#include "controls/ListView.h"

#include "common/Failure.h"

namespace Tensarix {

void ListView::Clear() {
    items_.clear();
    selected_ = 0;
    Shown.Changed();
}

void ListView::Add(ListItem item) {
    items_.push_back(std::move(item));
    Shown.Changed();
}

const ListItem& ListView::Item(int index) const {
    if (index < 1 || index > Count())
        throw Failure("no such item");
    return items_[static_cast<std::size_t>(index) - 1];
}

void ListView::Select(int index) {
    Item(index);
    selected_ = index;
    Shown.Changed();
}

void ListView::Click(int index) {
    if (!enabled_)
        return;
    Select(index);
    Run(OnItemClick);
}

void ListView::Enable(bool enabled) {
    if (enabled_ == enabled)
        return;
    enabled_ = enabled;
    Shown.Changed();
}

} // namespace Tensarix
