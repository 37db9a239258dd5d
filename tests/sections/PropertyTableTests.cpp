// The texts of cells against the store, against figures of the Manual, and against the rules of
// each kind of property.
#include "StandIns.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/Assoc_Property.h"
#include "sections/FamilyTable.h"

#include <gtest/gtest.h>

using namespace Tensarix;

namespace {

SectionRecordset Section(const std::string& label) {
    SectionRecordset records =
        std::move(SectionRead(TENSARIX_PROGRAM_DIR, Query_By_US_Label(label)).Records);
    records.MoveFirst();
    return records;
}

const Property& Named(const Layout& layout, std::string_view symbol) {
    for (const LayoutEntry& entry : layout.Entries)
        if (entry.Browse && entry.Browse->Symbol == symbol)
            return *entry.Browse;
    throw Failure("no such symbol");
}

constexpr auto us = Profile::US;
constexpr auto si = Profile::SI;
constexpr auto decimal = DimensionStyle::Decimal;

} // namespace

TEST(FormatSiProperty, ShortensToTheDigitsThatFit) {
    const std::pair<double, const char*> cases[] = {
        // clang-format off
        {0, "0.00"}, {0.4, "0.00"}, {416000000, "416x10^6"}, {1550000000, "16x10^8"},
        {12900000000, "1x10^10"}, {144000000000000, "144x10^12"}, {1030, "1x10^3"},
        {1230, "1230.00  "}, // no whole triple behind the first zero
        {1234, "0.00"},      // no zero at all
        {-416000000, "0.00"}, {20000, "2x10^4"}, {108000, "108x10^3"}, {6070000, "6x10^6"},
        // clang-format on
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(FormatSiProperty(value), text) << value;
}

TEST(PropertyTable, LostDigitsAreToldWithTheStoredNumber) {
    const Property &ix = Named(Layouts::W, "Ix"), &cw = Named(Layouts::W, "Cw");
    const SectionRecordset w = Section("W44x335"), l = Section("L2x2x1/8");
    const auto caution = RemarkWeight::Caution, note = RemarkWeight::Note;
    EXPECT_EQ(Lost_Digits_Remark(w, ix, si, "1x10^10  "),
              (Advice{"Use the stored value: 12,900,000,000 mm^4", caution}));
    EXPECT_EQ(Lost_Digits_Remark(w, ix, us, "31100.00  "), Advice{});
    EXPECT_EQ(Lost_Digits_Remark(l, Named(Layouts::SAngle, "Cw"), us, "0.0008  "),
              (Advice{"Use the stored value: 0.000789 in^6", caution}));
    EXPECT_EQ(Lost_Digits_Remark(w, cw, si, "144x10^12  "), Advice{});
    EXPECT_EQ(Lost_Digits_Remark(w, cw, si, "145x10^12  "),
              (Advice{"Stored value: 144,000,000,000,000 mm^6", note}));
}

// Every such figure of every section either reads back as the stored number or carries a remark
// that names it.
TEST(PropertyTable, NoSecondMomentIsSilentlyWrong) {
    for (const Profile profile : {us, si}) {
        int lost = 0, whole = 0;
        for (const Family& family : allFamilies) {
            SectionRead read(TENSARIX_PROGRAM_DIR, Query_By_Family(family.Type));
            for (read.Records.MoveFirst(); !read.Records.At_End(); read.Records.MoveNext())
                for (const LayoutEntry& entry : family.Browse.Rows.Entries) {
                    const Property* p = entry.Browse;
                    if (!p || p->Kind != PropertyKind::SecondMoment ||
                        std::holds_alternative<std::monostate>(read.Records.Field(p->SIColumn)))
                        continue;
                    const double stored = Value_Number(read.Records, *p, profile);
                    const std::string text = Value_Text(read.Records, *p, profile, decimal);
                    const double shown = Leading_Value(Replace_All(text, "x10^", "E"));
                    const bool told =
                        !Lost_Digits_Remark(read.Records, *p, profile, text).Text.empty();
                    EXPECT_EQ(told, shown != stored) << text << " for " << stored;
                    ++(told ? lost : whole);
                }
        }
        EXPECT_GT(lost, 0);
        EXPECT_GT(whole, 0);
        RecordProperty(profile == us ? "US" : "SI",
                       std::to_string(lost) + " of " + std::to_string(lost + whole) + " told");
    }
}

TEST(FamilyTable, DesignationsAndPictures) {
    EXPECT_EQ(SpaceDesignation("W18x50"), "W18 x 50");
    EXPECT_EQ(SpaceDesignation(" Pipe12STD "), "Pipe12STD");
    EXPECT_EQ(SpaceDesignation("2L8x6x1x3/8LLBB"), "2L8 x 6 x 1 x 3/8LLBB");
    EXPECT_EQ(Double_Angle_Picture("2L8x6x1SLBB "), "DLUnEqImage1");
    EXPECT_EQ(Double_Angle_Picture("2L8x6x1LLBB"), "DLUnEqImage2");
    EXPECT_EQ(Double_Angle_Picture("2L8x6x1slbb"), "DLUnEqImage2");
    EXPECT_EQ(Spoken_Family("Double Angle (UnEqual Legs)"), "Double Angle UnEqual Legs");
}

TEST(FamilyTable, AFamilyThatIsNoneHasNoSizes) {
    ComboBox usList, siList;
    usList.Add("W18x50");
    FillSizeLists(usList, siList, "none such", TENSARIX_PROGRAM_DIR);
    EXPECT_EQ(usList.Count(), 0);
}
