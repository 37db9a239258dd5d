// The rows of a built section store, for the checks of its figures, and where a fault is told.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace Tensarix {

struct FigureRow {
    std::string Family, Us, Si;
    std::map<std::string, double> Figures; // without the Nulls; SI ones have an "x" in front

    double operator()(const std::string& column) const { return Figures.at(column); }
    bool Has(const std::string& column) const { return Figures.contains(column); }
};

// Family code to rows, in the order of the store. Fails if the store can't be read.
using FigureRows = std::map<std::string, std::vector<FigureRow>>;
FigureRows Read_Figure_Rows(const std::filesystem::path& storeFolder);

// Tells a fault in one line, and counts it.
class Faults {
  public:
    void Expect(bool holds, const std::string& otherwise);
    int Count() const { return count_; }

  private:
    int count_ = 0;
};

// The figures of a section have to agree with each other. Prints the largest deviation of each
// check if wanted.
void Check_Figures_With_Each_Other(const FigureRows& rows, Faults& faults, bool printDeviations);

// The store has to hold the tables of that folder, SI has to follow from US, and the designations
// have to name the figures.
void Check_Figures_With_Tables(const FigureRows& rows, const std::filesystem::path& tables,
                               Faults& faults);

} // namespace Tensarix
