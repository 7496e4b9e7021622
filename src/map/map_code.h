#pragma once

// Cells as few bytes: runs of equal ones, and numbers of one to five bytes. For files and the history.

#include "map/map_cell.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quadrelle {

using Map_Bytes = std::vector<std::uint8_t>;

void append_number(Map_Bytes& bytes, std::uint32_t number);
void append_cells(Map_Bytes& bytes, std::span<const Map_Cell> cells);

// Reads what was appended. Whatever the bytes are, nothing outside of them is read; a fault is remembered.
class Map_Code_Reader {
public:
    explicit Map_Code_Reader(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    [[nodiscard]] bool is_at_end() const { return rest_.empty(); }
    [[nodiscard]] bool has_failed() const { return has_failed_; }
    // Returns 0 after a fault.
    std::uint32_t number();
    // Fills the cells; what a fault leaves out is as it was.
    void cells(std::span<Map_Cell> cells);

private:
    std::span<const std::uint8_t> rest_;
    bool has_failed_ = false;
};

} // namespace quadrelle
