#include "sections/SectionStore.h"

#include "FreshFolder.h"
#include "PlainStore.h"
#include "common/Failure.h"
#include "common/ReplaceFile.h"

#include <random>

#ifndef _WIN32
#include <sys/stat.h>
#endif

using namespace Tensarix;
namespace fs = std::filesystem;

namespace {

const fs::path program = TENSARIX_PROGRAM_DIR;

// A program folder of its own, with a name that has to be escaped in a URI.
struct SectionStoreTest : testing::Test {
    SectionStoreTest() {
        fs::create_directories(folder);
        fs::copy_file(program / sectionStoreFile, store);
    }

    void Run(const std::string& sql) const { Tests::PlainStore(folder).Run(sql); }

    // A store of this program whose ShapeTable is made by the statements.
    void Make_Store(const std::string& sql) const {
        fs::remove(store);
        Run("PRAGMA application_id = " + std::to_string(sectionStoreApplicationId) +
            "; PRAGMA user_version = " + std::to_string(sectionStoreVersion) +
            "; CREATE TABLE StoreProperty (Name, Value); INSERT INTO StoreProperty VALUES ('" +
            std::string{passwordProperty} + "', '" + std::string{sectionStorePassword} + "'); " +
            sql);
    }

    SectionRead Read(const std::string& sql) const { return {folder, sql}; }

    Tests::FreshFolder fresh;
    const fs::path folder = fresh.Path / (fs::path::preferred_separator == '/' ? "%41?#" : "%41#");
    const fs::path store = folder / sectionStoreFile;
};

void Expect_Closed(SectionRecordset& records) {
    EXPECT_THROW(records.RecordCount(), Failure);
    EXPECT_THROW(records.MoveFirst(), Failure);
    EXPECT_THROW(records.MoveNext(), Failure);
    EXPECT_THROW(records.At_End(), Failure);
    EXPECT_THROW(records.Field("W"), Failure);
    EXPECT_THROW(records.Number("W"), Failure);
    EXPECT_THROW(records.Text("W"), Failure);
}

// Opens a store that may hold anything and reads all there is. True if rows came out.
bool Read_Everything(const fs::path& folder) {
    std::size_t rows = 0;
    Attempt([&] {
        SectionRead read(folder, Query_By_Family("W"));
        for (SectionRecordset& r = read.Records; !r.At_End(); r.MoveNext(), ++rows)
            for (const char* column : {"TYPE", "A", "xCW", "IDE_STD_Nomenclature"})
                Attempt([&] { r.Text(column); });
    });
    return rows > 0;
}

} // namespace

TEST(SectionQueries, NamesAreTrimmed) {
    EXPECT_EQ(Query_By_Family(" W "), "SELECT * FROM ShapeTable WHERE TYPE ='W' ORDER BY SEQ");
    EXPECT_EQ(Query_By_US_Label("W44x335 "),
              "SELECT * FROM ShapeTable WHERE AISC_Manual_Label ='W44x335' ORDER BY SEQ");
    EXPECT_EQ(Query_By_SI_Label(" it's"),
              "SELECT * FROM ShapeTable WHERE xAISC_Manual_Label ='it's' ORDER BY SEQ");
}

TEST_F(SectionStoreTest, RowsAreWalkedInOrder) {
    SectionRead read = Read(Query_By_Family("Pipe"));
    SectionRecordset& pipes = read.Records;
    EXPECT_EQ(pipes.RecordCount(), 37u);
    EXPECT_EQ(pipes.Text("AISC_Manual_Label"), "Pipe12STD");
    double last = 0;
    std::size_t rows = 0;
    for (; !pipes.At_End(); pipes.MoveNext(), ++rows) {
        EXPECT_GT(pipes.Number("SEQ"), last);
        last = pipes.Number("SEQ");
    }
    EXPECT_EQ(rows, 37u);
    EXPECT_THROW(pipes.MoveNext(), Failure);
    EXPECT_THROW(pipes.Field("W"), Failure);
    pipes.MoveFirst();
    EXPECT_EQ(pipes.Text("xIDE_STD_Nomenclature"), "Pipe300STD");
}

