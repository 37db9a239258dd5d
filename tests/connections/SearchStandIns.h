// Yields and displays for searches without a screen.
#pragma once

#include <functional>
#include <string>

#include "connections/WeldFunctions.h"

namespace Tensarix {

// Counts what it is asked; gives up the search after so many times.
struct CountingTurn {
    long asked = 0;
    long most = 50'000'000;
    bool operator()() { return ++asked < most; }
};

struct RecordingDisplay final : WeldDisplay {
    std::string text;
    std::string elapsed;
    std::int64_t now = 0;
    long steps = 0;
    std::function<void()> onStep = [] {};

    std::int64_t Now() override { return now; }
    bool Has_Text() override { return text.find_first_not_of(' ') != std::string::npos; }
    void Replace_Text(std::string_view by) override { text = by; }
    void Append_Text(std::string_view more) override { text += more; }
    void Show_Elapsed(std::string_view caption) override {
        elapsed = caption;
        ++steps;
        onStep();
    }
};

// A weld search with all that it needs.
struct WeldBench {
    CountingTurn turn;
    SearchYield yield{std::ref(turn)};
    WeldState state;
    RecordingDisplay display;
    WeldSearch search{state, display, yield};
};

} // namespace Tensarix
