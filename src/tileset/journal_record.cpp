#include "tileset/journal_record.h"

#include "base/checksum.h"
#include "tileset/journal_format.h"

#include <cstddef>

namespace quadrelle {

namespace {

using namespace journal_format;

std::uint8_t flags_of(const Set_Change& change) {
    return static_cast<std::uint8_t>((change.is_named ? named : 0U) | (change.has_map ? has_map : 0U) |
                                     (change.map ? map_follows : 0U) | (change.files.set ? knows_file : 0U) |
                                     (change.files.map ? knows_map_file : 0U));
}

void pack_long(Bytes& bytes, std::uint64_t number) {
    pack_word(bytes, static_cast<std::uint32_t>(number));
    pack_word(bytes, static_cast<std::uint32_t>(number >> 32U));
}

void pack_stamp(Bytes& bytes, const File_Stamp& stamp) {
    pack_long(bytes, static_cast<std::uint64_t>(stamp.state.size));
    pack_long(bytes, static_cast<std::uint64_t>(stamp.state.modified));
    pack_long(bytes, stamp.fingerprint);
}

void pack_files(Bytes& bytes, const Known_Files& files) {
    if (files.set) {
        pack_stamp(bytes, *files.set);
        pack_long(bytes, static_cast<std::uint64_t>(files.surplus));
    }
    if (files.map) {
        pack_stamp(bytes, *files.map);
    }
}

Bytes record(Record_Kind kind, const Bytes& contents) {
    Bytes bytes(mark.begin(), mark.end());
    bytes.reserve(bytes_before + contents.size() + bytes_behind);
    pack_word(bytes, static_cast<std::uint32_t>(kind));
    pack_word(bytes, static_cast<std::uint32_t>(contents.size()));
    pack_bytes(bytes, contents);
    pack_word(bytes, checksum(bytes));
    return bytes;
}

int packed(int number, Bytes& bytes) {
    pack_word(bytes, static_cast<std::uint32_t>(number));
    return number;
}

void pack_pixels(Bytes& bytes, std::span<const Color> pixels) {
    pack_bytes(bytes, {reinterpret_cast<const std::uint8_t*>(pixels.data()), pixels.size_bytes()});
}

void pack_area(Bytes& bytes, const Tile& tile, const Rectangle& area) {
    for (const int number : {area.x, area.y, area.width, area.height}) {
        packed(number, bytes);
    }
    for (int y = area.y; y < area.bottom(); ++y) {
        const auto start = static_cast<std::size_t>(y) * static_cast<std::size_t>(tile.width());
        pack_pixels(bytes, tile.pixels().subspan(start + static_cast<std::size_t>(area.x),
                                                 static_cast<std::size_t>(area.width)));
    }
}

// Tiles that keep their order are told of together.
std::size_t run_length(std::span<const Tile_Change> tiles) {
    const Tile_Change& first = tiles.front();
    if (first.source == Tile_Source::patched || first.source == Tile_Source::whole) {
        return 1;
    }
    std::size_t length = 1;
    while (length < tiles.size() && tiles[length].source == first.source &&
           tiles[length].index == first.index + static_cast<int>(length)) {
        ++length;
    }
    return length;
}

void pack_tiles(Bytes& bytes, std::span<const Tile_Change> tiles) {
    while (!tiles.empty()) {
        const Tile_Change& tile = tiles.front();
        const std::size_t length = run_length(tiles);
        pack_byte(bytes, static_cast<std::uint8_t>(tile.source));
        switch (tile.source) {
        case Tile_Source::kept:
        case Tile_Source::in_file:
            packed(tile.index, bytes);
            packed(static_cast<int>(length), bytes);
            break;
        case Tile_Source::patched:
            packed(tile.index, bytes);
            pack_area(bytes, *tile.picture, tile.area);
            break;
        case Tile_Source::whole: pack_pixels(bytes, tile.picture->pixels()); break;
        }
        tiles = tiles.subspan(length);
    }
}

} // namespace

Bytes journal_head() {
    return {head.begin(), head.end()};
}

Bytes record_of(const Set_Change& change) {
    Bytes contents;
    pack_word(contents, change.number);
    pack_byte(contents, flags_of(change));
    pack_text(contents, change.name);
    pack_files(contents, change.files);
    packed(change.tile_size.width, contents);
    packed(change.tile_size.height, contents);
    packed(static_cast<int>(change.tiles.size()), contents);
    pack_tiles(contents, change.tiles);
    if (change.map) {
        pack_word(contents, static_cast<std::uint32_t>(change.map->size()));
        pack_bytes(contents, *change.map);
    }
    return record(Record_Kind::change, contents);
}

Bytes end_record_of(Set_Number number) {
    Bytes contents;
    pack_word(contents, number);
    return record(Record_Kind::end, contents);
}

Bytes journal_of(const Journal_Sets& sets) {
    Bytes bytes = journal_head();
    for (const auto& [number, set] : sets) {
        Set_Change change{number,        set.name, set.is_named,       set.files,
                          set.tile_size, {},       set.map != nullptr, set.map};
        change.tiles.reserve(set.tiles.size());
        for (const Journal_Tile& tile : set.tiles) {
            change.tiles.push_back(tile.picture
                                       ? Tile_Change{Tile_Source::whole, 0, tile.picture.get(), {}}
                                       : Tile_Change{Tile_Source::in_file, tile.index_in_file, nullptr, {}});
        }
        pack_bytes(bytes, record_of(change));
    }
    return bytes;
}

} // namespace quadrelle
