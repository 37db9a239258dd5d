// What a file holds as bytes, numbers little-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tensarix {

using Bytes = std::vector<std::uint8_t>;

class ByteWriter {
  public:
    void Int16(std::int16_t value);
    void Int32(std::int32_t value);
    void Double(double value);
    // The bytes alone; a length, where the format has one, is written by the caller.
    void Text(std::string_view bytes);
    // A 16-bit unsigned length, then the bytes. Fails beyond 65535 bytes.
    void Text_With_Length(std::string_view bytes);

    const Bytes& Written() const { return bytes_; }

  private:
    Bytes bytes_;
};

// Every read fails when the file holds fewer bytes than it needs, and then takes none.
class ByteReader {
  public:
    explicit ByteReader(const Bytes& bytes) : bytes_(bytes) {}

    std::int16_t Int16();
    std::int32_t Int32();
    double Double();
    std::string Text(std::size_t count);
    std::string Text_With_Length();

    std::size_t Left() const { return bytes_.size() - at_; }

  private:
    std::uint64_t Take(std::size_t count);

    const Bytes& bytes_;
    std::size_t at_ = 0;
};

} // namespace Tensarix
