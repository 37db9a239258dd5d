// What a user types of a name, and which names it means: letter case and blanks are free, "*"
// counts as "x", and a fraction as its decimals, so that 1/2, .5, 0.5 and 0.500 mean the same.
#pragma once

#include "controls/Controls.h"
#include "controls/FlexGrid.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

// A name, prepared for the comparison.
struct NameKey {
    struct Start { // of the whole, or of a number or word in it
        std::uint8_t At, Level;
    };
    std::string Decimal, Literal; // with fractions as decimals; as it is written
    std::vector<Start> DecimalStarts, LiteralStarts;

    NameKey() = default;
    explicit NameKey(std::string_view name);
};

class TypedName {
  public:
    explicit TypedName(std::string_view typed);

    static constexpr int perLevel = 8, noMatch = 1000;

    // How well it enters the name, an even number; the less, the better. From 0: it begins so;
    // from perLevel on the first number or word in it does; from twice that on a later one.
    // 0 of each level: to the end; 2: the number typed last is complete. A blank text enters none.
    int Match(const NameKey& name) const;
    bool Begins(const NameKey& name) const { return Match(name) < perLevel; }

  private:
    struct Reading { // of the blanks, which may stand for something
        std::string Decimal, Literal;
        bool Closed = false;
    };

    std::vector<Reading> readings_;
};

// The position that a typed beginning means; -1: none. Of the items that begin so, the shortest
// counts, and of equally short ones the last: a designation that is typed in full is found although
// a longer one stands before it, and of a group the lightest.
int Find_By_Typing(const ComboBox& list, std::string_view typed);

// The row whose name a typed beginning means, as in a list. Names stand in the fixed columns, or in
// the first one; those of the first column come before the others.
int Find_Row_By_Typing(const FlexGrid& grid, std::string_view typed);

// The numbers of a designation, fractions as decimals: L8x6x7/16 gives 8, 6, 0.4375.
std::vector<double> Numbers_In_Name(std::string_view name);

} // namespace Tensarix
