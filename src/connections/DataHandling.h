// The data file of the bolt table, BoltInputData.dat. Little-endian, without padding:
//
//   int16 count of dimensions, 1; int32 count of records; int32 lower bound, 0; then each record:
//   int16 row number; eight texts, each with a 16-bit unsigned count of its bytes in front.
//
// Texts are UTF-8. There is no magic and no version; the file is always written whole.
#pragma once

#include "platform/Machine.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

inline constexpr std::string_view boltFileName = "BoltInputData.dat";
// Behind the name of a file that could not be read and was taken out of the way.
inline constexpr std::string_view unreadableSuffix = ".unreadable";

inline constexpr std::size_t boltTextCount = 8;

// One saved row of the table.
struct BoltRow {
    std::int16_t RowNumber = 0;                   // of the grid, from 1
    std::array<std::string, boltTextCount> Texts; // columns 1 to 8: m, n, sv, sh, ex, angle, C, C'

    bool operator==(const BoltRow&) const = default;
};

// Rows have numbers of 16 bits, and each is saved once at the most.
inline constexpr std::int32_t mostBoltRows = 32767;

// The records of the file; where bytes are missing at its end, texts are empty. A missing file is
// made, empty. If its counts are impossible (or it is larger than any table) it gives up its name:
// it goes to the same name with unreadableSuffix behind it, and a number from 2 on if there is one
// already; `failed` is then true, without a message. A file that can't be read stays where it is,
// and a message tells.
void ReadBoltFile(std::vector<BoltRow>& entries, const std::filesystem::path& path, bool& failed,
                  Messages& boxes);

// Puts a new file in the place of the old one. An error is shown in a message, and the old file is
// as it was; the result is false then.
bool WriteBoltFile(const std::vector<BoltRow>& entries, const std::filesystem::path& path,
                   Messages& boxes);

} // namespace Tensarix
