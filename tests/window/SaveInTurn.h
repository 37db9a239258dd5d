// The program that is killed while it saves.
#pragma once

#include <string_view>

namespace Tensarix::Tests {

// Loads the settings and the three data files as the program does, tells "ready", and saves one
// state after another: a letter each, "*" begins again. The folder is for the data files. Message
// boxes go to the output, a line each.
int Save_In_Turn(std::string_view states, std::string_view folder);

} // namespace Tensarix::Tests
