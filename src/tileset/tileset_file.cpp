#include "tileset/tileset_file.h"

#include "base/atomic_file.h"
#include "base/block_file.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quadrelle {

namespace {

using Header_Bytes = std::array<std::uint8_t, tileset_header_size>;

constexpr std::string_view magic = "QDL";
constexpr std::size_t width_offset = 5;
constexpr std::size_t height_offset = 6;
constexpr std::size_t count_offset = 7;

// The bytes that are written at once, or those of one tile where it has more: for a few at a time the system
// takes several times as long.
constexpr std::size_t block_size = std::size_t{1} << 20U;

struct Header {
    Size tile_size;
    std::uint32_t count = 0;
};

Header_Bytes packed(const Tileset& tileset) {
    Header_Bytes bytes = {'Q', 'D', 'L', '\n', 0};
    bytes[width_offset] = static_cast<std::uint8_t>(tileset.tile_width());
    bytes[height_offset] = static_cast<std::uint8_t>(tileset.tile_height());
    for (std::size_t i = 0; i < 4; ++i) {
        bytes[count_offset + i] =
            static_cast<std::uint8_t>(static_cast<std::uint32_t>(tileset.count()) >> (8 * i));
    }
    return bytes;
}

Header unpacked(const Header_Bytes& bytes) {
    Header header{{bytes[width_offset], bytes[height_offset]}, 0};
    for (std::size_t i = 0; i < 4; ++i) {
        header.count |= static_cast<std::uint32_t>(bytes[count_offset + i]) << (8 * i);
    }
    return header;
}

// Neither the line feed nor the zero after it is looked at.
bool has_magic(const Header_Bytes& bytes) {
    return std::equal(magic.begin(), magic.end(), bytes.begin());
}

// Takes memory tile by tile as the file turns out to hold them: the count alone is not to be trusted.
void load_tiles(Tileset& tileset, Block_File& file, std::uint32_t count) {
    std::vector<std::uint8_t> buffer(static_cast<std::size_t>(tileset.tile_bytes()));
    for (std::uint32_t i = 0; i < count; ++i) {
        file.read_block(buffer);
        auto tile = std::make_unique<Tile>(tileset.tile_width(), tileset.tile_height());
        tile->read_pixels(buffer);
        tileset.append_loaded(std::move(tile));
    }
}

} // namespace

std::int64_t save_tileset(const Tileset& tileset, const std::string& path) {
    Atomic_File file(path);
    const auto tile_bytes = static_cast<std::size_t>(tileset.tile_bytes());
    const auto all_bytes = static_cast<std::size_t>(tileset_header_size + tileset.total_bytes());
    const std::size_t block_bytes =
        std::min(all_bytes, std::max(block_size, tileset_header_size + tile_bytes));
    // Not set to zero first, which would take as long as the pixels do.
    const auto memory = std::make_unique_for_overwrite<std::uint8_t[]>(block_bytes);
    const std::span block(memory.get(), block_bytes);
    std::ranges::copy(packed(tileset), block.begin());
    std::size_t used = tileset_header_size;
    for (int i = 0; i < tileset.count(); ++i) {
        if (used + tile_bytes > block.size()) {
            if (!file.write(block.first(used))) {
                return -1;
            }
            used = 0;
        }
        tileset.tile_at(i).write_pixels(block.subspan(used, tile_bytes));
        used += tile_bytes;
    }
    file.write(block.first(used));
    return file.commit() ? tileset_header_size + tileset.total_bytes() : -1;
}

namespace {

// The file stands behind its header then. None where that is missing, or another one.
std::optional<Header> whole_header(Block_File& file) {
    if (!file.open_read() || file.remaining() < tileset_header_size) {
        return std::nullopt;
    }
    Header_Bytes bytes = {};
    file.read_block(bytes);
    return has_magic(bytes) ? std::optional(unpacked(bytes)) : std::nullopt;
}

} // namespace

std::unique_ptr<Tile> load_first_tile(const std::string& path) {
    Block_File file(path);
    const std::optional<Header> header = whole_header(file);
    if (!header || header->count == 0) {
        return nullptr;
    }
    const Tileset empty(header->tile_size);
    if (empty.tile_bytes() == 0 || file.remaining() < empty.tile_bytes()) {
        return nullptr;
    }
    std::vector<std::uint8_t> buffer(static_cast<std::size_t>(empty.tile_bytes()));
    file.read_block(buffer);
    auto tile = std::make_unique<Tile>(empty.tile_width(), empty.tile_height());
    tile->read_pixels(buffer);
    return tile;
}

bool is_whole_tileset(const std::string& path) {
    Block_File file(path);
    const std::optional<Header> header = whole_header(file);
    return header && file.remaining() >= header->count * Tileset(header->tile_size).tile_bytes();
}

Loaded_Tileset load_tileset(const std::string& path) {
    Block_File file(path);
    if (!file.open_read()) {
        return {};
    }
    Header_Bytes bytes = {};
    file.read_block(bytes);
    if (!has_magic(bytes)) {
        return {};
    }
    Header header = unpacked(bytes);
    auto tileset = std::make_unique<Tileset>(header.tile_size);
    if (tileset->tile_bytes() == 0) {
        // A count of tiles without pixels is backed by no data: it could be any number.
        header.count = 0;
    }
    load_tiles(*tileset, file, header.count);
    return {Load_Outcome::loaded, std::move(tileset)};
}

} // namespace quadrelle
