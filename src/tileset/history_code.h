#pragma once

// The bytes that a history is kept as: numbers, and pixels as what is different from others.

#include "pixels/tile.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quadrelle {

class History_Writer {
public:
    // Seven bits a byte, the lowest first.
    void number(std::uint64_t number);
    void signed_number(std::int64_t number);
    // A fixed eight bytes.
    void word(std::uint64_t word);
    // The picture beside it has the same size, or is null: then each pixel is compared with the one before.
    void pixels(const Tile& picture, const Tile* beside);

    [[nodiscard]] const std::vector<std::uint8_t>& bytes() const { return bytes_; }

private:
    std::vector<std::uint8_t> bytes_;
};

// Reads what was written. Whatever the bytes are, nothing outside of them is read, and no more memory is
// taken for pictures than `most_pixels` need in all; a fault is remembered.
class History_Reader {
public:
    static constexpr std::int64_t most_pixels = std::int64_t{16} << 20U;

    explicit History_Reader(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    [[nodiscard]] bool has_failed() const { return has_failed_; }
    [[nodiscard]] bool is_at_end() const { return rest_.empty(); }
    // Return 0 after a fault.
    std::uint64_t number();
    // It is a fault when it is not from `low` to `high`.
    std::int64_t number_between(std::int64_t low, std::int64_t high);
    std::int64_t signed_number_between(std::int64_t low, std::int64_t high);
    std::uint64_t word();
    // None after a fault.
    std::optional<Tile> pixels(Size size, const Tile* beside);

private:
    std::uint8_t byte();
    std::int64_t checked(std::int64_t number, std::int64_t low, std::int64_t high);
    bool take_room(Size size);

    std::span<const std::uint8_t> rest_;
    std::int64_t pixels_left_ = most_pixels;
    bool has_failed_ = false;
};

} // namespace quadrelle
