#include "map/map_file.h"

#include "base/file_names.h"
#include "base/platform_files.h"
#include "map/map_code.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quadrelle {

namespace {

// A line that no text has: what changes line ends or cuts at a zero breaks it.
constexpr std::array<std::uint8_t, 8> magic{'Q', 'D', 'L', 'M', 'A', 'P', '\n', 0};
constexpr std::uint32_t format_version = 1;
constexpr std::size_t number_bytes = 4;
constexpr std::size_t head_bytes = magic.size() + 3 * number_bytes;
constexpr std::size_t smallest_file = head_bytes + number_bytes;
// Each cell a run of its own with the largest word.
constexpr std::int64_t largest_file = std::int64_t{largest_map_edge} * largest_map_edge * 6 + 64;

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

// CRC-32, as in PNG files.
std::uint32_t checksum(std::span<const std::uint8_t> bytes) {
    static const std::array<std::uint32_t, 256> table = [] {
        std::array<std::uint32_t, 256> words{};
        for (std::uint32_t i = 0; i < words.size(); ++i) {
            std::uint32_t word = i;
            for (int bit = 0; bit < 8; ++bit) {
                word = (word >> 1U) ^ ((word & 1U) != 0 ? 0xedb88320U : 0U);
            }
            words[i] = word;
        }
        return words;
    }();
    std::uint32_t sum = 0xffffffffU;
    for (const std::uint8_t byte : bytes) {
        sum = (sum >> 8U) ^ table[(sum ^ byte) & 0xffU];
    }
    return ~sum;
}

bool is_whole(std::span<const std::uint8_t> bytes) {
    return bytes.size() >= smallest_file && std::ranges::equal(bytes.first(magic.size()), magic) &&
           word_at(bytes, magic.size()) == format_version &&
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

} // namespace

std::string map_path(const std::string& tileset_path) {
    return with_extension(tileset_path, "map");
}

std::vector<std::uint8_t> encode_map(const Tile_Map& map) {
    Map_Bytes bytes(magic.begin(), magic.end());
    append_word(bytes, format_version);
    append_word(bytes, static_cast<std::uint32_t>(map.size().width));
    append_word(bytes, static_cast<std::uint32_t>(map.size().height));
    append_cells(bytes, map.cells());
    append_word(bytes, checksum(bytes));
    return bytes;
}

std::optional<Tile_Map> decode_map(std::span<const std::uint8_t> bytes) {
    const std::optional<Size> size = is_whole(bytes) ? size_of(bytes) : std::nullopt;
    if (!size) {
        return std::nullopt;
    }
    Tile_Map map(*size);
    Map_Code_Reader reader(bytes.subspan(head_bytes, bytes.size() - smallest_file));
    reader.cells(map.cells());
    const bool is_exact = !reader.has_failed() && reader.is_at_end();
    const bool has_known_tiles =
        std::ranges::all_of(map.cells(), [](Map_Cell cell) { return cell.tile() < most_mapped_tiles; });
    return is_exact && has_known_tiles ? std::optional(std::move(map)) : std::nullopt;
}

Read_Map read_map(const std::string& path) {
    if (path_kind(path) == Path_Kind::nothing) {
        return {};
    }
    const File_Handle file = open_file(path, File_Mode::read);
    const std::int64_t size = file ? file_size(file.get()) : -1;
    if (size < 0 || size > largest_file) {
        return {Map_File_State::unreadable, std::nullopt};
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    bytes.resize(read_bytes(file.get(), bytes));
    std::optional<Tile_Map> map = decode_map(bytes);
    const Map_File_State state = map ? Map_File_State::read : Map_File_State::unreadable;
    return {state, std::move(map)};
}

} // namespace quadrelle
