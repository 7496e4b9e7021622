#include "tileset/journal_map.h"

#include "map/map_code.h"

#include <cstddef>
#include <utility>

namespace quadrelle {

Bytes packed_map(Handed_Map handed) {
    for (Map_Cell& cell : handed.map.cells()) {
        const auto number = static_cast<std::size_t>(cell.tile());
        const int index = !cell.is_empty() && number < handed.index_of.size() ? handed.index_of[number] : -1;
        cell = index < 0 ? Map_Cell() : cell.with_tile(index);
    }
    Bytes bytes;
    pack_word(bytes, static_cast<std::uint32_t>(handed.map.size().width));
    pack_word(bytes, static_cast<std::uint32_t>(handed.map.size().height));
    append_cells(bytes, handed.map.cells());
    return bytes;
}

std::optional<Tile_Map> unpacked_map(std::span<const std::uint8_t> bytes, int tiles) {
    constexpr std::size_t head_bytes = 8;
    Packed_Reader head(bytes);
    const Size size{head.number(largest_map_edge), head.number(largest_map_edge)};
    if (head.has_failed() || !is_map_size(size)) {
        return std::nullopt;
    }
    Tile_Map map(size);
    Map_Code_Reader reader(bytes.subspan(head_bytes));
    reader.cells(map.cells());
    for (Map_Cell& cell : map.cells()) {
        cell = cell.tile() < tiles ? cell : Map_Cell();
    }
    return reader.has_failed() || !reader.is_at_end() ? std::nullopt : std::optional(std::move(map));
}

} // namespace quadrelle
