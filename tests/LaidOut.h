// A drawing laid out for a test, with a fixed width of letters.
#pragma once

#include "controls/DrawingLayout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Tensarix::Tests {

inline Drawn::Layout Laid_Out(const Drawing& drawing, Drawn::Size view) {
    return Drawn::Lay_Out(drawing, view, [](const std::string& words) {
        return Drawn::Size{7.0 * static_cast<double>(words.size()), 15};
    });
}

// Every text inside the view, and none on another one.
inline void Expect_Texts_Apart(const Drawn::Layout& layout, Drawn::Size view) {
    const Drawn::Box whole{0, 0, view.Width, view.Height};
    for (std::size_t i = 0; i < layout.Texts.size(); ++i) {
        EXPECT_TRUE(whole.Contains(layout.Texts[i].Place)) << layout.Texts[i].Words;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(layout.Texts[i].Place.Overlaps(layout.Texts[j].Place))
                << layout.Texts[i].Words << " and " << layout.Texts[j].Words;
    }
}

// The shapes of one kind in the parts of that name.
template <typename Shape>
std::vector<Shape> Parts_Of(const Drawing& drawing, const std::string& name) {
    std::vector<Shape> found;
    for (const Drawn::Part& part : drawing.Parts)
        if (const auto* shape = std::get_if<Shape>(&part.What); shape && part.Name == name)
            found.push_back(*shape);
    return found;
}

} // namespace Tensarix::Tests
