// The store without the program's own reader: plain SQL, for counts and for changed copies.
#pragma once

#include "FreshFolder.h"
#include "sections/StoreFormat.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace Tensarix::Tests {

class PlainStore {
  public:
    explicit PlainStore(const std::filesystem::path& folder = TENSARIX_PROGRAM_DIR) {
        EXPECT_EQ(sqlite3_open((folder / sectionStoreFile).string().c_str(), &database_),
                  SQLITE_OK);
    }
    ~PlainStore() { sqlite3_close(database_); }
    PlainStore(const PlainStore&) = delete;

    // Of the first column; the value stands for the arguments ?1.
    std::vector<double> Numbers(const std::string& sql, double value = 0) {
        std::vector<double> numbers;
        Each(sql, value, [&](auto* row) { numbers.push_back(sqlite3_column_double(row, 0)); });
        return numbers;
    }
    std::vector<std::string> Texts(const std::string& sql) {
        std::vector<std::string> texts;
        Each(sql, 0, [&](auto* row) {
            texts.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(row, 0)));
        });
        return texts;
    }
    void Run(const std::string& sql) {
        EXPECT_EQ(sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sql << ": " << sqlite3_errmsg(database_);
    }

  private:
    template <typename Take>
    void Each(const std::string& sql, double value, Take take) {
        sqlite3_stmt* row = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(database_, sql.c_str(), -1, &row, nullptr), SQLITE_OK) << sql;
        if (sqlite3_bind_parameter_count(row) > 0)
            sqlite3_bind_double(row, 1, value);
        while (sqlite3_step(row) == SQLITE_ROW)
            take(row);
        sqlite3_finalize(row);
    }

    sqlite3* database_ = nullptr;
};

// A program folder with a copy of the store that the statements have changed.
class ChangedStore {
  public:
    explicit ChangedStore(const std::string& sql) {
        std::filesystem::copy_file(std::filesystem::path{TENSARIX_PROGRAM_DIR} / sectionStoreFile,
                                   Folder / sectionStoreFile);
        PlainStore(Folder).Run(sql);
    }

  private:
    FreshFolder fresh_;

  public:
    const std::filesystem::path& Folder = fresh_.Path;
};

// One section of each family is left, and each of its figures is another number.
class NumberedStore : public ChangedStore {
  public:
    NumberedStore()
        : ChangedStore("DELETE FROM ShapeTable WHERE SEQ NOT IN (SELECT MIN(SEQ) FROM ShapeTable "
                       "GROUP BY TYPE)") {
        PlainStore plain(Folder);
        for (const std::string& column :
             plain.Texts("SELECT name FROM pragma_table_info('ShapeTable')")) {
            if (column.ends_with("TYPE") || column == "SEQ" || column.ends_with("Label") ||
                column.ends_with("Nomenclature"))
                continue;
            const auto number = static_cast<double>(numbers_.size()) + 101;
            // Of a figure in SI a power of ten is shown.
            numbers_[column] = column[0] == 'x' ? number * 1e6 : number + 0.625;
            plain.Run("UPDATE ShapeTable SET " + column + " = " + std::to_string(numbers_[column]));
        }
    }
    // Of a column, or of one less twice another: D-2KDET.
    double Number(const std::string& expression) const {
        const std::size_t less = expression.find("-2");
        if (less == std::string::npos)
            return numbers_.at(expression);
        return Number(expression.substr(0, less)) - 2 * Number(expression.substr(less + 2));
    }

  private:
    std::map<std::string, double> numbers_;
};

} // namespace Tensarix::Tests
