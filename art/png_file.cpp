#include "picture_files.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quadrelle {

namespace {

constexpr int enlargement = 2;
constexpr int checker_size = 8;
constexpr Rgb checker_light{137, 137, 137};
constexpr Rgb checker_dark{122, 122, 122};
constexpr std::size_t row_size = 1 + 3 * static_cast<std::size_t>(sheet_width) * enlargement;

// Matches reach a pixel or two squares of the checkerboard back or a row up, all that this picture asks for.
constexpr std::array<std::size_t, 3> match_distances{3, std::size_t{3} * 2 * checker_size, row_size};
constexpr std::size_t shortest_match = 3;
constexpr std::size_t longest_match = 258;

class Bit_Writer {
public:
    // The lowest bit first.
    void put(unsigned value, int count) {
        for (int i = 0; i < count; ++i)
            put_bit((value >> i) & 1U);
    }

    // Huffman codes stand with their highest bit first.
    void put_code(unsigned code, int count) {
        for (int i = count - 1; i >= 0; --i)
            put_bit((code >> i) & 1U);
    }

    const Bytes& bytes() const { return bytes_; }

private:
    void put_bit(unsigned bit) {
        if (used_ == 0)
            bytes_.push_back(0);
        bytes_.back() = static_cast<std::uint8_t>(bytes_.back() | (bit << used_));
        used_ = (used_ + 1) % 8;
    }

    Bytes bytes_;
    int used_ = 0;
};

// Symbols of the fixed code: bytes below 256, the end of the block, then lengths.
void put_symbol(Bit_Writer& bits, unsigned symbol) {
    if (symbol < 144)
        bits.put_code(0x30 + symbol, 8);
    else if (symbol < 256)
        bits.put_code(0x190 + symbol - 144, 9);
    else if (symbol < 280)
        bits.put_code(symbol - 256, 7);
    else
        bits.put_code(0xC0 + symbol - 280, 8);
}

// The largest symbol whose first value is not above `value`, and the bits for the rest. The steps between
// symbols double after every `symbols_a_step` of them.
struct Ranged_Symbol {
    unsigned symbol = 0;
    unsigned rest = 0;
    int rest_bits = 0;
};

Ranged_Symbol ranged_symbol(unsigned value, unsigned symbols_a_step) {
    Ranged_Symbol result;
    unsigned first = 0;
    while (value - first >= 1U << result.rest_bits) {
        first += 1U << result.rest_bits;
        ++result.symbol;
        const bool steps_grow = result.symbol >= 2 * symbols_a_step && result.symbol % symbols_a_step == 0;
        result.rest_bits += steps_grow ? 1 : 0;
    }
    result.rest = value - first;
    return result;
}

struct Match {
    std::size_t length = 0;
    std::size_t distance = 0;
};

void put_match(Bit_Writer& bits, const Match& match) {
    // The longest length has a symbol of its own.
    Ranged_Symbol size{28, 0, 0};
    if (match.length < longest_match)
        size = ranged_symbol(static_cast<unsigned>(match.length - shortest_match), 4);
    put_symbol(bits, 257 + size.symbol);
    bits.put(size.rest, size.rest_bits);

    const Ranged_Symbol back = ranged_symbol(static_cast<unsigned>(match.distance - 1), 2);
    bits.put_code(back.symbol, 5);
    bits.put(back.rest, back.rest_bits);
}

std::size_t match_length(const Bytes& bytes, std::size_t position, std::size_t distance) {
    if (distance > position)
        return 0;
    const std::size_t limit = std::min(longest_match, bytes.size() - position);
    std::size_t length = 0;
    while (length < limit && bytes[position + length] == bytes[position + length - distance])
        ++length;
    return length;
}

Match longest_match_at(const Bytes& bytes, std::size_t position) {
    Match best;
    for (const std::size_t distance : match_distances)
        if (const std::size_t length = match_length(bytes, position, distance); length > best.length)
            best = {length, distance};
    return best;
}

// One block in the fixed code.
Bytes deflated(const Bytes& bytes) {
    Bit_Writer bits;
    bits.put(0b011, 3);
    for (std::size_t position = 0; position < bytes.size();) {
        const Match match = longest_match_at(bytes, position);
        if (match.length < shortest_match) {
            put_symbol(bits, bytes[position++]);
            continue;
        }
        put_match(bits, match);
        position += match.length;
    }
    put_symbol(bits, 256);
    return bits.bytes();
}

void put_number(Bytes& bytes, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

std::uint32_t adler_sum(const Bytes& bytes) {
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const std::uint8_t byte : bytes) {
        low = (low + byte) % 65521;
        high = (high + low) % 65521;
    }
    return high << 16 | low;
}

std::uint32_t crc_sum(const Bytes& bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        sum ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1U) != 0 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

void put_chunk(Bytes& bytes, std::string_view name, const Bytes& content) {
    Bytes chunk(name.begin(), name.end());
    chunk.insert(chunk.end(), content.begin(), content.end());
    put_number(bytes, static_cast<std::uint32_t>(content.size()));
    bytes.insert(bytes.end(), chunk.begin(), chunk.end());
    put_number(bytes, crc_sum(chunk));
}

Bytes header_content() {
    Bytes content;
    put_number(content, sheet_width * enlargement);
    put_number(content, sheet_height * enlargement);
    content.insert(content.end(), {8, 2, 0, 0, 0}); // 8 bits, RGB
    return content;
}

Rgb shown_colour(const Sheet_Picture& sheet, int x, int y) {
    const Rgb colour = sheet.at(x / enlargement, y / enlargement);
    const bool is_dark = (x / checker_size + y / checker_size) % 2 != 0;
    return colour != transparent_colour ? colour : is_dark ? checker_dark : checker_light;
}

Bytes enlarged_rows(const Sheet_Picture& sheet) {
    Bytes rows;
    for (int y = 0; y < sheet_height * enlargement; ++y) {
        rows.push_back(0); // no filter
        for (int x = 0; x < sheet_width * enlargement; ++x) {
            const Rgb colour = shown_colour(sheet, x, y);
            rows.insert(rows.end(), {colour.r, colour.g, colour.b});
        }
    }
    return rows;
}

} // namespace

Bytes encode_enlarged_png(const Sheet_Picture& sheet) {
    const Bytes rows = enlarged_rows(sheet);
    Bytes content{0x78, 0x01};
    const Bytes packed = deflated(rows);
    content.insert(content.end(), packed.begin(), packed.end());
    put_number(content, adler_sum(rows));

    Bytes bytes{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    put_chunk(bytes, "IHDR", header_content());
    put_chunk(bytes, "IDAT", content);
    put_chunk(bytes, "IEND", {});
    return bytes;
}

} // namespace quadrelle
