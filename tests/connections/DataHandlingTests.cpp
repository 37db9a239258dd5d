#include "StandIns.h"
#include "common/ReplaceFile.h"
#include "connections/DataHandling.h"

#include <gtest/gtest.h>

#include <random>

#ifndef _WIN32
#include <unistd.h>
#endif

using namespace Tensarix;
using namespace Tensarix::Tests;

namespace {

struct BoltFileTest : testing::Test {
    FreshFolder folder;
    ScriptedMessages boxes;
    std::filesystem::path path = folder.Path / boltFileName;
    std::filesystem::path aside = folder.Path / "BoltInputData.dat.unreadable";
    std::vector<BoltRow> entries;

    bool Failed() {
        bool failed = true;
        ReadBoltFile(entries, path, failed, boxes);
        return failed;
    }
    static std::vector<BoltRow> Two_Rows() {
        return {{5,
                 {"6.000  ", "1.000  ", "3.000  ", "3.000  ", "4.000  ", "0.000  ", "4.558  ",
                  "25.093  "}},
                {300, {"Ø", "", "°", "x", "\xFF", "", "", "1"}}};
    }
};

} // namespace

TEST_F(BoltFileTest, ByteForByte) {
    WriteBoltFile({{258, {"6", "", "3", "", "", "", "", "Ø"}}}, path, boxes);
    const Bytes expected{1, 0, 1, 0,   0, 0, 0, 0, 0, 0, 2, 1, 1, 0, '6',  0,
                         0, 1, 0, '3', 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0xC3, 0x98};
    EXPECT_EQ(Read_Whole_File(path), expected);
}

TEST_F(BoltFileTest, AMissingFileIsMadeEmptyAndAnEmptyOneHasNoRecords) {
    EXPECT_FALSE(Failed());
    EXPECT_EQ(Read_Whole_File(path), Bytes{});
    EXPECT_FALSE(Failed());
    EXPECT_TRUE(entries.empty());
    EXPECT_TRUE(boxes.Shown.empty());
    EXPECT_FALSE(std::filesystem::exists(aside));
}

TEST_F(BoltFileTest, CutShortAnywhereItsTextsAreEmptyFromThere) {
    WriteBoltFile(Two_Rows(), path, boxes);
    const Bytes whole = *Read_Whole_File(path);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        Replace_File(path, Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(length)));
        EXPECT_FALSE(Failed()) << length;
        ASSERT_LE(entries.size(), 2u);
        EXPECT_TRUE(length < whole.size() || entries == Two_Rows());
        bool missing = false;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            EXPECT_EQ(entries[i].RowNumber, Two_Rows()[i].RowNumber) << length;
            for (std::size_t k = 0; k < boltTextCount; ++k) {
                missing = missing || entries[i].Texts[k] != Two_Rows()[i].Texts[k];
                EXPECT_EQ(entries[i].Texts[k], missing ? "" : Two_Rows()[i].Texts[k]) << length;
            }
        }
    }
    EXPECT_TRUE(boxes.Shown.empty());
}

// Damage anywhere, the same in each run: such a file is set aside as it is, or its records, written
// again, are read as the same ones.
TEST_F(BoltFileTest, FlippedBits) {
    std::mt19937 random(1);
    int read = 0;
    for (int round = 0; round < 500; ++round) {
        WriteBoltFile(Two_Rows(), path, boxes);
        Bytes bytes = *Read_Whole_File(path);
        for (unsigned flips = 1 + random() % 4; flips > 0; --flips)
            bytes[random() % bytes.size()] ^= static_cast<unsigned char>(1u << random() % 8);
        Replace_File(path, bytes);
        if (Failed()) {
            EXPECT_EQ(Read_Whole_File(aside), bytes) << round;
            std::filesystem::remove(aside);
            continue;
        }
        ++read;
        const std::vector<BoltRow> once = entries;
        EXPECT_TRUE(WriteBoltFile(once, path, boxes) && !Failed() && entries == once) << round;
    }
    EXPECT_GT(read, 250);
    EXPECT_LT(read, 500);
    EXPECT_TRUE(boxes.Shown.empty());
}

// Its name is given up without a word, its bytes are kept.
TEST_F(BoltFileTest, ImpossibleCounts) {
    const std::vector<Bytes> heads{
        {1, 0, 0x40, 0x42, 0x0F, 0, 0, 0, 0, 0},       // a million records
        {1, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0},    // -1
        {1, 0, 0xFF, 0xFF, 0xFF, 0x7F, 0, 0, 0, 0},    // all that 32 bits hold
        {2, 0, 1, 0, 0, 0, 0, 0, 0, 0},                // two dimensions
        {1, 0, 1, 0, 0, 0, 1, 0, 0, 0},                // counted from 1
        {'P', 'K', 3, 4, 'n', 'o', 't', ' ', 'i', 't'} // something else
    };
    int number = 0;
    for (const Bytes& head : heads) {
        Replace_File(path, head);
        EXPECT_TRUE(Failed());
        EXPECT_FALSE(std::filesystem::exists(path));
        std::filesystem::path kept = aside;
        if (++number > 1)
            kept += std::to_string(number);
        EXPECT_EQ(Read_Whole_File(kept), head);
    }
    EXPECT_TRUE(entries.empty());
    EXPECT_TRUE(boxes.Shown.empty());
}

TEST_F(BoltFileTest, WhatIsNoFileIsToldAndLeftAlone) {
    std::filesystem::create_directory(path);
    EXPECT_FALSE(Failed());
    WriteBoltFile(Two_Rows(), path, boxes);
    EXPECT_EQ(boxes.Shown,
              (Strings(2, "Warning:|Error No. 75:  Path/File access error|exclamation")));
    EXPECT_TRUE(std::filesystem::is_directory(path));
}

#ifndef _WIN32

// The superuser reads everything: for him another user tries.
TEST_F(BoltFileTest, AFileThatCannotBeReadIsLeftWhereItIs) {
    WriteBoltFile(Two_Rows(), path, boxes);
    std::filesystem::permissions(folder.Path, std::filesystem::perms::all);
    std::filesystem::permissions(path, std::filesystem::perms::none);
    const bool super = geteuid() == 0;
    ASSERT_TRUE(!super || seteuid(65534) == 0);
    EXPECT_FALSE(Failed());
    ASSERT_TRUE(!super || seteuid(0) == 0);
    EXPECT_EQ(boxes.Shown, (Strings{"Warning:|Error No. 75:  Path/File access error|exclamation"}));
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_FALSE(std::filesystem::exists(aside));
}

#endif

TEST_F(BoltFileTest, AFailedWriteLeavesTheOldFile) {
    WriteBoltFile(Two_Rows(), path, boxes);
    const auto before = Read_Whole_File(path);
    WriteBoltFile({{1, {std::string(70'000, '1')}}}, path, boxes);
    EXPECT_EQ(boxes.Shown, (Strings{"Warning:|Error No. 6:  Overflow|exclamation"}));
    EXPECT_EQ(Read_Whole_File(path), before);
}
