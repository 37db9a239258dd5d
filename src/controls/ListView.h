// A list of items with icons, of which one is the current one.
#pragma once

#include "controls/Drawing.h"
#include "controls/View.h"

#include <string>
#include <vector>

namespace Tensarix {

inline constexpr double iconSide = 48; // of the square that an icon stands in

struct ListItem {
    std::string Key;
    std::string Text;
    std::vector<Drawn::Line> Icon; // about the middle of its square, y upward
};

// Items count from 1.
class ListView {
  public:
    Handler OnItemClick; // an item was chosen, or the current one once more
    View Shown;

    void Clear();
    void Add(ListItem item);
    int Count() const { return static_cast<int>(items_.size()); }
    // Fails outside 1 .. Count.
    const ListItem& Item(int index) const;

    // 0: none.
    int Selected_Item() const { return selected_; }
    // Makes it the current one; no handler runs. Fails outside 1 .. Count.
    void Select(int index);
    // What the user does. Without effect on a disabled list; fails outside 1 .. Count.
    void Click(int index);

    bool Enabled() const { return enabled_; }
    void Enable(bool enabled);

  private:
    std::vector<ListItem> items_;
    int selected_ = 0;
    bool enabled_ = true;
};

} // namespace Tensarix
