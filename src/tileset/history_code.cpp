#include "tileset/history_code.h"

#include <utility>

namespace quadrelle {

namespace {

constexpr std::uint64_t seven_bits = 0x7fU;
constexpr std::uint64_t more_bit = 0x80U;
constexpr int word_bits = 64;
constexpr int largest_side = 8192;

// What a pixel is when nothing is written for it.
Color expected(std::span<const Color> pixels, std::size_t i, const Tile* beside) {
    if (beside != nullptr) {
        return beside->pixels()[i];
    }
    return i == 0 ? Color() : pixels[i - 1];
}

} // namespace

void History_Writer::number(std::uint64_t number) {
    while (number > seven_bits) {
        bytes_.push_back(static_cast<std::uint8_t>((number & seven_bits) | more_bit));
        number >>= 7U;
    }
    bytes_.push_back(static_cast<std::uint8_t>(number));
}

void History_Writer::signed_number(std::int64_t signed_one) {
    const auto magnitude = static_cast<std::uint64_t>(signed_one < 0 ? -signed_one : signed_one);
    number(magnitude << 1U | (signed_one < 0 ? 1U : 0U));
}

void History_Writer::word(std::uint64_t word) {
    for (int shift = 0; shift < word_bits; shift += 8) {
        bytes_.push_back(static_cast<std::uint8_t>(word >> shift));
    }
}

// In turns, how many pixels are as expected, how many are not, and these.
void History_Writer::pixels(const Tile& picture, const Tile* beside) {
    const std::span<const Color> all = picture.pixels();
    for (std::size_t i = 0; i < all.size();) {
        const std::size_t start = i;
        while (i < all.size() && all[i] == expected(all, i, beside)) {
            ++i;
        }
        const std::size_t others = i;
        while (i < all.size() && all[i] != expected(all, i, beside)) {
            ++i;
        }
        number(others - start);
        number(i - others);
        for (const Color color : all.subspan(others, i - others)) {
            bytes_.insert(bytes_.end(), {color.b, color.g, color.r, color.a});
        }
    }
}

std::uint8_t History_Reader::byte() {
    if (rest_.empty()) {
        has_failed_ = true;
        return 0;
    }
    const std::uint8_t first = rest_.front();
    rest_ = rest_.subspan(1);
    return first;
}

std::uint64_t History_Reader::number() {
    std::uint64_t number = 0;
    for (int shift = 0; shift < word_bits && !has_failed_; shift += 7) {
        const std::uint64_t next = byte();
        number |= (next & seven_bits) << shift;
        if (next < more_bit) {
            return has_failed_ ? 0 : number;
        }
    }
    has_failed_ = true;
    return 0;
}

std::int64_t History_Reader::checked(std::int64_t number, std::int64_t low, std::int64_t high) {
    has_failed_ = has_failed_ || number < low || number > high;
    return has_failed_ ? low : number;
}

std::int64_t History_Reader::number_between(std::int64_t low, std::int64_t high) {
    return checked(static_cast<std::int64_t>(number()), low, high);
}

std::int64_t History_Reader::signed_number_between(std::int64_t low, std::int64_t high) {
    const std::uint64_t coded = number();
    const auto magnitude = static_cast<std::int64_t>(coded >> 1U);
    return checked((coded & 1U) != 0 ? -magnitude : magnitude, low, high);
}

std::uint64_t History_Reader::word() {
    std::uint64_t word = 0;
    for (int shift = 0; shift < word_bits; shift += 8) {
        word |= std::uint64_t{byte()} << shift;
    }
    return word;
}

bool History_Reader::take_room(Size size) {
    const bool is_possible =
        size.width >= 1 && size.height >= 1 && size.width <= largest_side && size.height <= largest_side;
    pixels_left_ -= is_possible ? std::int64_t{size.width} * size.height : 0;
    has_failed_ = has_failed_ || !is_possible || pixels_left_ < 0;
    return !has_failed_;
}

std::optional<Tile> History_Reader::pixels(Size size, const Tile* beside) {
    if (!take_room(size)) {
        return std::nullopt;
    }
    std::optional<Tile> picture(std::in_place, size.width, size.height);
    picture->change_pixels([&](std::span<Color> all) {
        for (std::size_t i = 0; i < all.size() && !has_failed_;) {
            std::uint64_t same = number();
            std::uint64_t others = number();
            has_failed_ =
                has_failed_ || same + others == 0 || same > all.size() - i || others > all.size() - i - same;
            for (; same > 0 && !has_failed_; --same, ++i) {
                all[i] = expected(all, i, beside);
            }
            for (; others > 0 && !has_failed_; --others, ++i) {
                const std::uint8_t b = byte();
                const std::uint8_t g = byte();
                const std::uint8_t r = byte();
                all[i] = {r, g, b, byte()};
            }
        }
    });
    return has_failed_ ? std::nullopt : std::move(picture);
}

} // namespace quadrelle
