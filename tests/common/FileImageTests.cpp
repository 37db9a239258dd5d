#include "common/Failure.h"
#include "common/FileImage.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Tensarix;
namespace fs = std::filesystem;

namespace {

class FileImageTest : public testing::Test {
  protected:
    void SetUp() override {
        folder = fs::temp_directory_path() / ("tensarix-file-" + std::to_string(getpid()));
        fs::create_directories(folder);
    }
    void TearDown() override {
        fs::permissions(folder, fs::perms::owner_all);
        fs::remove_all(folder);
    }
    fs::path folder;
};

} // namespace

TEST_F(FileImageTest, WhatIsWrittenIsReadBack) {
    ByteWriter writer;
    writer.Int16(-2);
    writer.Int32(0x01020304);
    writer.Double(-0.1);
    writer.Text_With_Length("\xC3\x98 3/8");
    writer.Text("end");
    EXPECT_EQ(writer.Written()[2], 4); // little-endian
    ASSERT_TRUE(Replace_File(folder / "a.dat", writer.Written()));

    const auto bytes = Read_Whole_File(folder / "a.dat");
    ASSERT_TRUE(bytes);
    ByteReader reader(*bytes);
    EXPECT_EQ(reader.Int16(), -2);
    EXPECT_EQ(reader.Int32(), 0x01020304);
    EXPECT_EQ(reader.Double(), -0.1);
    EXPECT_EQ(reader.Text_With_Length(), "\xC3\x98 3/8");
    EXPECT_EQ(reader.Text(3), "end");
    EXPECT_EQ(reader.Left(), 0u);
}

TEST_F(FileImageTest, AReadPastTheEndFailsAndTakesNothing) {
    const Bytes bytes{5, 0, 'a', 'b'};
    ByteReader reader(bytes);
    EXPECT_THROW(reader.Text_With_Length(), Failure);
    EXPECT_THROW(reader.Double(), Failure);
    EXPECT_EQ(reader.Left(), 4u);
    EXPECT_EQ(reader.Int16(), 5);
    ByteWriter writer;
    EXPECT_THROW(writer.Text_With_Length(std::string(70000, 'x')), Failure);
}

TEST_F(FileImageTest, AFailedReplacementLeavesTheOldFile) {
    ASSERT_TRUE(Replace_File(folder / "a.dat", {1, 2, 3}));
    fs::create_directory(folder / "a.dat.new"); // stands in the way of the new file
    EXPECT_FALSE(Replace_File(folder / "a.dat", {4}));
    EXPECT_EQ(Read_Whole_File(folder / "a.dat"), (Bytes{1, 2, 3}));
    ASSERT_TRUE(Replace_File(folder / "empty", {}));
    EXPECT_EQ(Read_Whole_File(folder / "empty"), Bytes{});
    EXPECT_FALSE(Read_Whole_File(folder / "none"));
    EXPECT_FALSE(Read_Whole_File(folder));
    EXPECT_FALSE(Read_Whole_File(folder / "a.dat", 2));
}
