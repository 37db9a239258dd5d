// The largest deviation that a check finds. It is kept with the test's result, where
// docs/validation.md takes its numbers from: run the test with --gtest_output=json:/dev/stdout.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <sstream>
#include <string>

namespace Tensarix::Tests {

class Largest {
  public:
    void Take(double deviation, const std::string& at) {
        ++cases_;
        if (deviation <= value_)
            return;
        value_ = deviation;
        at_ = at;
    }
    void Record(const std::string& check) const {
        std::ostringstream text;
        text.precision(2);
        text << cases_ << " cases, largest " << value_ << (at_.empty() ? "" : " at ") << at_;
        testing::Test::RecordProperty(check, text.str());
    }

  private:
    double value_ = 0;
    int cases_ = 0;
    std::string at_;
};

// All deviations from printed figures, by table, in per cent of the print; behind each the half
// unit of its last digit. tools/deviations.py draws them.
class FromPrint {
  public:
    void Take(const std::string& table, double computed, double printed, double unit) {
        std::ostringstream text;
        text.precision(2);
        text << 100 * (computed / printed - 1) << '/' << 50 * unit / std::abs(printed) << ' ';
        deviations_[table] += text.str();
    }
    void Record() const {
        for (const auto& [table, deviations] : deviations_)
            testing::Test::RecordProperty("print: " + table, deviations);
    }

  private:
    std::map<std::string, std::string> deviations_;
};

} // namespace Tensarix::Tests
