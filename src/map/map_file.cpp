#include "map/map_file.h"

#include "base/checksum.h"
#include "base/file_names.h"
#include "base/fingerprint.h"
#include "base/platform_files.h"
#include "map/map_code.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

// A line that no text has: what changes line ends or cuts at a zero breaks it.
constexpr std::array<std::uint8_t, 8> magic{'Q', 'D', 'L', 'M', 'A', 'P', '\n', 0};
// Of the first version nothing is known of the tiles.
constexpr std::uint32_t version_without_tiles = 1;
constexpr std::uint32_t version_with_tiles = 2;
constexpr std::size_t number_bytes = 4;
constexpr std::size_t head_bytes = magic.size() + 3 * number_bytes;
constexpr std::size_t smallest_file = head_bytes + number_bytes;
// There is room for cells that are each a run of its own, and for more tiles than any set has.
constexpr std::int64_t largest_file = std::int64_t{64} << 20U;

void append_word(Map_Bytes& bytes, std::uint32_t word) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<std::uint8_t>(word >> shift));
    }
}

std::uint32_t word_at(std::span<const std::uint8_t> bytes, std::size_t offset) {
    std::uint32_t word = 0;
    for (std::size_t i = 0; i < number_bytes; ++i) {
        word |= static_cast<std::uint32_t>(bytes[offset + i]) << (8 * i);
    }
    return word;
}

bool is_whole(std::span<const std::uint8_t> bytes) {
    return bytes.size() >= smallest_file && std::ranges::equal(bytes.first(magic.size()), magic) &&
           checksum(bytes.first(bytes.size() - number_bytes)) == word_at(bytes, bytes.size() - number_bytes);
}

std::optional<Size> size_of(std::span<const std::uint8_t> bytes) {
    const std::uint32_t width = word_at(bytes, magic.size() + number_bytes);
    const std::uint32_t height = word_at(bytes, magic.size() + 2 * number_bytes);
    if (std::max(width, height) > largest_map_edge || std::min(width, height) == 0) {
        return std::nullopt;
    }
    return Size{static_cast<int>(width), static_cast<int>(height)};
}

// Returns the sums and takes them off the bytes, which begin with their count.
std::optional<Tile_Sums> take_sums(std::span<const std::uint8_t>& bytes) {
    const std::size_t most = bytes.size() / number_bytes;
    if (most == 0 || word_at(bytes, 0) > most - 1) {
        return std::nullopt;
    }
    Tile_Sums sums(word_at(bytes, 0));
    for (std::size_t i = 0; i < sums.size(); ++i) {
        sums[i] = word_at(bytes, (i + 1) * number_bytes);
    }
    bytes = bytes.subspan((sums.size() + 1) * number_bytes);
    return sums;
}

} // namespace

std::string map_path(const std::string& tileset_path) {
    constexpr std::string_view ending = "qdl";
    if (!has_extension(tileset_path, ending)) {
        return tileset_path + ".qdlmap";
    }
    std::string path = tileset_path;
    const std::size_t start = path.size() - ending.size();
    for (std::size_t i = 0; i < ending.size(); ++i) {
        path[start + i] = path[start + i] == ending[i] ? "map"[i] : "MAP"[i];
    }
    return path;
}

std::vector<std::uint8_t> encode_map(const Tile_Map& map, const Tile_Sums& tiles) {
    Map_Bytes bytes(magic.begin(), magic.end());
    append_word(bytes, version_with_tiles);
    append_word(bytes, static_cast<std::uint32_t>(map.size().width));
    append_word(bytes, static_cast<std::uint32_t>(map.size().height));
    append_word(bytes, static_cast<std::uint32_t>(tiles.size()));
    for (const std::uint32_t sum : tiles) {
        append_word(bytes, sum);
    }
    append_cells(bytes, map.cells());
    append_word(bytes, checksum(bytes));
    return bytes;
}

std::optional<Stored_Map> decode_map(std::span<const std::uint8_t> bytes) {
    const std::optional<Size> size = is_whole(bytes) ? size_of(bytes) : std::nullopt;
    if (!size) {
        return std::nullopt;
    }
    const std::uint32_t version = word_at(bytes, magic.size());
    std::span<const std::uint8_t> rest = bytes.subspan(head_bytes, bytes.size() - smallest_file);
    std::optional<Tile_Sums> tiles = version == version_with_tiles ? take_sums(rest) : std::nullopt;
    if (!tiles && version != version_without_tiles) {
        return std::nullopt;
    }
    Tile_Map map(*size);
    Map_Code_Reader reader(rest);
    reader.cells(map.cells());
    const bool is_exact = !reader.has_failed() && reader.is_at_end();
    return is_exact ? std::optional(Stored_Map{std::move(map), std::move(tiles)}) : std::nullopt;
}

Read_Map read_map(const std::string& path) {
    if (path_kind(path) == Path_Kind::nothing) {
        return {};
    }
    const File_State file_then = file_state(path).value_or(File_State{});
    const File_Handle file = open_file(path, File_Mode::read);
    const std::int64_t size = file ? file_size(file.get()) : -1;
    if (size < 0 || size > largest_file) {
        return {Map_File_State::unreadable, std::nullopt, {}};
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    bytes.resize(read_bytes(file.get(), bytes));
    std::optional<Stored_Map> map = decode_map(bytes);
    const Map_File_State state = map ? Map_File_State::read : Map_File_State::unreadable;
    return {state, std::move(map), {file_then, fingerprint_of(bytes)}};
}

} // namespace quadrelle
