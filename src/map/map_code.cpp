#include "map/map_code.h"

#include <algorithm>
#include <bit>

namespace quadrelle {

namespace {

constexpr std::uint32_t seven_bits = 0x7fU;
constexpr std::uint32_t more_bit = 0x80U;
// The bits of the orientation are the highest ones of a word, and seldom set: as the lowest ones they cost no
// bytes.
constexpr int orientation_bits = 3;

} // namespace

void append_number(Map_Bytes& bytes, std::uint32_t number) {
    while (number > seven_bits) {
        bytes.push_back(static_cast<std::uint8_t>((number & seven_bits) | more_bit));
        number >>= 7U;
    }
    bytes.push_back(static_cast<std::uint8_t>(number));
}

void append_cells(Map_Bytes& bytes, std::span<const Map_Cell> cells) {
    while (!cells.empty()) {
        const Map_Cell first = cells.front();
        const auto end = std::ranges::find_if(cells, [first](Map_Cell cell) { return cell != first; });
        const auto count = static_cast<std::size_t>(end - cells.begin());
        append_number(bytes, static_cast<std::uint32_t>(count));
        append_number(bytes, std::rotl(first.word(), orientation_bits));
        cells = cells.subspan(count);
    }
}

std::uint32_t Map_Code_Reader::number() {
    std::uint32_t number = 0;
    for (unsigned shift = 0; shift < 32 && !has_failed_; shift += 7) {
        if (rest_.empty()) {
            break;
        }
        const std::uint32_t byte = rest_.front();
        rest_ = rest_.subspan(1);
        number |= (byte & seven_bits) << shift;
        if (byte < more_bit) {
            return number;
        }
    }
    has_failed_ = true;
    return 0;
}

void Map_Code_Reader::cells(std::span<Map_Cell> cells) {
    while (!cells.empty()) {
        const std::size_t count = number();
        const Map_Cell cell = Map_Cell::of_word(std::rotr(number(), orientation_bits));
        has_failed_ = has_failed_ || count == 0 || count > cells.size();
        if (has_failed_) {
            return;
        }
        std::fill_n(cells.begin(), count, cell);
        cells = cells.subspan(count);
    }
}

} // namespace quadrelle
