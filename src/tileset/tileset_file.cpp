#include "tileset/tileset_file.h"

#include "base/atomic_file.h"
#include "base/block_file.h"
#include "base/fingerprint.h"
#include "base/platform_files.h"

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
constexpr std::string_view no_such_start = "It does not begin as a set of tiles does";
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
void load_tiles(Tileset& tileset, Block_File& file, std::uint32_t count, Fingerprint& sum) {
    std::vector<std::uint8_t> buffer(static_cast<std::size_t>(tileset.tile_bytes()));
    for (std::uint32_t i = 0; i < count; ++i) {
        file.read_block(buffer);
        sum.add(buffer);
        auto tile = std::make_unique<Tile>(tileset.tile_width(), tileset.tile_height());
        tile->read_pixels(buffer);
        tileset.append_loaded(std::move(tile));
    }
}

// The tiles as they follow each other in a file, cut into blocks; the first one begins with the header.
class Tileset_Blocks {
public:
    explicit Tileset_Blocks(const Tileset& tileset)
        : tileset_(tileset), header_(packed(tileset)),
          tile_bytes_(static_cast<std::size_t>(tileset.tile_bytes())),
          tiles_in_block_(static_cast<int>(block_size / std::max<std::size_t>(1, tile_bytes_))) {}

    [[nodiscard]] bool write(Atomic_File& file, Fingerprint& sum);
    // Whether the file holds these tiles and nothing else.
    [[nodiscard]] bool is_in(const std::string& path);

private:
    struct Block {
        int first_tile;
        int end_tile;
        std::span<std::uint8_t> header; // empty but for the first one
        std::span<std::uint8_t> bytes;  // with the header
    };
    // Stops where the answer is false, which is the answer then.
    template <typename Function>
    bool for_each(Function function);
    [[nodiscard]] std::span<std::uint8_t> tile_in(const Block& block, int tile) const {
        const auto place = static_cast<std::size_t>(tile - block.first_tile);
        return block.bytes.subspan(block.header.size() + place * tile_bytes_, tile_bytes_);
    }

    const Tileset& tileset_;
    Header_Bytes header_;
    std::size_t tile_bytes_;
    int tiles_in_block_;
    std::unique_ptr<std::uint8_t[]> memory_;
};

template <typename Function>
bool Tileset_Blocks::for_each(Function function) {
    const int step = std::max(1, std::min(tiles_in_block_, tileset_.count()));
    if (!memory_) {
        // Not set to zero first, which would take as long as the pixels do.
        memory_ = std::make_unique_for_overwrite<std::uint8_t[]>(
            tileset_header_size + static_cast<std::size_t>(step) * tile_bytes_);
    }
    std::size_t header_size = tileset_header_size;
    int first = 0;
    do {
        const int end = std::min(first + step, tileset_.count());
        const std::size_t size = header_size + static_cast<std::size_t>(end - first) * tile_bytes_;
        const std::span bytes(memory_.get(), size);
        if (!function(Block{first, end, bytes.first(header_size), bytes})) {
            return false;
        }
        first = end;
        header_size = 0;
    } while (first < tileset_.count());
    return true;
}

bool Tileset_Blocks::write(Atomic_File& file, Fingerprint& sum) {
    return for_each([&](const Block& block) {
        std::copy_n(header_.begin(), block.header.size(), block.header.begin());
        for (int i = block.first_tile; i < block.end_tile; ++i) {
            tileset_.tile_at(i).write_pixels(tile_in(block, i));
        }
        sum.add(block.bytes);
        return file.write(block.bytes);
    });
}

bool Tileset_Blocks::is_in(const std::string& path) {
    Block_File file(path);
    if (!file.open_read()) {
        return false;
    }
    Tile read(tileset_.tile_width(), tileset_.tile_height());
    const bool is_same = for_each([&](const Block& block) {
        if (!file.try_read_block(block.bytes) ||
            !std::equal(block.header.begin(), block.header.end(), header_.begin())) {
            return false;
        }
        for (int i = block.first_tile; i < block.end_tile; ++i) {
            read.read_pixels(tile_in(block, i));
            if (!read.same_pixels(tileset_.tile_at(i))) {
                return false;
            }
        }
        return true;
    });
    return is_same && file.remaining() == 0;
}

} // namespace

std::int64_t save_tileset(const Tileset& tileset, const std::string& path, File_Stamp* stamp) {
    Atomic_File file(path);
    Tileset_Blocks blocks(tileset);
    Fingerprint sum;
    if (!blocks.write(file, sum)) {
        return -1;
    }
    const auto is_right = [&blocks](const std::string& written) {
        const bool is_same = blocks.is_in(written);
        if (!is_same) {
            set_file_fault("What was written could not be read again as it is");
        }
        return is_same;
    };
    if (!file.commit(is_right)) {
        return -1;
    }
    if (stamp != nullptr) {
        *stamp = {file_state(path).value_or(File_State{}), sum.value()};
    }
    return tileset_header_size + tileset.total_bytes();
}

namespace {

// The file stands behind its header then. None where that is missing, or another one.
std::optional<Header> whole_header(Block_File& file) {
    if (!file.open_read()) {
        return std::nullopt;
    }
    Header_Bytes bytes = {};
    if (!file.try_read_block(bytes) || !has_magic(bytes)) {
        set_file_fault(no_such_start);
        return std::nullopt;
    }
    return unpacked(bytes);
}

// What follows the last tile.
void add_rest(Block_File& file, Fingerprint& sum) {
    std::vector<std::uint8_t> block;
    while (const std::int64_t rest = file.remaining()) {
        block.resize(static_cast<std::size_t>(std::min<std::int64_t>(rest, block_size)));
        if (!file.try_read_block(block)) {
            return;
        }
        sum.add(block);
    }
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
    if (header && file.remaining() < header->count * Tileset(header->tile_size).tile_bytes()) {
        set_file_fault("It ends before its last tile does");
        return false;
    }
    return header.has_value();
}

Loaded_Tileset load_tileset(const std::string& path) {
    const std::optional<File_State> state = file_state(path);
    Block_File file(path);
    if (!file.open_read()) {
        return {};
    }
    Header_Bytes bytes = {};
    file.read_block(bytes);
    if (!has_magic(bytes)) {
        set_file_fault(no_such_start);
        return {};
    }
    Header header = unpacked(bytes);
    auto tileset = std::make_unique<Tileset>(header.tile_size);
    if (tileset->tile_bytes() == 0) {
        // A count of tiles without pixels is backed by no data: it could be any number.
        header.count = 0;
    }
    Fingerprint sum;
    sum.add(bytes);
    load_tiles(*tileset, file, header.count, sum);
    const std::int64_t surplus = file.remaining();
    add_rest(file, sum);
    return {Load_Outcome::loaded, std::move(tileset), {state.value_or(File_State{}), sum.value()}, surplus};
}

} // namespace quadrelle
