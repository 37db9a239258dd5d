#include "sections/SectionStore.h"

#include "common/Failure.h"
#include "common/NumberText.h"

#include <sqlite3.h>

#include <unordered_map>
#include <vector>

namespace Tensarix {

namespace {

// Bounds that no store of ours comes near, so that a damaged or hostile one can neither hang the
// program nor exhaust the memory.
constexpr int mostBytesOfValue = 1 << 16;
constexpr int mostColumns = 1000;
constexpr std::size_t mostRows = 10'000;
constexpr int stepsBetweenChecks = 2'000'000; // of SQLite's machine; a family takes some 60,000

struct StatementCloser {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, StatementCloser>;

// The path as a URI: everything but the harmless characters in percent form. The empty authority
// ("//") keeps a path that itself starts with two strokes from being read as a host.
std::string Store_Uri(const std::filesystem::path& path) {
    static constexpr std::string_view digits = "0123456789ABCDEF";
    static constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                              "0123456789-._~/:";
    const std::u8string text = std::filesystem::absolute(path).generic_u8string();
    std::string uri = text.starts_with(u8'/') ? "file://" : "file:///";
    for (const char8_t c : text) {
        if (plain.find(static_cast<char>(c)) != std::string_view::npos)
            uri += static_cast<char>(c);
        else
            uri.append({'%', digits[c >> 4], digits[c & 15]});
    }
    return uri + "?immutable=1"; // no locks and no side files: nobody writes to the store
}

void Harden(sqlite3* database) {
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH, mostBytesOfValue);
    sqlite3_limit(database, SQLITE_LIMIT_COLUMN, mostColumns);
    sqlite3_limit(database, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    // An unknown name in double quotes would be taken for a text instead of an error.
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_progress_handler(
        database, stepsBetweenChecks, [](void*) { return 1; }, nullptr);
}

// One statement that gives a result; a second one behind it fails.
Statement Prepare(sqlite3* database, std::string_view sql) {
    sqlite3_stmt* raw = nullptr;
    const char* rest = nullptr;
    const int result =
        sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &raw, &rest);
    Statement statement{raw};
    if (result != SQLITE_OK || !statement || sqlite3_column_count(raw) == 0 ||
        rest != sql.data() + sql.size())
        throw Failure("query can't be read");
    return statement;
}

// False behind the last row.
bool Step(const Statement& statement) {
    const int result = sqlite3_step(statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        throw Failure("query broke off");
    return result == SQLITE_ROW;
}

FieldValue Column_Value(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    default:
        const void* bytes = sqlite3_column_blob(statement, column);
        const auto count = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        return bytes ? std::string{static_cast<const char*>(bytes), count} : std::string{};
    }
}

FieldValue Single_Value(sqlite3* database, std::string_view sql) {
    const Statement statement = Prepare(database, sql);
    return Step(statement) ? Column_Value(statement.get(), 0) : FieldValue{};
}

std::string Query(std::string_view column, std::string_view key, std::string_view order) {
    return std::string{"SELECT * FROM ShapeTable WHERE "}
        .append(column)
        .append(" ='")
        .append(Trim(key))
        .append("' ORDER BY ")
        .append(order);
}

} // namespace

void SectionConnection::Closer::operator()(sqlite3* database) const {
    sqlite3_close_v2(database);
}

void OpenSectionConnection(SectionConnection& connection, const std::filesystem::path& path,
                           std::string_view password) {
    connection.database_.reset();
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) // a pipe would wait for a writer
        throw Failure("no section store");
    sqlite3* raw = nullptr;
    const int result =
        sqlite3_open_v2(Store_Uri(path).c_str(), &raw,
                        SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    decltype(connection.database_) database{raw};
    if (result != SQLITE_OK)
        throw Failure("section store can't be opened");
    Harden(raw);
    const FieldValue id{double{sectionStoreApplicationId}};
    const FieldValue version{double{sectionStoreVersion}};
    if (Single_Value(raw, "PRAGMA application_id") != id ||
        Single_Value(raw, "PRAGMA user_version") != version)
        throw Failure("not a section store");
    const std::string property = std::string{"SELECT Value FROM StoreProperty WHERE Name = '"}
                                     .append(passwordProperty)
                                     .append("'");
    if (Single_Value(raw, property) != FieldValue{std::string{password}})
        throw Failure("wrong password");
    connection.database_ = std::move(database);
}

struct SectionRecordset::Result {
    Result(sqlite3* database, const std::string& sql);

    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const noexcept {
            return std::hash<std::string_view>{}(name);
        }
    };
    // Every column by its own name and by its name in capitals.
    std::unordered_map<std::string, std::size_t, NameHash, std::equal_to<>> Columns;
    std::vector<FieldValue> Cells; // row after row
    std::size_t Width = 0;
    std::size_t Count = 0;
    std::size_t At = 0;
};

