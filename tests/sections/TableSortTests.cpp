#include "sections/TableSort.h"

#include "Grids.h"
#include "PlainStore.h"
#include "StandIns.h"
#include "common/Failure.h"
#include "common/NumberText.h"
#include "sections/FindPage.h"
#include "sections/ViewAllPage.h"

#include <algorithm>

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct TableSortTest : testing::Test {
    TestMachine machine;
    Desk desk{machine.Host};
    ViewAllPage page{desk};
    FlexGrid& grid = page.xShapeFlex;

    void Show(int family) {
        page.xProfileOption1.Select();
        FillFamilyList(page.xShapeType);
        page.xShapeType.Select(family);
    }
    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (int row = 1; row < grid.Rows(); ++row)
            names.push_back(Trim(grid.Text(row, 0)));
        return names;
    }
    // Everything that stands in the rows, a line a row.
    std::vector<std::string> Contents() {
        std::vector<std::string> rows;
        for (int row = 1; row < grid.Rows(); ++row) {
            std::string text;
            for (int col = 0; col < grid.Cols(); ++col)
                text += grid.Text(row, col) + "|" + grid.Remark(row, col) + "|" +
                        std::to_string(grid.Style(row, col).Fore) + "|";
            rows.push_back(text);
        }
        return rows;
    }
};

} // namespace

// All columns of all families, both units: the rows are those that were there, their numbers as
// they stand in the store ascend or descend, and the third click brings all back.
TEST_F(TableSortTest, EveryColumnOfEveryFamily) {
    for (int family = 0; family < static_cast<int>(allFamilies.size()); ++family)
        for (OptionButton* units : {&page.xProfileOption2, &page.xProfileOption1}) {
            Show(family);
            units->Select();
            const auto before = Contents();
            const Family& f = Family_At(family);
            const Profile profile = page.xProfileOption1.Value() ? Profile::US : Profile::SI;
            std::map<std::string, std::map<int, double>> numbers;
            SectionRead read(TENSARIX_PROGRAM_DIR, Query_By_Family(f.Type));
            for (read.Records.MoveFirst(); !read.Records.At_End(); read.Records.MoveNext())
                for (int col = 2; col < grid.Cols(); ++col)
                    Attempt([&] {
                        numbers[Trim(read.Records.Text("IDE_STD_Nomenclature"))][col] =
                            Table_Number(read.Records, f.ViewAll.Columns, TableVariant::ViewAll,
                                         col, profile);
                    });
            for (int col = 2; col < grid.Cols(); ++col) {
                for (const bool descends : {false, true}) {
                    grid.OnHeadClick(col);
                    ASSERT_EQ(grid.Sort_Col(), col);
                    ASSERT_EQ(grid.Sort_Descends(), descends);
                    std::vector<double> inOrder;
                    for (const std::string& name : Names())
                        if (const auto& of = numbers[name]; of.contains(col))
                            inOrder.push_back(of.at(col));
                        else
                            ASSERT_FALSE(!name.empty() && numbers[name].contains(col));
                    if (descends)
                        std::reverse(inOrder.begin(), inOrder.end());
                    ASSERT_TRUE(std::is_sorted(inOrder.begin(), inOrder.end()))
                        << f.Name << " " << grid.Text(0, col);
                }
                auto sorted = Contents(), all = before;
                std::sort(sorted.begin(), sorted.end());
                std::sort(all.begin(), all.end());
                ASSERT_EQ(sorted, all);
                grid.OnHeadClick(col);
                ASSERT_EQ(grid.Sort_Col(), -1);
                ASSERT_EQ(Contents(), before);
            }
        }
}

// In inches the texts have another order than the numbers.
TEST_F(TableSortTest, NumbersNotTexts) {
    Show(0);
    page.xDimOption2.Select();
    grid.OnHeadClick(Col_With(grid, "d"));
    EXPECT_EQ(Names()[0], "W4x13");
    grid.OnHeadClick(0); // by the numbers of the designation
    EXPECT_EQ(Names()[0] + " " + Names()[1] + " " + Names().back(), "W4x13 W5x16 W44x335");
}

TEST_F(TableSortTest, TheChosenSectionStaysChosenAndTheNextFamilyIsInOrder) {
    Show(0);
    grid.Press(5, 3);
    const std::string name = grid.Text(5, 0), panel = desk.StatBar.Panel1();
    grid.Set_Top_Row(100);
    grid.OnHeadClick(2);
    EXPECT_EQ(grid.Text(grid.Row(), 0), name);
    EXPECT_NE(grid.Row(), 5);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.Top_Row(), 1);
    EXPECT_EQ(desk.StatBar.Panel1(), panel);
    page.xShapeType.Select(1);
    EXPECT_EQ(grid.Sort_Col(), -1);
    EXPECT_EQ(Names()[0], "M12.5x12.4");
    grid.OnHeadClick(2);
    grid.OnHeadClick(2);
    EXPECT_EQ(Names()[0], "M5x18.9"); // the heaviest
}

// Find sorts what it has found, and blank rows stay at the end.
TEST_F(TableSortTest, OfASearch) {
    FindPage find(desk);
    find.fProfileOption1.Select();
    FillFamilyList(find.fShapeType);
    find.Fill_Criteria();
    find.fShapeType.Select(0);
    find.fShapeFlex.OnHeadClick(4); // of no rows
    find.fPoperty.Select(13);
    find.fCriterion.Select(4);
    find.fValue.Set_Text("1700");
    find.RunFind();
    EXPECT_EQ(find.fShapeFlex.Sort_Col(), -1);
    const std::string heaviest = find.fShapeFlex.Text(1, 0);
    find.fShapeFlex.OnHeadClick(2);
    EXPECT_EQ(find.fShapeFlex.Text(1, 0), find.Lightest());
    EXPECT_EQ(find.fShapeFlex.Text(find.fShapeFlex.Rows() - 1, 0), "");
    find.RunFind();
    EXPECT_EQ(find.fShapeFlex.Text(1, 0), heaviest);
}

// A number that is missing comes last either way.
TEST_F(TableSortTest, MissingNumbersComeLast) {
    const ChangedStore store("UPDATE ShapeTable SET ZX = NULL WHERE AISC_Manual_Label = 'S24x121'");
    machine.Host.Places.Program = store.Folder;
    Show(3);
    for (int click = 0; click < 2; ++click) {
        grid.OnHeadClick(Col_With(grid, "Zx"));
        std::vector<std::string> names = Names();
        std::erase(names, "");
        EXPECT_EQ(names.back(), "S24x121");
    }
}
