#include "ReadSectionTables.h"

#include "common/ReplaceFile.h"

#include <algorithm>
#include <optional>
#include <set>

namespace Tensarix {

namespace {

constexpr std::string_view usHead = "US_DESIGNATION";
constexpr std::string_view siHead = "SI_DESIGNATION";
constexpr std::string_view exceptionsFile = "si-exceptions.csv";
constexpr std::size_t mostCharacters = 10; // what the conversion to SI has room for

using Fields = std::vector<std::string>;

struct TextTable {
    std::string File;
    std::vector<Fields> Lines; // the head is Lines[0]; line numbers in messages start at 1

    [[noreturn]] void Fail(std::size_t line, const std::string& what) const {
        throw TableError(File, line + 1, what);
    }
};

Fields Split(std::string_view line) {
    Fields fields;
    while (true) {
        const std::size_t comma = line.find(',');
        fields.emplace_back(line.substr(0, comma));
        if (comma == std::string_view::npos)
            return fields;
        line.remove_prefix(comma + 1);
    }
}

// The tables are as plain as can be: no quoting, LF ends, every line as many fields as the head.
TextTable Read_Table(const std::filesystem::path& folder, std::string file) {
    TextTable table{std::move(file), {}};
    const auto bytes = Read_Whole_File(folder / table.File);
    if (!bytes || bytes->empty())
        table.Fail(0, "can't be read");
    const std::string text(bytes->begin(), bytes->end());
    if (text.back() != '\n')
        table.Fail(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')),
                   "the last line has no end");
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find('\n', at);
        const std::string line = text.substr(at, end - at);
        const std::size_t number = table.Lines.size();
        for (const char c : line)
            if (c < ' ' || c > '~' || c == '"' || c == '\'')
                table.Fail(number, "a character that has no place here");
        table.Lines.push_back(Split(line));
        if (table.Lines.back().size() != table.Lines[0].size())
            table.Fail(number, "field count differs from the head");
        at = end + 1;
    }
    return table;
}

std::optional<std::size_t> Figure_Position(std::string_view name) {
    const auto* found = std::find_if(figureColumns.begin(), figureColumns.end(),
                                     [&](const FigureColumn& c) { return c.Name == name; });
    if (found == figureColumns.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - figureColumns.begin());
}

// Digits with an optional point between them, no sign, nothing superfluous in front, not zero: no
// figure of a section is.
bool Is_Figure(std::string_view text) {
    const std::size_t point = std::min(text.find('.'), text.size());
    const auto digits = [](std::string_view piece) {
        return !piece.empty() && piece.find_first_not_of("0123456789") == std::string_view::npos;
    };
    return digits(text.substr(0, point)) &&
           (point == text.size() || digits(text.substr(point + 1))) &&
           (point == 1 || text[0] != '0') && text.size() <= mostCharacters &&
           text.find_first_of("123456789") != std::string_view::npos;
}

// The positions of the figures that the head names behind the two designations.
std::vector<std::size_t> Read_Head(const TextTable& table) {
    const Fields& head = table.Lines[0];
    if (head.size() < 3 || head[0] != usHead || head[1] != siHead)
        table.Fail(0, "the head doesn't start with the two designations");
    std::vector<std::size_t> positions;
    for (std::size_t i = 2; i < head.size(); ++i) {
        const auto position = Figure_Position(head[i]);
        if (!position)
            table.Fail(0, "unknown column " + head[i]);
        if (std::find(positions.begin(), positions.end(), *position) != positions.end())
            table.Fail(0, "column " + head[i] + " stands twice");
        positions.push_back(*position);
    }
    return positions;
}

// Designations seen so far in all families.
struct Names {
    std::set<std::string> Us, Si;
};

void Take_Name(const TextTable& table, std::size_t line, const std::string& name,
               std::set<std::string>& seen) {
    if (name.empty() || name.find(' ') != std::string::npos)
        table.Fail(line, "designation empty or with a blank");
    if (!seen.insert(name).second)
        table.Fail(line, "designation " + name + " stands twice");
}

void Read_Family(const std::filesystem::path& folder, const SectionFamily& family, Names& names,
                 std::vector<SectionRow>& rows) {
    const TextTable table = Read_Table(folder, std::string{family.Code} + ".csv");
    const std::vector<std::size_t> positions = Read_Head(table);
    for (std::size_t line = 1; line < table.Lines.size(); ++line) {
        const Fields& fields = table.Lines[line];
        Take_Name(table, line, fields[0], names.Us);
        Take_Name(table, line, fields[1], names.Si);
        SectionRow row{&family, fields[0], fields[1], {}, {}};
        for (std::size_t i = 0; i < positions.size(); ++i) {
            const std::string& figure = fields[i + 2];
            if (!figure.empty() && !Is_Figure(figure))
                table.Fail(line, table.Lines[0][i + 2] + " is no figure: " + figure);
            row.Us[positions[i]] = figure;
        }
        if (family.MassInName && !Is_Figure(fields[1].substr(fields[1].rfind('x') + 1)))
            table.Fail(line, "no mass at the end of " + fields[1]);
        rows.push_back(std::move(row));
    }
}

void Read_Exceptions(const std::filesystem::path& folder, std::vector<SectionRow>& rows) {
    const TextTable table = Read_Table(folder, std::string{exceptionsFile});
    if (table.Lines[0] != Fields{"FAMILY", std::string{usHead}, "COLUMN", "VALUE"})
        table.Fail(0, "the head is not that of the exceptions");
    std::map<std::string_view, SectionRow*> byName;
    for (SectionRow& row : rows)
        byName[row.UsName] = &row;
    for (std::size_t line = 1; line < table.Lines.size(); ++line) {
        const Fields& fields = table.Lines[line];
        const auto row = byName.find(fields[1]);
        if (row == byName.end() || row->second->Family->Code != fields[0])
            table.Fail(line, "no section " + fields[1] + " in the family " + fields[0]);
        const auto position =
            fields[2].starts_with('x') ? Figure_Position(fields[2].substr(1)) : std::nullopt;
        if (!position || figureColumns[*position].Kind == Measure::Ratio ||
            row->second->Us[*position].empty())
            table.Fail(line, "no SI figure " + fields[2] + " of " + fields[1]);
        if (!row->second->Si[*position].empty())
            table.Fail(line, fields[2] + " of " + fields[1] + " stands twice");
        if (!Is_Figure(fields[3]))
            table.Fail(line, "VALUE is no figure: " + fields[3]);
        row->second->Si[*position] = fields[3];
    }
}

} // namespace

TableError::TableError(const std::string& file, std::size_t line, const std::string& what)
    : std::runtime_error(file + ":" + std::to_string(line) + ": " + what) {}

std::vector<SectionRow> Read_Section_Tables(const std::filesystem::path& folder) {
    std::vector<SectionRow> rows;
    Names names;
    for (const SectionFamily& family : sectionFamilies)
        Read_Family(folder, family, names, rows);
    Read_Exceptions(folder, rows);
    return rows;
}

} // namespace Tensarix