SectionRecordset::Result::Result(sqlite3* database, const std::string& sql) {
    const Statement statement = Prepare(database, sql);
    const int width = sqlite3_column_count(statement.get());
    Width = static_cast<std::size_t>(width);
    Columns.reserve(2 * Width);
    for (int column = 0; column < width; ++column) {
        const char* name = sqlite3_column_name(statement.get(), column);
        if (!name)
            throw Failure("out of memory");
        Columns.try_emplace(name, static_cast<std::size_t>(column));
        Columns.try_emplace(Upper(name), static_cast<std::size_t>(column));
    }
    for (; Step(statement); ++Count) {
        if (Count == mostRows)
            throw Failure("too many rows");
        for (int column = 0; column < width; ++column)
            Cells.push_back(Column_Value(statement.get(), column));
    }
}

void OpenSectionRecordset(SectionRecordset& records, SectionConnection& connection,
                          const std::string& sql) {
    records.result_.reset();
    if (!connection.database_)
        return;
    Attempt([&] {
        records.result_ =
            std::make_unique<SectionRecordset::Result>(connection.database_.get(), sql);
    });
}

SectionRecordset::SectionRecordset() = default;
SectionRecordset::SectionRecordset(SectionRecordset&&) noexcept = default;
SectionRecordset& SectionRecordset::operator=(SectionRecordset&&) noexcept = default;
SectionRecordset::~SectionRecordset() = default;

SectionRecordset::Result& SectionRecordset::Open_Result() const {
    if (!result_)
        throw Failure("recordset is closed");
    return *result_;
}

std::size_t SectionRecordset::RecordCount() const {
    return Open_Result().Count;
}

void SectionRecordset::MoveFirst() {
    if (Open_Result().Count == 0)
        throw Failure("no records");
    result_->At = 0;
}

void SectionRecordset::MoveNext() {
    if (At_End())
        throw Failure("behind the last record");
    ++result_->At;
}

bool SectionRecordset::At_End() const {
    const Result& result = Open_Result();
    return result.At == result.Count;
}

const FieldValue& SectionRecordset::Cell(std::string_view name) const {
    if (At_End())
        throw Failure("no current record");
    auto column = result_->Columns.find(name);
    if (column == result_->Columns.end())
        column = result_->Columns.find(Upper(name));
    if (column == result_->Columns.end())
        throw Failure("unknown column");
    return result_->Cells[result_->At * result_->Width + column->second];
}

FieldValue SectionRecordset::Field(std::string_view name) const {
    return Cell(name);
}

double SectionRecordset::Number(std::string_view name) const {
    const auto* number = std::get_if<double>(&Cell(name));
    if (!number)
        throw Failure("no number in this column");
    return Finite(*number);
}

std::string SectionRecordset::Text(std::string_view name) const {
    const FieldValue& value = Cell(name);
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    if (const auto* number = std::get_if<double>(&value))
        return General_Text(*number);
    throw Failure("Null in this column");
}

std::string Query_By_Family(std::string_view familyCode) {
    return Query("TYPE", familyCode, "SEQ");
}

std::string Query_By_US_Label(std::string_view label) {
    return Query("AISC_Manual_Label", label, "SEQ");
}

std::string Query_By_SI_Name(std::string_view name) {
    return Query("xIDE_STD_Nomenclature", name, "SEQ");
}

std::string Query_By_SI_Label(std::string_view label) {
    return Query("xAISC_Manual_Label", label, "SEQ");
}

std::string Query_Value_List(std::string_view familyCode, std::string_view columnName) {
    return Query("TYPE", familyCode, columnName);
}

SectionRead::SectionRead(const std::filesystem::path& programFolder, const std::string& sql) {
    OpenSectionConnection(Connection, programFolder / sectionStoreFile, sectionStorePassword);
    OpenSectionRecordset(Records, Connection, sql);
}

} // namespace Tensarix
