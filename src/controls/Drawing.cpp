#include "controls/Drawing.h"

namespace Tensarix {

void Drawing::Add(Drawn::Shape what, Drawn::Ink in, std::string name) {
    Parts.push_back({std::move(what), in, std::move(name)});
}

} // namespace Tensarix
