#include "ReplaceFileTest.h"
#include "common/Failure.h"

#include <fstream>
#include <string>
#include <thread>

using namespace Tensarix;

TEST_F(ReplaceFileTest, WhatIsWrittenIsReadBack) {
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

TEST_F(ReplaceFileTest, AReadPastTheEndFailsAndTakesNothing) {
    const Bytes bytes{5, 0, 'a', 'b'};
    ByteReader reader(bytes);
    EXPECT_THROW(reader.Text_With_Length(), Failure);
    EXPECT_THROW(reader.Double(), Failure);
    EXPECT_EQ(reader.Left(), 4u);
    EXPECT_EQ(reader.Int16(), 5);
    ByteWriter writer;
    EXPECT_THROW(writer.Text_With_Length(std::string(70000, 'x')), Failure);
}

TEST_F(ReplaceFileTest, WhatCanBeRead) {
    ASSERT_TRUE(Replace_File(folder / "a.dat", {1, 2, 3}));
    ASSERT_TRUE(Replace_File(folder / "empty", {}));
    EXPECT_EQ(Read_Whole_File(folder / "empty"), Bytes{});
    EXPECT_FALSE(Read_Whole_File(folder / "none") || Read_Whole_File(folder));
    EXPECT_FALSE(Read_Whole_File(folder / "a.dat", 2));
}

// A killed program has left its new file; that of a program that runs is still held.
TEST_F(ReplaceFileTest, WhatAKillLeftGoes) {
    const OpenFile held = Make_New_File(folder / "a.dat.00000001.new", {});
    ASSERT_TRUE(held);
    ASSERT_TRUE(Make_New_File(folder / "a.dat.00000002.new", {}));
    ASSERT_FALSE(Make_New_File(folder / "a.dat.00000002.new", {}));
    ASSERT_TRUE(Make_New_File(folder / "a.dat.old.new", {}));
    ASSERT_TRUE(Replace_File(folder / "a.dat", {1}));
    EXPECT_EQ(All(), (std::map<std::string, Bytes>{
                         {"a.dat", {1}}, {"a.dat.00000001.new", {}}, {"a.dat.old.new", {}}}));
}

// Each writer has a file of its own: who reads sees the whole of one.
TEST_F(ReplaceFileTest, TwoWritersTearNothing) {
    const Bytes one(20000, 1), two(30000, 2);
    ASSERT_TRUE(Replace_File(folder / "a.dat", one));
    const auto write = [this](const Bytes& bytes) {
        for (int i = 0; i < 100; ++i)
            EXPECT_TRUE(Replace_File(folder / "a.dat", bytes));
    };
    std::thread first(write, one), second(write, two);
    for (int i = 0; i < 200; ++i) {
        std::ifstream file(folder / "a.dat", std::ios::binary);
#ifdef _WIN32 // where it is held while it gets its name
        if (!file)
            continue;
#endif
        const Bytes seen{std::istreambuf_iterator<char>(file), {}};
        EXPECT_TRUE(seen == one || seen == two) << seen.size() << " bytes";
    }
    first.join();
    second.join();
    EXPECT_EQ(All().size(), 1u);
}
