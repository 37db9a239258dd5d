// The store without the program's own reader: plain SQL, for counts and for changed copies.
#pragma once

#include "sections/StoreFormat.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

namespace Tensarix::Tests {

class PlainStore {
  public:
    explicit PlainStore(const std::filesystem::path& folder = TENSARIX_PROGRAM_DIR) {
        EXPECT_EQ(sqlite3_open((folder / SectionStoreFile).c_str(), &database_), SQLITE_OK);
    }
    ~PlainStore() { sqlite3_close(database_); }
    PlainStore(const PlainStore&) = delete;

    // The numbers of the first column; the value stands for the arguments ?1.
    std::vector<double> Numbers(const std::string& sql, double value = 0) {
        std::vector<double> numbers;
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr), SQLITE_OK)
            << sql;
        if (sqlite3_bind_parameter_count(statement) > 0)
            sqlite3_bind_double(statement, 1, value);
        while (sqlite3_step(statement) == SQLITE_ROW)
            numbers.push_back(sqlite3_column_double(statement, 0));
        sqlite3_finalize(statement);
        return numbers;
    }
    void Run(const std::string& sql) {
        EXPECT_EQ(sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sql << ": " << sqlite3_errmsg(database_);
    }

  private:
    sqlite3* database_ = nullptr;
};

// A program folder with a copy of the store that the statements have changed.
class ChangedStore {
  public:
    explicit ChangedStore(const std::string& sql) {
        std::filesystem::create_directories(Folder);
        std::filesystem::copy_file(std::filesystem::path{TENSARIX_PROGRAM_DIR} / SectionStoreFile,
                                   Folder / SectionStoreFile,
                                   std::filesystem::copy_options::overwrite_existing);
        PlainStore(Folder).Run(sql);
    }
    ~ChangedStore() { std::filesystem::remove_all(Folder); }
    ChangedStore(const ChangedStore&) = delete;

    const std::filesystem::path Folder =
        std::filesystem::temp_directory_path() / ("tensarix changed " + std::to_string(getpid()));
};

} // namespace Tensarix::Tests
