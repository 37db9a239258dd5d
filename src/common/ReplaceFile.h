// Files are read whole and replaced whole.
#pragma once

#include "common/Bytes.h"

#include <filesystem>
#include <optional>

namespace Tensarix {

// None if there is no such regular file, it can't be read, or it is longer than the limit.
std::optional<Bytes> Read_Whole_File(const std::filesystem::path& path,
                                     std::size_t limit = 64u << 20);

// Writes a new file beside the old one, under a name that no other has ("NAME.09af3c51.new"), then
// gives it the name. The old one's permissions hold from the start, and a link to it stays. False:
// the old file is as it was, and nothing stands beside it; so too where something else than a file
// has the name. A program that is killed meanwhile leaves the old file or the new one, and at most
// one ".new", which the next replacement takes away.
bool Replace_File(const std::filesystem::path& path, const Bytes& bytes);

} // namespace Tensarix
