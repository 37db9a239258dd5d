// The rows of the bolt table and the file that keeps them.
#include "connections/BoltPage.h"

#include <system_error>

namespace Tensarix {

void BoltPage::LoadBoltEntries() {
    bool failed = false;
    ReadBoltFile(BoltEntries, File(), failed, desk_.Host.Boxes);
    if (failed)
        return;
    for (const BoltRow& entry : BoltEntries) {
        // Only a damaged file has a row number below 1.
        if (entry.RowNumber < 1 || entry.RowNumber > cFlex.Rows() - 1)
            continue;
        int col = BoltColumn::FirstInput;
        for (const std::string& text : entry.Texts)
            cFlex.Set_Text(entry.RowNumber, col++, text);
        unremarked_.push_back(entry.RowNumber);
    }
    Remember_Saved();
    Show_Unsaved();
    Show_No_Doubt();
    Remark_On_Next();
}

void BoltPage::Fill_BoltEntries() {
    BoltEntries.clear();
    for (int row = 1; row < cFlex.Rows(); ++row) {
        if (!IsBoltRowComplete(cFlex, row))
            continue;
        BoltRow& entry = BoltEntries.emplace_back();
        entry.RowNumber = static_cast<std::int16_t>(row);
        int col = BoltColumn::FirstInput;
        for (std::string& text : entry.Texts)
            text = cFlex.Text(row, col++);
    }
}

// The last message comes after the one of a file that could not be written, too; the note beside
// the button then still counts the rows.
void BoltPage::Save_Click() {
    if (!Commit_Editor())
        return;
    Messages& boxes = desk_.Host.Boxes;
    if (CountBoltRows(cFlex) < 1) {
        boxes.Show("No Entries to Save ! ", "For Your Info:", MessageIcon::Exclamation);
        return;
    }
    Fill_BoltEntries();
    if (WriteBoltFile(BoltEntries, File(), boxes))
        Remember_Saved();
    Show_Unsaved();
    boxes.Show("Entries succesfully Saved ! ", "Warning:", MessageIcon::Information);
}

void BoltPage::Clear_Click() {
    if (!Commit_Editor())
        return;
    Messages& boxes = desk_.Host.Boxes;
    if (CountBoltRows(cFlex) < 1) {
        boxes.Show("No Entries to Clear ! ", "Warning:", MessageIcon::Exclamation);
        return;
    }
    if (!boxes.Ask_Yes_No("Are you sure you really want to clear Entries?",
                          "Warning:", MessageIcon::Stop))
        return;
    editing_.Hide();
    Clear_Rows();
    editing_.History.Note();
    std::error_code ignored;
    if (std::filesystem::remove(File(), ignored) || !std::filesystem::exists(File(), ignored))
        saved_.clear();
    Show_Selected();
    Show_Unsaved();
}

void BoltPage::Clear_Rows() {
    for (int row = 1; row < cFlex.Rows(); ++row) {
        ++newestSearch_[row];
        for (int col = BoltColumn::FirstInput; col < BoltColumn::Count; ++col)
            cFlex.Set_Text(row, col, {});
    }
    Verdicts.Drop_From(0);
    Show_No_Doubt();
}

void BoltPage::Remember_Saved() {
    saved_.clear();
    for (const BoltRow& entry : BoltEntries)
        saved_.emplace(entry.RowNumber, entry);
}

// Its inputs, that is: results follow from them.
bool BoltPage::Is_Saved(int row) const {
    const auto at = saved_.find(row);
    if (at == saved_.end())
        return false;
    for (int col = BoltColumn::FirstInput; col <= BoltColumn::LastInput; ++col)
        if (cFlex.Text(row, col) != at->second.Texts[static_cast<std::size_t>(col - 1)])
            return false;
    return true;
}

void BoltPage::Show_Unsaved() {
    int count = 0;
    for (int row = 1; row < cFlex.Rows(); ++row)
        count += IsBoltRowComplete(cFlex, row) && !Is_Saved(row) ? 1 : 0;
    const std::string rows = count == 1 ? " row not saved" : " rows not saved";
    UnsavedNote.Set_Caption(count > 0 ? std::to_string(count) + rows : std::string{});
}

std::filesystem::path BoltPage::File() const {
    return desk_.Host.Places.Data / boltFileName;
}

} // namespace Tensarix
