#include "SectionFigures.h"

#include "ReadSectionTables.h"
#include "sections/SectionStore.h"

namespace Tensarix {

namespace {

FigureRow Read_Row(std::string_view family, const SectionRecordset& records) {
    FigureRow row{std::string{family},
                  records.Text("AISC_Manual_Label"),
                  records.Text("xAISC_Manual_Label"),
                  {}};
    for (const FigureColumn& figure : figureColumns)
        for (std::string column : {"", "x"}) {
            column += figure.Name;
            if (const FieldValue value = records.Field(column);
                !std::holds_alternative<std::monostate>(value))
                row.Figures[column] = std::get<double>(value);
        }
    return row;
}

} // namespace

FigureRows Read_Figure_Rows(const std::filesystem::path& storeFolder) {
    FigureRows rows;
    for (const SectionFamily& family : sectionFamilies) {
        SectionRead read(storeFolder, Query_By_Family(family.Code));
        for (; !read.Records.At_End(); read.Records.MoveNext())
            rows[std::string{family.Code}].push_back(Read_Row(family.Code, read.Records));
    }
    return rows;
}

} // namespace Tensarix
