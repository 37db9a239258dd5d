// The largest deviation that a check finds. It is kept with the test's result, where
// docs/validation.md takes its numbers from: run the test with --gtest_output=json:/dev/stdout.
#pragma once

#include <gtest/gtest.h>

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

} // namespace Tensarix::Tests
