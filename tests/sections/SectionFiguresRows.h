// The rows of the built store, for the tests that check the figures.
#pragma once

#include "sections/SectionStore.h"

#include <map>
#include <string>
#include <vector>

namespace Tensarix {

struct FigureRow {
    std::string Family, Us, Si;
    std::map<std::string, double> Figures; // without the Nulls

    double operator()(const std::string& column) const { return Figures.at(column); }
    bool Has(const std::string& column) const { return Figures.contains(column); }
};

inline const std::vector<std::string> familyCodes{
    "W",       "M",       "HP",      "S",    "C",    "MC",     "WT",    "MT",     "ST",
    "HSS-Rec", "HSS-Sqr", "HSS-Rnd", "Pipe", "L-Eq", "L-UnEq", "2L-Eq", "2L-UnEq"};

// Every figure column of the store by its US name.
inline const std::vector<std::string> figureNames{
    "W",    "A",    "D",    "HT", "OD",  "ID", "BF", "B",  "TW", "TF",        "T",      "TNOM",
    "TDES", "KDES", "KDET", "K1", "K",   "X",  "Y",  "EO", "XP", "YP",        "BF_2TF", "H_TW",
    "B_T",  "H_T",  "D_T",  "IX", "ZX",  "SX", "RX", "IY", "ZY", "SY",        "RY",     "RZ",
    "RO",   "J",    "CW",   "C",  "WNO", "SW", "QF", "QW", "H",  "TAN_ALPHA", "QS"};

inline std::vector<FigureRow> Read_Family_Rows(const std::string& family) {
    SectionRead read(TENSARIX_PROGRAM_DIR, Query_By_Family(family));
    std::vector<FigureRow> rows;
    for (const SectionRecordset& r = read.Records; !r.At_End(); read.Records.MoveNext()) {
        FigureRow row{family, r.Text("AISC_Manual_Label"), r.Text("xAISC_Manual_Label"), {}};
        for (const std::string& name : figureNames)
            for (const std::string& column : {name, "x" + name})
                if (const FieldValue value = r.Field(column);
                    !std::holds_alternative<std::monostate>(value))
                    row.Figures[column] = std::get<double>(value);
        rows.push_back(std::move(row));
    }
    return rows;
}

// Read once: family code to rows in the order of the store.
inline const std::map<std::string, std::vector<FigureRow>>& All_Rows() {
    static const auto all = [] {
        std::map<std::string, std::vector<FigureRow>> families;
        for (const std::string& family : familyCodes)
            families[family] = Read_Family_Rows(family);
        return families;
    }();
    return all;
}

} // namespace Tensarix
