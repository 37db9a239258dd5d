// What the tests of the replacing of files share.
#pragma once

#include "FreshFolder.h"
#include "common/NewFile.h"
#include "common/ReplaceFile.h"

#include <gtest/gtest.h>

#include <map>

namespace Tensarix {

namespace fs = std::filesystem;

class ReplaceFileTest : public testing::Test {
  protected:
    // Everything in it, by name.
    std::map<std::string, Bytes> All() const {
        std::map<std::string, Bytes> all;
        for (const auto& entry : fs::directory_iterator(folder))
            all[entry.path().filename().string()] = Read_Whole_File(entry.path()).value_or(Bytes{});
        return all;
    }
    const Tests::FreshFolder fresh;
    const fs::path& folder = fresh.Path;
};

} // namespace Tensarix
