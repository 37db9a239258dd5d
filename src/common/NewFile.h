// What the replacing of files needs of the system: files that are made new, or not at all, and that
// are known to belong to a program that still runs.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>

namespace Tensarix {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

// Makes the file, for writing, and holds it until it is closed. None if anything has that name,
// were it a link to nowhere. Without permissions it gets those that the user's new files have.
OpenFile Make_New_File(const std::filesystem::path& path,
                       std::optional<std::filesystem::perms> permissions);

// What was written to it is on the disk. False: not all of it.
bool Put_On_Disk(std::FILE* file);

// Gives the file its name, in place of what had it. False: nothing has changed.
bool Give_Name(OpenFile file, const std::filesystem::path& path, const std::filesystem::path& name);

// Takes the file away if it is this user's own and no program holds it any more.
void Remove_If_Left(const std::filesystem::path& path);

} // namespace Tensarix
