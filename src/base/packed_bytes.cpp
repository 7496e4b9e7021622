#include "base/packed_bytes.h"

namespace quadrelle {

void pack_byte(Bytes& bytes, std::uint8_t byte) {
    bytes.push_back(byte);
}

void pack_word(Bytes& bytes, std::uint32_t word) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<std::uint8_t>(word >> shift));
    }
}

void pack_bytes(Bytes& bytes, std::span<const std::uint8_t> more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void pack_text(Bytes& bytes, std::string_view text) {
    pack_word(bytes, static_cast<std::uint32_t>(text.size()));
    bytes.insert(bytes.end(), text.begin(), text.end());
}

std::span<const std::uint8_t> Packed_Reader::bytes(std::size_t count) {
    if (count > rest_.size()) {
        has_failed_ = true;
        rest_ = {};
        return {};
    }
    const std::span<const std::uint8_t> taken = rest_.first(count);
    rest_ = rest_.subspan(count);
    return taken;
}

std::uint8_t Packed_Reader::byte() {
    const std::span<const std::uint8_t> taken = bytes(1);
    return taken.empty() ? std::uint8_t{0} : taken.front();
}

std::uint32_t Packed_Reader::word() {
    std::uint32_t word = 0;
    unsigned shift = 0;
    for (const std::uint8_t byte : bytes(4)) {
        word |= static_cast<std::uint32_t>(byte) << shift;
        shift += 8;
    }
    return word;
}

int Packed_Reader::number(int most) {
    const std::uint32_t number = word();
    has_failed_ = has_failed_ || number > static_cast<std::uint32_t>(most);
    return has_failed_ ? 0 : static_cast<int>(number);
}

std::string Packed_Reader::text() {
    const std::span<const std::uint8_t> taken = bytes(word());
    return {taken.begin(), taken.end()};
}

} // namespace quadrelle
