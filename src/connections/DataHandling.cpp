#include "connections/DataHandling.h"

#include "common/Failure.h"
#include "common/ReplaceFile.h"

#include <optional>
#include <system_error>

namespace Tensarix {

namespace {

namespace fs = std::filesystem;

struct FileError {
    int Number;
    std::string_view Description;
};

constexpr FileError overflow{6, "Overflow"};
constexpr FileError outOfMemory{7, "Out of memory"};
constexpr FileError noAccess{75, "Path/File access error"};

constexpr std::int16_t dimensions = 1;
constexpr std::int32_t lowerBound = 0;
constexpr std::size_t largestFile = 64u << 20;

void Show(const FileError& error, Messages& boxes) {
    boxes.Show("Error No. " + std::to_string(error.Number) + ":  " + std::string{error.Description},
               "Warning:", MessageIcon::Exclamation);
}

// Reads on behind the end of the file: what is missing there is 0 or an empty text. From the first
// missing byte on everything is missing.
class PatientReader {
  public:
    explicit PatientReader(const Bytes& bytes) : reader_(bytes) {}

    std::int16_t Int16() {
        return Take<std::int16_t>([this] { return reader_.Int16(); });
    }
    std::int32_t Int32() {
        return Take<std::int32_t>([this] { return reader_.Int32(); });
    }
    std::string Text() {
        return Take<std::string>([this] { return reader_.Text_With_Length(); });
    }
    bool Ended() const { return ended_; }

  private:
    template <typename Value, typename Read>
    Value Take(Read&& read) {
        Value value{};
        if (!ended_)
            ended_ = !Attempt([&] { value = read(); });
        return value;
    }

    ByteReader reader_;
    bool ended_ = false;
};

std::optional<FileError> Parse(const Bytes& bytes, std::vector<BoltRow>& entries) {
    PatientReader file(bytes);
    const std::int16_t dimensionCount = file.Int16();
    const std::int32_t count = file.Int32();
    const std::int32_t first = file.Int32();
    if (dimensionCount == 0 || (file.Ended() && count == 0))
        return std::nullopt;
    if (dimensionCount != dimensions || count < 0 || count > mostBoltRows || first != lowerBound)
        return outOfMemory;
    for (std::int32_t i = 0; i < count; ++i) {
        BoltRow row;
        row.RowNumber = file.Int16();
        if (file.Ended())
            break;
        for (std::string& text : row.Texts)
            text = file.Text();
        entries.push_back(std::move(row));
    }
    return std::nullopt;
}

std::optional<FileError> Read(const fs::path& path, std::vector<BoltRow>& entries) {
    std::error_code ignored;
    if (!fs::exists(path, ignored))
        return Replace_File(path, {}) ? std::nullopt : std::optional(noAccess);
    if (const std::optional<Bytes> bytes = Read_Whole_File(path, largestFile))
        return Parse(*bytes, entries);
    const bool tooLarge =
        fs::is_regular_file(path, ignored) && fs::file_size(path, ignored) > largestFile;
    return tooLarge ? outOfMemory : noAccess;
}

void Set_Aside(const fs::path& path) {
    std::error_code ignored;
    if (!fs::is_regular_file(path, ignored))
        return;
    fs::path aside = path;
    aside += unreadableSuffix;
    for (int number = 2; fs::exists(aside, ignored); ++number) {
        aside = path;
        aside += std::string{unreadableSuffix} + std::to_string(number);
    }
    fs::rename(path, aside, ignored);
}

} // namespace

void ReadBoltFile(std::vector<BoltRow>& entries, const fs::path& path, bool& failed,
                  Messages& boxes) {
    failed = false;
    std::vector<BoltRow> read;
    const std::optional<FileError> error = Read(path, read);
    if (!error) {
        entries = std::move(read);
        return;
    }
    failed = error->Number == outOfMemory.Number;
    if (failed)
        Set_Aside(path);
    else
        Show(*error, boxes);
}

bool WriteBoltFile(const std::vector<BoltRow>& entries, const fs::path& path, Messages& boxes) {
    ByteWriter file;
    const bool fits = Attempt([&] {
        file.Int16(dimensions);
        file.Int32(static_cast<std::int32_t>(entries.size()));
        file.Int32(lowerBound);
        for (const BoltRow& row : entries) {
            file.Int16(row.RowNumber);
            for (const std::string& text : row.Texts)
                file.Text_With_Length(text);
        }
    });
    const bool written = fits && Replace_File(path, file.Written());
    if (!written)
        Show(fits ? noAccess : overflow, boxes);
    return written;
}

} // namespace Tensarix
