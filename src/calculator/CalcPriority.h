// What a chain of operators comes to by their priority alone. It is followed beside the pending
// operations, which reach back three operands and no further, and only for a remark: where they
// come to something else, the panel says so.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

struct PriorityChain {
    std::vector<double> Numbers;
    std::vector<std::string> Operators; // as many, or one less

    // What "=" left waiting beside the total: the next operator takes it instead.
    std::string Waiting;
    // Not followed any more until the next Start.
    bool Lost = false;

    void Start(std::optional<double> first);
    // An operand; behind one that no operator follows, it begins the chain anew.
    void Take_Number(double number);
    // Takes the place of an operator that no operand has followed.
    void Take_Operator(std::string_view op);
    // Powers first, then products, then sums, each from the left; an operator at the end counts for
    // nothing. None if the chain is lost or has no result.
    std::optional<double> Result() const;
};

// What stands beside a total that the chain disagrees with; else empty.
std::string Priority_Remark(const PriorityChain& chain, double total);

} // namespace Tensarix
