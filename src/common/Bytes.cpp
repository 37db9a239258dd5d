#include "common/Bytes.h"

#include "common/Failure.h"

#include <bit>

namespace Tensarix {

namespace {

void Put(Bytes& bytes, std::uint64_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i) & 0xFF));
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

} // namespace Tensarix
