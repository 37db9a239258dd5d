// BuildSectionStore FOLDER STORE: turns the section tables in FOLDER into the section store. The
// same tables give the same bytes. The store takes its name only when it is whole; a fault in the
// tables is told in one line, and the old store stays.
#include "BuildSectionStoreSi.h"
#include "ReadSectionTables.h"
#include "common/NumberText.h"
#include "sections/StoreFormat.h"

#include <sqlite3.h>

#include <iostream>
#include <memory>

namespace Tensarix {

namespace {

struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, Closer>;

void Need(sqlite3* database, int result, int wanted = SQLITE_OK) {
    if (result != wanted)
        throw std::runtime_error(std::string{"store: "} + sqlite3_errmsg(database));
}

void Run(const Database& database, const std::string& sql) {
    Need(database.get(), sqlite3_exec(database.get(), sql.c_str(), nullptr, nullptr, nullptr));
}

// An INSERT with its values bound one after the other.
class Insertion {
  public:
    Insertion(const Database& database, const std::string& table, std::size_t columns)
        : database_(database.get()) {
        std::string sql = "INSERT INTO " + table + " VALUES (?";
        for (std::size_t i = 1; i < columns; ++i)
            sql += ",?";
        sqlite3_stmt* raw = nullptr;
        Need(database_, sqlite3_prepare_v2(database_, (sql + ")").c_str(), -1, &raw, nullptr));
        statement_.reset(raw);
    }

    void Text(std::string_view text) {
        Need(database_, sqlite3_bind_text(statement_.get(), ++bound_, text.data(),
                                          static_cast<int>(text.size()), SQLITE_TRANSIENT));
    }
    void Whole(int value) { Need(database_, sqlite3_bind_int(statement_.get(), ++bound_, value)); }
    // The double nearest to the decimal text; Null for the empty one.
    void Figure(const std::string& text) {
        ++bound_;
        if (!text.empty())
            Need(database_, sqlite3_bind_double(statement_.get(), bound_, Text_Number(text)));
    }
    void Execute() {
        Need(database_, sqlite3_step(statement_.get()), SQLITE_DONE);
        Need(database_, sqlite3_reset(statement_.get()));
        Need(database_, sqlite3_clear_bindings(statement_.get()));
        bound_ = 0;
    }

  private:
    sqlite3* database_;
    std::unique_ptr<sqlite3_stmt, Closer> statement_;
    int bound_ = 0;
};

constexpr std::size_t identificationColumns = 6;

void Create_Tables(const Database& database) {
    std::string sql = "CREATE TABLE ShapeTable (TYPE TEXT NOT NULL, SEQ INTEGER NOT NULL, "
                      "AISC_Manual_Label TEXT NOT NULL, xAISC_Manual_Label TEXT NOT NULL, "
                      "IDE_STD_Nomenclature TEXT NOT NULL, xIDE_STD_Nomenclature TEXT NOT NULL";
    for (const FigureColumn& column : figureColumns)
        sql.append(", ").append(column.Name).append(" REAL, x").append(column.Name).append(" REAL");
    Run(database, sql + ")");
    Run(database, "CREATE TABLE StoreProperty (Name TEXT NOT NULL, Value TEXT NOT NULL)");
}

void Create_Indexes(const Database& database) {
    Run(database, "CREATE INDEX ByType ON ShapeTable (TYPE, SEQ)");
    for (const char* column : {"AISC_Manual_Label", "xAISC_Manual_Label", "IDE_STD_Nomenclature",
                               "xIDE_STD_Nomenclature"})
        Run(database, std::string{"CREATE INDEX By_"}
                          .append(column)
                          .append(" ON ShapeTable (")
                          .append(column)
                          .append(", SEQ)"));
}

void Insert_Sections(const Database& database, const std::vector<SectionRow>& rows) {
    Insertion insertion(database, "ShapeTable", identificationColumns + 2 * figureColumns.size());
    int seq = 0;
    for (const SectionRow& row : rows) {
        insertion.Text(row.Family->Code);
        insertion.Whole(++seq);
        // Label and listed name are the same text in every family.
        for (const std::string& name : {row.UsName, row.SiName, row.UsName, row.SiName})
            insertion.Text(name);
        for (std::size_t i = 0; i < figureColumns.size(); ++i) {
            insertion.Figure(row.Us[i]);
            insertion.Figure(row.Si[i]);
        }
        insertion.Execute();
    }
}

void Write_Store(const std::filesystem::path& path, const std::vector<SectionRow>& rows) {
    sqlite3* raw = nullptr;
    const std::u8string name = path.u8string();
    const int result = sqlite3_open(reinterpret_cast<const char*>(name.c_str()), &raw);
    const Database database{raw};
    Need(raw, result);
    Run(database, "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
    Run(database, "PRAGMA application_id = " + std::to_string(sectionStoreApplicationId));
    Run(database, "PRAGMA user_version = " + std::to_string(sectionStoreVersion));
    Run(database, "BEGIN");
    Create_Tables(database);
    Insertion property(database, "StoreProperty", 2);
    property.Text(passwordProperty);
    property.Text(sectionStorePassword);
    property.Execute();
    Insert_Sections(database, rows);
    Create_Indexes(database);
    Run(database, "COMMIT");
}

void Build(const std::filesystem::path& folder, const std::filesystem::path& store) {
    std::vector<SectionRow> rows = Read_Section_Tables(folder);
    for (SectionRow& row : rows)
        Fill_Si_Figures(row);
    std::filesystem::path fresh = store;
    fresh += ".new";
    std::filesystem::remove(fresh);
    try {
        Write_Store(fresh, rows);
        std::filesystem::rename(fresh, store);
    } catch (...) {
        std::error_code ignored;
        std::filesystem::remove(fresh, ignored);
        throw;
    }
}

} // namespace

} // namespace Tensarix

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "usage: BuildSectionStore FOLDER STORE\n";
        return 2;
    }
    try {
        Tensarix::Build(arguments[1], arguments[2]);
    } catch (const std::exception& error) {
        std::cerr << "BuildSectionStore: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
