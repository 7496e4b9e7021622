// How the brush pad is kept in its file. Identifiers, flags and the board are deliberately taken as they are
// read and not compared with each other.

#include "base/data_stream.h"
#include "tools/brush_pad.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quadrelle {

namespace {

// As wide or high as the largest tile that a brush is made from.
constexpr int longest_side = 255;

bool can_be_brush(Size size) {
    return size.width >= 1 && size.height >= 1 && size.width <= longest_side && size.height <= longest_side;
}

bool is_on_board(const Pad_Brush& brush) {
    const Tile_Point position = brush.position;
    return brush.id != 0 && position.x >= 0 && position.y >= 0 && position.x < Brush_Pad::board_size.width &&
           position.y < Brush_Pad::board_size.height;
}

std::uint8_t checked_identifier(int number) {
    return number >= 1 && number <= 255 ? static_cast<std::uint8_t>(number) : std::uint8_t{0};
}

constexpr std::size_t pixel_size = 4;

// The pixels row by row, each as alpha, blue, green, red.
void write_tile(Data_Stream& record, const Tile& tile) {
    std::vector<std::uint8_t> bytes(tile.pixels().size() * pixel_size);
    tile.write_pixels(bytes);
    record.write_bytes(bytes);
}

// Fills a tile of the written size.
void read_tile(Data_Stream& record, Tile& tile) {
    std::vector<std::uint8_t> bytes(tile.pixels().size() * pixel_size);
    record.read_bytes(bytes);
    tile.read_pixels(bytes);
}

void write_sized_tile(Data_Stream& record, const Tile& tile) {
    record.write_int(tile.width());
    record.write_int(tile.height());
    write_tile(record, tile);
}

// None for another size.
std::optional<Tile> read_sized_tile(Data_Stream& record, Size expected) {
    const Size size{record.read_int(), record.read_int()};
    if (size != expected) {
        return std::nullopt;
    }
    std::optional<Tile> tile(std::in_place, size.width, size.height);
    read_tile(record, *tile);
    return tile;
}

void write_brush(Data_Stream& record, const Pad_Brush& brush) {
    record.write_int(brush.picture.width());
    record.write_int(brush.picture.height());
    write_sized_tile(record, brush.picture);
    write_sized_tile(record, brush.mask);
    record.write_pair(brush.pair);
    write_sized_tile(record, brush.outline);
    record.write_pair({brush.position.x, brush.position.y});
    record.write_int(brush.id);
}

// Null when the sizes make no sense, so that nobody knows where the next brush begins, or when the record
// ends within the brush.
std::unique_ptr<Pad_Brush> read_brush(Data_Stream& record) {
    const Size size{record.read_int(), record.read_int()};
    if (!can_be_brush(size)) {
        return nullptr;
    }
    const std::optional<Tile> picture = read_sized_tile(record, size);
    const std::optional<Tile> mask = picture ? read_sized_tile(record, size) : std::nullopt;
    if (!mask) {
        return nullptr;
    }
    auto brush = std::make_unique<Pad_Brush>(*picture, *mask);
    brush->pair = record.read_pair();
    const std::optional<Tile> outline = read_sized_tile(record, brush->outline.size());
    if (!outline) {
        return nullptr;
    }
    brush->outline.copy_from(*outline);
    const auto [x, y] = record.read_pair();
    brush->position = {x, y};
    if (record.is_at_end()) {
        return nullptr;
    }
    brush->id = checked_identifier(record.read_int());
    return brush;
}

} // namespace

void Brush_Pad::load(Data_Stream& record) {
    temporary_.reset();
    brushes_.clear();
    read_tile(record, board_);
    std::ranges::generate(used_, [&record] { return record.read_bool(); });
    read_brushes(record);
    changed_ = false;
    choose(nullptr);
}

void Brush_Pad::read_brushes(Data_Stream& record) {
    constexpr auto most_brushes = static_cast<int>(identifier_count) - 1;
    const int announced = std::min(record.read_int(), most_brushes);
    for (int i = 0; i < announced && !record.is_at_end(); ++i) {
        std::unique_ptr<Pad_Brush> brush = read_brush(record);
        if (!brush) {
            return;
        }
        if (is_on_board(*brush)) {
            brushes_.push_back(std::move(brush));
        }
    }
}

void Brush_Pad::save(Data_Stream& record) const {
    write_tile(record, board_);
    for (const bool is_used : used_) {
        record.write_bool(is_used);
    }
    record.write_int(static_cast<std::int32_t>(brushes_.size()));
    for (const auto& brush : brushes_) {
        write_brush(record, *brush);
    }
}

} // namespace quadrelle
