// Disks that are full, folders that are closed, and what stands there and is no file.
#include "ReplaceFileTest.h"

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Tensarix;

namespace {

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

TEST_F(ReplaceFileTest, ALinkAndThePermissionsStay) {
    ASSERT_TRUE(Replace_File(folder / "a.dat", {1}));
    fs::permissions(folder / "a.dat", fs::perms(0600));
    fs::create_symlink("a.dat", folder / "link");
    ASSERT_TRUE(Replace_File(folder / "link", {2}));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(Read_Whole_File(folder / "a.dat"), Bytes{2});
    EXPECT_EQ(fs::status(folder / "a.dat").permissions(), fs::perms(0600));
}
