// The program that builds the store: the same tables give the same bytes, and a fault in a table is
// told with its file and line instead of becoming a store.
#include "StandIns.h"
#include "common/ReplaceFile.h"
#include "sections/StoreFormat.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

using namespace Tensarix;
namespace fs = std::filesystem;

namespace {

struct BuildSectionStoreTest : testing::Test {
    void SetUp() override { fs::copy(TENSARIX_SOURCE_DIR "/data/sections", folder / "data"); }

    // What the program says; "" if the store was built.
    std::string Build() const {
        const std::string command = std::string{"'" TENSARIX_BUILD_SECTION_STORE "' '"} +
                                    (folder / "data").string() + "' '" + (folder / "s").string() +
                                    "' 2>&1";
        std::FILE* pipe = popen(command.c_str(), "r");
        std::string said;
        std::array<char, 256> buffer{};
        while (std::fgets(buffer.data(), buffer.size(), pipe))
            said += buffer.data();
        const bool failed = pclose(pipe) != 0;
        EXPECT_EQ(failed, !said.empty());
        return said;
    }

    std::string Text_Of(const std::string& file) const {
        const Bytes bytes = *Read_Whole_File(folder / "data" / file);
        return {bytes.begin(), bytes.end()};
    }
    void Set_Text(const std::string& file, const std::string& text) const {
        ASSERT_TRUE(Replace_File(folder / "data" / file, Bytes(text.begin(), text.end())));
    }

    Tests::FreshFolder fresh;
    const fs::path& folder = fresh.Path;
};

} // namespace

TEST_F(BuildSectionStoreTest, TheSameTablesGiveTheSameBytes) {
    EXPECT_EQ(Build(), "");
    EXPECT_EQ(Read_Whole_File(folder / "s"),
              Read_Whole_File(fs::path{TENSARIX_PROGRAM_DIR} / sectionStoreFile));
}

TEST_F(BuildSectionStoreTest, AFaultInATableIsTold) {
    const std::array<std::string, 4> faults[] = {
        {"W.csv", "W,A,D", "W,A,DEPTH", "W.csv:1: unknown column DEPTH"},
        {"W.csv", "W,A,D", "W,A,A", "W.csv:1: column A stands twice"},
        {"W.csv", "US_DESIGNATION", "NAME", "W.csv:1: the head"},
        {"W.csv", "W44x290,", "W44x335,", "W.csv:3: designation W44x335 stands twice"},
        {"WT.csv", "WT550x216.5,", "W1100x499,", "WT.csv:3: designation W1100x499 stands twice"},
        {"W.csv", "W44x290,", ",", "W.csv:3: designation empty"},
        {"W.csv", "W1100x433,", "W1100,", "W.csv:3: no mass"},
        {"W.csv", ",98.5,", ",98,5,", "W.csv:2: field count"},
        {"W.csv", ",98.5,", ",-98.5,", "W.csv:2: A is no figure: -98.5"},
        {"W.csv", ",98.5,", ",98.,", "W.csv:2: A is no figure"},
        {"W.csv", ",98.5,", ",.5,", "W.csv:2: A is no figure"},
        {"W.csv", ",98.5,", ",098.5,", "W.csv:2: A is no figure"},
        {"W.csv", ",98.5,", ",9.85e1,", "W.csv:2: A is no figure"},
        {"W.csv", ",98.5,", ",0.0,", "W.csv:2: A is no figure"},
        {"W.csv", ",98.5,", ",98.500000000000,", "W.csv:2: A is no figure"},
        {"W.csv", ",98.5,", ",\"98.5\",", "W.csv:2: a character"},
        {"Pipe.csv", "Pipe12STD", "Pipe12'STD", "Pipe.csv:2: a character"},
        {"C.csv", "C15x50,", "C15x50,\r", "C.csv:2: a character"},
        {"si-exceptions.csv", "W,W36x256", "M,W36x256", "si-exceptions.csv:2: no section"},
        {"si-exceptions.csv", "xD,951", "D,951", "si-exceptions.csv:2: no SI figure D"},
        {"si-exceptions.csv", "xD,951", "xOD,951", "si-exceptions.csv:2: no SI figure xOD"},
        {"si-exceptions.csv", "xD,951", "xH_TW,951", "si-exceptions.csv:2: no SI figure xH_TW"},
        {"si-exceptions.csv", "xD,951", "xD,?", "si-exceptions.csv:2: VALUE is no figure"},
        {"si-exceptions.csv", "W36x232", "W36x256", "si-exceptions.csv:3: xD of W36x256 stands"},
    };
    for (const auto& [file, piece, by, expected] : faults) {
        const std::string good = Text_Of(file);
        std::string bad = good;
        ASSERT_NE(bad.find(piece), std::string::npos) << piece;
        Set_Text(file, bad.replace(bad.find(piece), piece.size(), by));
        const std::string said = Build();
        EXPECT_NE(said.find(": " + expected), std::string::npos) << by << ": " << said;
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
        Set_Text(file, good);
    }
    EXPECT_FALSE(fs::exists(folder / "s"));
}

TEST_F(BuildSectionStoreTest, AFailureLeavesTheOldStore) {
    ASSERT_TRUE(Replace_File(folder / "s", {'o', 'l', 'd'}));
    const std::string good = Text_Of("HP.csv");
    Set_Text("HP.csv", good.substr(0, good.size() - 1));
    EXPECT_NE(Build().find("HP.csv:12: the last line has no end"), std::string::npos);
    fs::remove(folder / "data/HP.csv");
    EXPECT_NE(Build().find("HP.csv:1: can't be read"), std::string::npos);
    EXPECT_EQ(Read_Whole_File(folder / "s"), (Bytes{'o', 'l', 'd'}));
    EXPECT_FALSE(fs::exists(folder / "s.new"));
}
