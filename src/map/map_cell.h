#pragma once

// What lies at one place of a map: a tile, by its number, in one of eight orientations, or nothing.

#include <cstddef>
#include <cstdint>

namespace quadrelle {

// Columns and rows change places first; then the picture is mirrored left to right and flipped upside down.
struct Orientation {
    bool is_swapped = false;
    bool is_mirrored = false;
    bool is_flipped = false;

    // What comes on top of it.
    [[nodiscard]] constexpr Orientation then_mirrored() const {
        return {is_swapped, !is_mirrored, is_flipped};
    }
    [[nodiscard]] constexpr Orientation then_flipped() const {
        return {is_swapped, is_mirrored, !is_flipped};
    }
    // By a quarter.
    [[nodiscard]] constexpr Orientation then_turned_right() const {
        return {!is_swapped, !is_flipped, is_mirrored};
    }
    [[nodiscard]] constexpr Orientation then_turned_left() const {
        return {!is_swapped, is_flipped, !is_mirrored};
    }

    bool operator==(const Orientation&) const = default;
};

class Map_Cell {
public:
    static constexpr std::uint32_t mirrored_bit = std::uint32_t{1} << 31U;
    static constexpr std::uint32_t flipped_bit = std::uint32_t{1} << 30U;
    static constexpr std::uint32_t swapped_bit = std::uint32_t{1} << 29U;
    static constexpr int largest_tile = static_cast<int>(swapped_bit) - 2;

    // Nothing.
    constexpr Map_Cell() = default;
    // The number is from 0 to the largest one.
    constexpr explicit Map_Cell(int tile, Orientation orientation = {})
        : word_((static_cast<std::uint32_t>(tile) + 1U) | (orientation.is_mirrored ? mirrored_bit : 0U) |
                (orientation.is_flipped ? flipped_bit : 0U) | (orientation.is_swapped ? swapped_bit : 0U)) {}
    // One above the tile's number, with the orientation in the three highest bits; 0 is nothing, as is a word
    // that has no number.
    [[nodiscard]] static constexpr Map_Cell of_word(std::uint32_t word) {
        Map_Cell cell;
        cell.word_ = (word & (swapped_bit - 1U)) == 0 ? 0 : word;
        return cell;
    }

    [[nodiscard]] constexpr bool is_empty() const { return word_ == 0; }
    // It is -1 of nothing.
    [[nodiscard]] constexpr int tile() const { return static_cast<int>(word_ & (swapped_bit - 1U)) - 1; }
    [[nodiscard]] constexpr Orientation orientation() const {
        return {(word_ & swapped_bit) != 0, (word_ & mirrored_bit) != 0, (word_ & flipped_bit) != 0};
    }
    static constexpr std::size_t orientation_count = 8;
    // A number for each orientation.
    [[nodiscard]] constexpr std::size_t orientation_index() const { return word_ >> 29U; }
    [[nodiscard]] constexpr std::uint32_t word() const { return word_; }
    // The same orientation, unless it is empty.
    [[nodiscard]] constexpr Map_Cell with_tile(int tile) const {
        return is_empty() ? *this : Map_Cell(tile, orientation());
    }
    // The same with another number; -1 makes it empty, and is what an empty one is given.
    [[nodiscard]] constexpr Map_Cell with_number(int tile) const {
        const std::uint32_t orientation = word_ & ~(swapped_bit - 1U);
        return of_word(orientation | (static_cast<std::uint32_t>(tile) + 1U));
    }
    [[nodiscard]] constexpr Map_Cell with(Orientation orientation) const {
        return is_empty() ? *this : Map_Cell(tile(), orientation);
    }

    bool operator==(const Map_Cell&) const = default;

private:
    std::uint32_t word_ = 0;
};

static_assert(sizeof(Map_Cell) == 4);

} // namespace quadrelle
