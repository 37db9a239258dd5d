// The guards between the keyboard and the number boxes. A filter takes the character code of a key
// press and gives it back, or 0 where the key is refused. They only keep the boxes clean of
// letters: pasted text passes them by, and a whole text is judged by Is_FeetInch.
#pragma once

#include <string_view>

namespace Tensarix {

// Backspace, tab, enter and digits pass all filters. Points may be typed without end.
int Filter_Decimal(int keyAscii);

// Also the blank and the marks / " ' and -; the text of the box plays no part.
int Filter_FeetInch(int keyAscii, std::string_view boxText);

// No point.
int Filter_Digits(int keyAscii);

// A point unless the text of the box has one.
int Filter_Single_Point(int keyAscii, std::string_view boxText);

bool Has_Point(std::string_view boxText);

// True if the text is a length in feet and inches, as it stands: callers trim.
bool Is_FeetInch(std::string_view text);

} // namespace Tensarix
