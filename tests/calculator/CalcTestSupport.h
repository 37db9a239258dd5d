// A calculator that is driven by a line of keys.
#pragma once

#include "calculator/CalcConstants.h"
#include "calculator/CalcKeys.h"
#include "calculator/CalcMemoryFrm.h"
#include "calculator/CalcStatistics.h"
#include "common/NumberText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace Tensarix {

struct CalcTest {
    CalcVariables Vars;
    CalcMainFrm Form{Vars, {}, {}};

    CalcTest() { Open(Form); }

    // Words parted by blanks: control names, tokens, and numbers, which are keyed digit by digit.
    CalcTest& Keys(const std::string& line) {
        std::istringstream words(line);
        for (std::string word; words >> word;)
            Key(word);
        return *this;
    }

    void Key(const std::string& word) {
        if (const CalcKey* key = Find_Key(word))
            Press(Form, *key);
        else if (word.find_first_not_of("0123456789.") == std::string::npos)
            for (const char c : word)
                KeyPress(Form, c == '.' ? "dot" : std::string(1, c));
        else
            KeyPress(Form, word);
    }

    // Mantissa and exponent as they stand side by side.
    std::string Shown() const { return Form.Panel.DisplayBox + Form.Panel.ExpoBox; }
};

// A calculator whose dialogs are answered: a row, a description, and Yes or No.
struct DialogTest : CalcTest {
    int Row = 0;
    const char* Description = nullptr; // typed over what the box shows
    bool Yes = true, Leave = false;
    std::string Opened; // the title of the last dialog
    std::vector<std::string> Questions;
    std::string RowSeen, BoxSeen;

    DialogTest() {
        CalcHost& host = Form.Host;
        host.Ask = [this](const CalcQuestion& question) {
            Questions.push_back(question.Title + ": " + question.Text);
            return Yes;
        };
        host.Show_Memory = [this](CalcMemoryFrm& dialog) {
            Opened = dialog.Title;
            dialog.Select_Row(Row);
            const CalcRow& row = dialog.ItemBox[static_cast<std::size_t>(Row)];
            RowSeen = row.Name + row.Value;
            BoxSeen = dialog.DescBox;
            if (Description)
                dialog.DescBox = Description;
            Leave ? dialog.ExitButton() : dialog.OKButton();
            if (!dialog.Closed)
                dialog.ExitButton();
        };
        host.Show_Data = [this](CalcDataFrm& dialog) {
            Opened = "Data";
            dialog.Toggle_Row(Row, true);
            dialog.DeleteButton();
        };
        host.Show_Constants = [this](CalcConstantFrm& dialog) {
            Opened = "Scientific Constant";
            dialog.Select_Row(Row);
            Leave ? dialog.ExitButton() : dialog.OKButton();
        };
        host.Show_Help = [this] { Opened = "Help"; };
        host.Close_Form = [this] { Opened = "Exit"; };
    }
    Register& At(std::size_t row) { return Vars.Memory.Registers[row]; }
};

inline std::string Shown_After(const std::string& line) {
    return CalcTest().Keys(line).Shown();
}

// Cases "keys -> outcome", several a line with three blanks or more between them;
// a line that begins with "#" tells of the next one.
template <typename Outcome>
void Expect_Each(const std::string& table, Outcome outcome) {
    for (std::size_t at = 0, end = 0; at < table.size(); at = end + 1) {
        end = std::min({table.find("   ", at), table.find('\n', at), table.size()});
        const std::string text = ' ' + Trim(table.substr(at, end - at)) + ' ';
        if (text == "  " || text.starts_with(" #"))
            continue;
        const std::size_t arrow = text.find(" -> ");
        ASSERT_NE(arrow, std::string::npos) << text;
        const std::string keys = Trim(text.substr(0, arrow));
        EXPECT_EQ(outcome(keys), Trim(text.substr(arrow + 3))) << keys;
    }
}

} // namespace Tensarix
