#include "FreshFolder.h"
#include "common/Failure.h"
#include "common/NewFile.h"
#include "common/ReplaceFile.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <map>
#include <string>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Tensarix;
namespace fs = std::filesystem;

namespace {

class ReplaceFileTest : public testing::Test {
  protected:
    // Everything in it, by name.
    std::map<std::string, Bytes> All() const {
        std::map<std::string, Bytes> all;
        for (const auto& entry : fs::directory_iterator(folder))
            all[entry.path().filename()] = Read_Whole_File(entry.path()).value_or(Bytes{});
        return all;
    }
    Tests::FreshFolder fresh;
    const fs::path& folder = fresh.Path;
};

// A disk on which no file can grow beyond so many bytes.
class FullDisk {
  public:
    explicit FullDisk(rlim_t room) {
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{room, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;

  private:
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old_{};
};

// As a user whom permissions bind, which the superuser is not.
class BoundByPermissions {
  public:
    BoundByPermissions() : set_(geteuid() == 0 && seteuid(nobody) == 0) {}
    ~BoundByPermissions() { set_ = set_ && seteuid(0) == 0; }
    BoundByPermissions(const BoundByPermissions&) = delete;

  private:
    static constexpr uid_t nobody = 65534;
    bool set_;
};

} // namespace

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

TEST_F(ReplaceFileTest, OnAFullDiskTheOldFileStaysAlone) {
    ASSERT_TRUE(Replace_File(folder / "a.dat", {1, 2, 3}));
    const auto before = All();
    struct {
        rlim_t room;
        std::size_t size;
    } const cases[] = {{0, 1}, {100, 101}, {5000, 100000}};
    for (const auto& each : cases) {
        bool written = true;
        {
            const FullDisk disk(each.room);
            written = Replace_File(folder / "a.dat", Bytes(each.size));
        }
        EXPECT_FALSE(written) << each.size;
        EXPECT_EQ(All(), before) << each.size;
    }
}

TEST_F(ReplaceFileTest, InAFolderThatCannotBeWrittenTheOldFileStays) {
    ASSERT_TRUE(Replace_File(folder / "a.dat", {1, 2, 3}));
    const auto before = All();
    fs::permissions(folder, fs::perms(0555));
    {
        const BoundByPermissions user;
        EXPECT_FALSE(Replace_File(folder / "a.dat", {4}) || Replace_File(folder / "b.dat", {4}));
    }
    EXPECT_FALSE(Replace_File(folder / "a.dat" / "c.dat", {4})); // no folder at all
    EXPECT_EQ(All(), before);
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

// Nothing that stands there is opened, followed or waited for.
TEST_F(ReplaceFileTest, WhatIsNoFileIsLeftAlone) {
    fs::create_directory(folder / "folder");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(Replace_File(folder / "folder", {1}) || Replace_File(folder / "pipe", {1}));
    EXPECT_FALSE(Read_Whole_File(folder / "pipe"));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));

    ASSERT_TRUE(Replace_File(folder / "other", {9}));
    for (const char* name : {"a.dat.new", "a.dat.00000001.new"})
        fs::create_symlink("other", folder / name);
    ASSERT_EQ(mkfifo((folder / "a.dat.00000002.new").c_str(), 0600), 0);
    EXPECT_FALSE(Make_New_File(folder / "a.dat.new", {}));
    EXPECT_TRUE(Replace_File(folder / "a.dat", {1}));
    EXPECT_EQ(Read_Whole_File(folder / "other"), Bytes{9});
    EXPECT_TRUE(fs::is_symlink(folder / "a.dat.new") && fs::is_fifo(folder / "a.dat.00000002.new"));
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
        const Bytes seen{std::istreambuf_iterator<char>(file), {}};
        EXPECT_TRUE(seen == one || seen == two) << seen.size() << " bytes";
    }
    first.join();
    second.join();
    EXPECT_EQ(All().size(), 1u);
}

TEST_F(ReplaceFileTest, ALinkAndThePermissionsStay) {
    ASSERT_TRUE(Replace_File(folder / "a.dat", {1}));
    fs::permissions(folder / "a.dat", fs::perms(0600));
    fs::create_symlink("a.dat", folder / "link");
    ASSERT_TRUE(Replace_File(folder / "link", {2}));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(Read_Whole_File(folder / "a.dat"), Bytes{2});
    EXPECT_EQ(fs::status(folder / "a.dat").permissions(), fs::perms(0600));
}
