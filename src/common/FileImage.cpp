#include "common/FileImage.h"

#include "common/Failure.h"

#include <bit>
#include <cstdio>
#include <fstream>
#include <memory>
#include <system_error>

#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

namespace Tensarix {

namespace {

void Put(Bytes& bytes, std::uint64_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i) & 0xFF));
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// Written and on the disk, or not at all as far as the caller is concerned.
bool Write_New_File(const std::filesystem::path& path, const Bytes& bytes) {
    std::unique_ptr<std::FILE, CloseFile> file{std::fopen(path.string().c_str(), "wb")};
    if (!file)
        return false;
    bool good =
        bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    good = std::fflush(file.get()) == 0 && good;
#if __has_include(<unistd.h>)
    good = good && fsync(fileno(file.get())) == 0;
#endif
    return std::fclose(file.release()) == 0 && good;
}

} // namespace

void ByteWriter::Int16(std::int16_t value) {
    Put(bytes_, static_cast<std::uint16_t>(value), 2);
}

void ByteWriter::Int32(std::int32_t value) {
    Put(bytes_, static_cast<std::uint32_t>(value), 4);
}

void ByteWriter::Double(double value) {
    Put(bytes_, std::bit_cast<std::uint64_t>(value), 8);
}

void ByteWriter::Text(std::string_view bytes) {
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

void ByteWriter::Text_With_Length(std::string_view bytes) {
    if (bytes.size() > 0xFFFF)
        throw Failure("text too long for the file");
    Put(bytes_, bytes.size(), 2);
    Text(bytes);
}

std::uint64_t ByteReader::Take(std::size_t count) {
    if (Left() < count)
        throw Failure("end of file");
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value |= static_cast<std::uint64_t>(bytes_[at_ + i]) << (8 * i);
    at_ += count;
    return value;
}

std::int16_t ByteReader::Int16() {
    return static_cast<std::int16_t>(Take(2));
}

std::int32_t ByteReader::Int32() {
    return static_cast<std::int32_t>(Take(4));
}

double ByteReader::Double() {
    return std::bit_cast<double>(Take(8));
}

std::string ByteReader::Text(std::size_t count) {
    if (Left() < count)
        throw Failure("end of file");
    const auto first = bytes_.begin() + static_cast<std::ptrdiff_t>(at_);
    at_ += count;
    return {first, first + static_cast<std::ptrdiff_t>(count)};
}

std::string ByteReader::Text_With_Length() {
    const std::size_t start = at_;
    const std::size_t count = Take(2);
    if (Left() < count) {
        at_ = start;
        throw Failure("end of file");
    }
    return Text(count);
}

std::optional<Bytes> Read_Whole_File(const std::filesystem::path& path, std::size_t limit) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error) || error)
        return std::nullopt;
    const auto size = std::filesystem::file_size(path, error);
    if (error || size > limit)
        return std::nullopt;
    Bytes bytes(size);
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!file && !bytes.empty())
        return std::nullopt;
    return bytes;
}

bool Replace_File(const std::filesystem::path& path, const Bytes& bytes) {
    std::error_code error;
    std::filesystem::path target = std::filesystem::canonical(path, error); // behind a link
    if (error)
        target = path;
    std::filesystem::path fresh = target;
    fresh += ".new";
    if (Write_New_File(fresh, bytes)) {
        if (const auto old = std::filesystem::status(target, error); !error)
            std::filesystem::permissions(fresh, old.permissions(), error);
        std::filesystem::rename(fresh, target, error);
        if (!error)
            return true;
    }
    std::filesystem::remove(fresh, error);
    return false;
}

} // namespace Tensarix