TEST_F(SectionStoreTest, FieldsAreReadByName) {
    SectionRead read = Read(Query_By_SI_Label("HSS508x304.8x15.9"));
    SectionRecordset& tube = read.Records;
    EXPECT_EQ(tube.Field("TYPE"), FieldValue{"HSS-Rec"});
    EXPECT_EQ(tube.Field("tdes"), FieldValue{0.581}); // case-blind
    EXPECT_EQ(tube.Text("XTdes"), "14.8");
    EXPECT_EQ(tube.Text("xIX"), "783000000");
    EXPECT_EQ(tube.Field("CW"), FieldValue{}); // not published for HSS
    EXPECT_THROW(tube.Number("CW"), Failure);
    EXPECT_THROW(tube.Text("CW"), Failure);
    EXPECT_THROW(tube.Number("TYPE"), Failure);
    EXPECT_THROW(tube.Field("TANALPHA"), Failure);
    EXPECT_THROW(tube.Field(""), Failure);
}

TEST_F(SectionStoreTest, NoRowsIsNotClosed) {
    for (const auto& sql :
         {Query_By_US_Label(""), Query_By_US_Label("w44X335"), Query_By_Family("XX")}) {
        SectionRead read = Read(sql);
        EXPECT_EQ(read.Records.RecordCount(), 0u) << sql;
        EXPECT_TRUE(read.Records.At_End());
        EXPECT_THROW(read.Records.MoveFirst(), Failure);
        EXPECT_THROW(read.Records.MoveNext(), Failure);
        EXPECT_THROW(read.Records.Field("W"), Failure);
    }
}

TEST_F(SectionStoreTest, AQueryThatFailsLeavesTheRecordsetClosed) {
    for (const std::string& sql :
         {Query_By_US_Label("it's"), Query_Value_List("W", "TANALPHA"),
          Query_Value_List("W", "\"TANALPHA\""), Query_Value_List("W", ""), std::string{},
          std::string{"SELECT * FROM NoTable"}, std::string{"DELETE FROM ShapeTable"},
          std::string{"VACUUM"}, Query_By_Family("W") + "; SELECT 1",
          Query_By_Family(std::string_view{"W\0", 2})}) {
        SectionRead read = Read(Query_By_Family("W"));
        OpenSectionRecordset(read.Records, read.Connection, sql);
        SCOPED_TRACE(sql);
        Expect_Closed(read.Records);
    }
    SectionRecordset records;
    Expect_Closed(records);
    SectionConnection none;
    OpenSectionRecordset(records, none, Query_By_Family("W"));
    Expect_Closed(records);
}

TEST_F(SectionStoreTest, ARecordsetOutlivesItsConnectionAndMoves) {
    SectionRecordset records;
    {
        SectionConnection connection;
        OpenSectionConnection(connection, store, sectionStorePassword);
        OpenSectionRecordset(records, connection, Query_By_US_Label("W14x342"));
#ifndef _WIN32 // where an open file stays
        fs::remove(store);
#endif
    }
    SectionRecordset taken = std::move(records);
    EXPECT_EQ(taken.Number("xD"), 445);
    Expect_Closed(records); // NOLINT: what was moved from is closed
}

