// CheckSectionFigures TABLES FOLDER [--deviations]: holds the figures of the section store in
// FOLDER against the tables in TABLES and against each other. Each fault is told in one line; it
// fails if there is one. With --deviations the largest deviation of each check is printed, from
// which docs/validation.md has its numbers.
#include "SectionFigures.h"

#include <iostream>

namespace Tensarix {

void Faults::Expect(bool holds, const std::string& otherwise) {
    if (holds)
        return;
    ++count_;
    std::cerr << otherwise << '\n';
}

} // namespace Tensarix

int main(int argc, char** argv) {
    using namespace Tensarix;
    if (argc < 3) {
        std::cerr << "usage: CheckSectionFigures TABLES FOLDER [--deviations]\n";
        return 2;
    }
    try {
        Faults faults;
        const FigureRows rows = Read_Figure_Rows(argv[2]);
        Check_Figures_With_Tables(rows, argv[1], faults);
        Check_Figures_With_Each_Other(rows, faults,
                                      argc > 3 && std::string_view{argv[3]} == "--deviations");
        return faults.Count() == 0 ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << "CheckSectionFigures: " << failure.what() << '\n';
        return 1;
    }
}
