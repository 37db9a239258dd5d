// The one way to the section figures: ShapeTable in the store beside the program, one row a
// section, ordered by SEQ. Nothing is kept between reads: each read opens its own connection, takes
// its result as a whole and drops both, so the file may be missing, replaced or damaged at any
// time. The program never writes to it.
//
// A figure in US units stands in the column of its name (in., in^2 and so on, lb/ft), the SI one in
// the column of the same name behind an "x" (full mm, mm^2 and so on, kg/m). Source: AISC Steel
// Construction Manual, 13th Edition; data/sections tells what was converted or derived.
#pragma once

#include "sections/StoreFormat.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

struct sqlite3;

namespace Tensarix {

using FieldValue = std::variant<std::monostate, double, std::string>; // monostate: Null

// Owns one read-only connection, closed when dropped.
class SectionConnection {
  private:
    struct Closer {
        void operator()(sqlite3* database) const;
    };
    std::unique_ptr<sqlite3, Closer> database_;

    friend void OpenSectionConnection(SectionConnection&, const std::filesystem::path&,
                                      std::string_view);
    friend void OpenSectionRecordset(class SectionRecordset&, SectionConnection&,
                                     const std::string&);
};

// The rows of one query, read whole when it was opened, and the position of the reader: the first
// row after opening. It outlives its connection. Every call on a closed recordset fails.
class SectionRecordset {
  public:
    SectionRecordset();
    SectionRecordset(SectionRecordset&&) noexcept;
    SectionRecordset& operator=(SectionRecordset&&) noexcept;
    ~SectionRecordset();

    std::size_t RecordCount() const;
    void MoveFirst(); // fails without rows
    void MoveNext();  // fails behind the last row
    bool At_End() const;

    // The value in the current row. Names are case-blind; an unknown one fails, and so does every
    // reading behind the last row.
    FieldValue Field(std::string_view name) const;
    double Number(std::string_view name) const;    // fails on Null, a text, a number not finite
    std::string Text(std::string_view name) const; // fails on Null; a number in its general text

  private:
    struct Result;
    Result& Open_Result() const;                         // fails on a closed recordset
    const FieldValue& Cell(std::string_view name) const; // fails as Field does

    std::unique_ptr<Result> result_; // none: closed

    friend void OpenSectionRecordset(SectionRecordset&, SectionConnection&, const std::string&);
};

// Fails if there is no such file, it is not a section store of this program, or the password is
// another one. The connection is then closed.
void OpenSectionConnection(SectionConnection& connection, const std::filesystem::path& path,
                           std::string_view password);

// Runs one query. Any failure (a closed connection, a query that can't be read, an unknown column,
// a damaged file) leaves the recordset closed, and nothing is thrown.
void OpenSectionRecordset(SectionRecordset& records, SectionConnection& connection,
                          const std::string& sql);

// The queries. Keys are trimmed and stand between apostrophes as they are, so that one with an
// apostrophe makes a query that fails, as no designation has one.
std::string Query_By_Family(std::string_view familyCode);
std::string Query_By_US_Label(std::string_view label);
std::string Query_By_SI_Name(std::string_view name);
std::string Query_By_SI_Label(std::string_view label);
std::string Query_Value_List(std::string_view familyCode, std::string_view columnName);

// One read, from opening to dropping. Fails if the store can't be opened; a query that fails leaves
// Records closed.
struct SectionRead {
    SectionRead(const std::filesystem::path& programFolder, const std::string& sql);

    SectionConnection Connection;
    SectionRecordset Records;
};

} // namespace Tensarix