TEST_F(SectionStoreTest, WhatIsNoStoreDoesNotOpen) {
    SectionConnection connection;
    const auto fails = [&](const std::string& password = std::string{sectionStorePassword}) {
        OpenSectionConnection(connection, program / sectionStoreFile, sectionStorePassword);
        EXPECT_THROW(OpenSectionConnection(connection, store, password), Failure);
        SectionRecordset records;
        OpenSectionRecordset(records, connection, Query_By_Family("W"));
        Expect_Closed(records);
    };
    fails("");
    fails("kvq04417263951");
    Run("UPDATE StoreProperty SET Value = 'other'");
    fails();
    Run("DROP TABLE StoreProperty");
    fails();
    Make_Store("PRAGMA user_version = 99");
    fails();
    Make_Store("PRAGMA application_id = 0");
    fails();
    for (const std::string& content :
         {std::string{}, std::string{"TYPE,SEQ\n"}, std::string(5000, '\0')}) {
        Replace_File(store, Bytes(content.begin(), content.end()));
        fails();
    }
    fs::remove(store);
    fails();
    EXPECT_FALSE(fs::exists(store)); // reading makes no file
    fs::create_directory(store);
    fails();
#ifndef _WIN32
    fs::remove(store);
    ASSERT_EQ(mkfifo(store.c_str(), 0600), 0);
    fails();
#endif
}

TEST_F(SectionStoreTest, OddContentFailsOnlyTheReadOfIt) {
    Make_Store(
        "CREATE TABLE ShapeTable (TYPE, SEQ, W, A REAL, D, X); INSERT INTO ShapeTable VALUES "
        "('W', 1, 'heavy', '12.5', 9e999, x'4100')");
    SectionRead read = Read(Query_By_Family("W"));
    EXPECT_EQ(read.Records.Text("W"), "heavy");
    EXPECT_THROW(read.Records.Number("W"), Failure);
    EXPECT_EQ(read.Records.Number("A"), 12.5);
    EXPECT_THROW(read.Records.Number("D"), Failure); // not finite
    EXPECT_THROW(read.Records.Text("D"), Failure);
    EXPECT_EQ(read.Records.Text("X"), std::string("A\0", 2));
    EXPECT_THROW(read.Records.Field("AISC_Manual_Label"), Failure);
    EXPECT_THROW(Read(Query_By_US_Label("W1")).Records.RecordCount(), Failure);
}

TEST_F(SectionStoreTest, AnEndlessTableBreaksOff) {
    for (const char* where : {"", " WHERE i < 0"}) {
        Make_Store(
            "CREATE VIEW ShapeTable AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
            "FROM n) SELECT 'W' AS TYPE, i AS SEQ FROM n" +
            std::string{where});
        EXPECT_THROW(Read("SELECT * FROM ShapeTable").Records.RecordCount(), Failure);
    }
}

TEST_F(SectionStoreTest, DamagedFilesNeverCrash) {
    const Bytes good = *Read_Whole_File(store);
    std::mt19937 random{20240229};
    const auto any = [&](std::size_t below) { return random() % below; };
    int readable = 0;
    for (int round = 0; round < 150; ++round) {
        Bytes bytes = good;
        if (round % 3 == 0)
            bytes.resize(any(bytes.size()));
        else // a few bytes anywhere, or many in the pages that everything hangs on
            for (std::size_t i = 0; i < (round % 3 == 1 ? 400u : 40u) && !bytes.empty(); ++i)
                bytes[100 + any(round % 3 == 1 ? bytes.size() - 100 : 12000)] =
                    static_cast<std::uint8_t>(random());
        Replace_File(store, bytes);
        readable += Read_Everything(folder) ? 1 : 0;
    }
    EXPECT_LT(readable, 150);
    Replace_File(store, good); // replaced while the program runs
    EXPECT_TRUE(Read_Everything(folder));
    fs::remove(store); // and deleted
    EXPECT_FALSE(Read_Everything(folder));
}

TEST_F(SectionStoreTest, ReadingLeavesNoTrace) {
    Run("PRAGMA journal_mode = WAL");
    const Bytes before = *Read_Whole_File(store);
    SectionRead read = Read(Query_By_Family("2L-UnEq"));
    EXPECT_EQ(read.Records.RecordCount(), 444u);
    EXPECT_EQ(std::distance(fs::directory_iterator{folder}, fs::directory_iterator{}), 1);
    EXPECT_EQ(*Read_Whole_File(store), before);
}
