// What a screen is made of, without a toolkit. Each control holds its state, offers one way to
// change it, runs its handler at once when it changes in a way that the user could have caused,
// and tells its view.
#pragma once

#include "controls/FocusPoint.h"
#include "controls/Remark.h"
#include "controls/View.h"

#include <array>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace Tensarix {

// Takes the character code of a key and gives it, another one, or 0, which cancels the key.
using KeyFilter = std::function<int(int keyAscii)>;
using KeyHandler = std::function<void(int keyCode)>;

// Key codes that handlers look at; printing keys come as characters through KeyFilter.
namespace Keys {
// NOLINTBEGIN(readability-identifier-naming): named as those of an enumeration
inline constexpr int Backspace = 8, Tab = 9, Enter = 13, Escape = 27, Blank = 32;
inline constexpr int Left = 37, Up = 38, Right = 39, Down = 40, Delete = 46, F2 = 113;
inline constexpr int BackTab = 0x109; // Shift+Tab; the codes of single keys end at 255
// NOLINTEND(readability-identifier-naming)
} // namespace Keys

class Label {
  public:
    View Shown;

    const std::string& Caption() const { return caption_; }
    // Of a label whose caption is itself a remark.
    RemarkWeight Caption_Weight() const { return captionWeight_; }
    void Set_Caption(std::string caption, RemarkWeight weight = RemarkWeight::Note);
    // An advisory beside the caption, never part of it.
    const std::string& Remark() const { return remark_.Text; }
    RemarkWeight Remark_Weight() const { return remark_.Weight; }
    void Set_Remark(std::string remark, RemarkWeight weight = RemarkWeight::Note);

  private:
    std::string caption_;
    RemarkWeight captionWeight_ = RemarkWeight::Note;
    Advice remark_;
};

class Button {
  public:
    Handler OnClick;
    View Shown;

    const std::string& Caption() const { return caption_; }
    void Set_Caption(std::string caption);
    bool Enabled() const { return enabled_; }
    void Enable(bool enabled);
    // Without effect on a disabled button.
    void Click() const;

  private:
    std::string caption_;
    bool enabled_ = true;
};

// One of a group, of which one at the most is chosen.
class OptionButton {
  public:
    Handler OnClick; // runs when the button becomes the chosen one
    View Shown;

    // The buttons of a group know each other; call once, when the screen is made.
    static void Group(const std::vector<OptionButton*>& buttons);

    const std::string& Caption() const { return caption_; }
    void Set_Caption(std::string caption);
    bool Enabled() const { return enabled_; }
    void Enable(bool enabled);
    bool Value() const { return value_; }
    void Select();

  private:
    std::string caption_;
    std::vector<OptionButton*> group_;
    bool enabled_ = true;
    bool value_ = false;
};

// What stands around a group; the controls inside can't be used while it is disabled.
class Frame {
  public:
    View Shown;

    bool Enabled() const { return enabled_; }
    void Enable(bool enabled);

  private:
    bool enabled_ = true;
};

// A drop-down list, or one that can be typed in as well.
class ComboBox {
  public:
    Handler OnChange;     // the position or, typed in, the text has changed
    KeyFilter OnKeyPress; // of a list that can be typed in
    KeyHandler OnKeyDown;
    std::function<void(const std::string& typed)> OnTypedInVain; // no item begins so
    FocusPoint Focus;
    View Shown;

    // Empties the list and the text; no handler runs.
    void Clear();
    // The same, but the text stays.
    void Clear_Items();
    void Add(std::string item);
    int Count() const { return static_cast<int>(items_.size()); }
    // Fails outside 0 .. Count - 1.
    const std::string& Item(int position) const;
    // Counts the changes of the items, so that a view knows when to list them again.
    unsigned Items_Version() const { return itemsVersion_; }
    int ListIndex() const { return listIndex_; }
    // Runs OnChange if the position or the text differs. -1: none. Fails outside -1 .. Count - 1,
    // and then nothing has changed.
    void Select(int position);
    const std::string& Text() const { return text_; }
    // Types the text: no position is chosen then. Runs OnChange if it differs.
    void Set_Text(std::string text);

    bool Enabled() const { return enabled_; }
    void Enable(bool enabled);
    bool Visible() const { return visible_; }
    void Show(bool visible);
    const Placement& Place() const { return place_; }
    void Set_Place(const Placement& place);

  private:
    std::vector<std::string> items_;
    std::string text_;
    Placement place_;
    int listIndex_ = -1;
    unsigned itemsVersion_ = 0;
    bool enabled_ = true;
    bool visible_ = true;
};

class TextBox {
  public:
    Handler OnChange;
    KeyFilter OnKeyPress;
    KeyHandler OnKeyDown;
    FocusPoint Focus;
    View Shown;

    const std::string& Text() const { return text_; }
    // Runs OnChange if the text differs. SelStart stays inside the text.
    void Set_Text(std::string text);
    // The caret, in characters before it.
    int SelStart() const { return selStart_; }
    void Set_SelStart(int position);
    int Length() const;

    bool Enabled() const { return enabled_; }
    void Enable(bool enabled);
    bool Visible() const { return visible_; }
    void Show(bool visible);
    const Placement& Place() const { return place_; }
    void Set_Place(const Placement& place);

  private:
    std::string text_;
    Placement place_;
    int selStart_ = 0;
    bool enabled_ = true;
    bool visible_ = true;
};

// Pages of which one shows.
class TabControl {
  public:
    Handler OnChange; // another tab shows
    View Shown;

    int Tab() const { return tab_; }
    void Select(int tab);

  private:
    int tab_ = 0;
};

// Which picture belongs to what is chosen, by its name; empty where there is none.
class Picture {
  public:
    Handler OnMouseMove;
    View Shown;

    const std::string& Name() const { return name_; }
    void Set_Name(std::string name);

  private:
    std::string name_;
};

class MenuItem {
  public:
    Handler OnClick;
    View Shown;

    const std::string& Caption() const { return caption_; }
    void Set_Caption(std::string caption);
    bool Enabled() const { return enabled_; }
    void Enable(bool enabled);
    bool Checked() const { return checked_; }
    void Check(bool checked);
    // Why choosing it may do nothing; empty: nothing to tell.
    const std::string& Remark() const { return remark_; }
    void Set_Remark(std::string remark);
    void Click() const;

  private:
    std::string caption_, remark_;
    bool enabled_ = true;
    bool checked_ = false;
};

// Panel 1 tells the selection. Beside it, quietly: the remark of the current cell, and a count.
class StatusBar {
  public:
    Handler OnMouseMove;
    View Shown;

    const std::string& Panel1() const { return panel1_; }
    void Set_Panel1(std::string text);
    const std::string& Remark() const { return remark_.Text; }
    RemarkWeight Remark_Weight() const { return remark_.Weight; }
    void Set_Remark(std::string text, RemarkWeight weight = RemarkWeight::Note);
    const std::string& Count() const { return count_; }
    // leadsTo: where a click on it goes; empty: nowhere.
    void Set_Count(std::string text, Handler leadsTo = {});
    const Handler& Count_Leads_To() const { return countLeadsTo_; }

  private:
    std::string panel1_, count_;
    Advice remark_;
    Handler countLeadsTo_;
};

} // namespace Tensarix
