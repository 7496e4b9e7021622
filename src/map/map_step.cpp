#include "map/map_step.h"

#include "map/map_code.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace quadrelle {

namespace {

class Run_Writer {
public:
    // The runs come in their order.
    void add(std::size_t start, std::span<const Map_Cell> cells) {
        append_number(bytes_, static_cast<std::uint32_t>(start - written_));
        append_number(bytes_, static_cast<std::uint32_t>(cells.size()));
        append_cells(bytes_, cells);
        written_ = start + cells.size();
    }
    [[nodiscard]] Compressed_Bytes result() { return Compressed_Bytes(std::move(bytes_)); }

private:
    Map_Bytes bytes_;
    std::size_t written_ = 0;
};

Compressed_Bytes changes_between(std::span<const Map_Cell> from, std::span<const Map_Cell> to) {
    Run_Writer runs;
    for (std::size_t start = 0; start < from.size();) {
        if (from[start] == to[start]) {
            ++start;
            continue;
        }
        std::size_t end = start + 1;
        while (end < from.size() && from[end] != to[end]) {
            ++end;
        }
        runs.add(start, to.subspan(start, end - start));
        start = end;
    }
    return runs.result();
}

// Writes the runs into the cells and returns what stood there.
Compressed_Bytes exchange_runs(const Map_Bytes& bytes, std::span<Map_Cell> cells) {
    Run_Writer before;
    Map_Code_Reader reader(bytes);
    std::size_t start = 0;
    while (!reader.is_at_end()) {
        start += reader.number();
        const std::size_t count = reader.number();
        const std::span<Map_Cell> run = cells.subspan(start, count);
        before.add(start, run);
        reader.cells(run);
        start += count;
    }
    return before.result();
}

Map_Sides opposite(const Map_Sides& sides) {
    return {-sides.left, -sides.top, -sides.right, -sides.bottom};
}

} // namespace

Map_Step::Map_Step(const Tile_Map& from, const Tile_Map& to, const Map_Sides& sides)
    : sides_(sides),
      changes_(sides == Map_Sides{} ? changes_between(from.cells(), to.cells())
                                    : changes_between(from.resized(sides).cells(), to.cells())) {}

// Small ones would not make much room.
bool Map_Step::put_aside(const std::shared_ptr<Scratch_File>& file) {
    constexpr std::size_t smallest = 4096;
    return changes_.kept_size() >= smallest && changes_.put_aside(file);
}

Map_Step Map_Step::apply(Tile_Map& map) const {
    if (sides_ == Map_Sides{}) {
        return Map_Step(exchange_runs(changes_.bytes(), map.cells()));
    }
    const Tile_Map before = std::exchange(map, map.resized(sides_));
    static_cast<void>(exchange_runs(changes_.bytes(), map.cells()));
    return {map, before, opposite(sides_)};
}

} // namespace quadrelle
