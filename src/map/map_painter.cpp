#include "map/map_painter.h"

#include "color/standard_colors.h"
#include "color/translucency.h"
#include "map/checker_blend.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace quadrelle {

namespace {

constexpr Color surround = standard_color(Standard_Color::dark_frame);
constexpr int checker_edge = 6;
constexpr Color grid_on_light{0, 0, 0, 90};
constexpr Color grid_on_dark{255, 255, 255, 60};
// To go through cells one by one takes longer than through their pixels where there are few in each.
constexpr int narrow_cell = 4;
// In smaller cells lines would hide more than they show.
constexpr int smallest_cell_with_grid = 8;

bool has_room_for_grid(const Map_Camera& camera) {
    const Rectangle cell = camera.area_of({0, 0, 1, 1});
    return std::min(cell.width, cell.height) >= smallest_cell_with_grid;
}

// The line is seen on every tile.
void draw_line_over(Color& pixel) {
    constexpr int darkest_light = 3 * 64;
    const bool is_dark = pixel.r + pixel.g + pixel.b < darkest_light;
    pixel = blended_over(is_dark ? grid_on_dark : grid_on_light, pixel);
}

} // namespace

void Map_Painter::find_stretches(const Map_Picture& picture, const Rectangle& part) {
    const Map_Camera& camera = picture.camera;
    stretches_.clear();
    tile_x_.assign(static_cast<std::size_t>(part.width), 0);
    column_.assign(static_cast<std::size_t>(part.width), 0);
    words_.resize(static_cast<std::size_t>(part.width));
    for (int kind = 0; kind < 2; ++kind) {
        std::vector<std::uint32_t>& greys = board_.at(static_cast<std::size_t>(kind));
        greys.clear();
        for (int x = part.x; x < part.right(); ++x) {
            greys.push_back(board_grey(x, kind * checker_edge));
        }
    }
    for (int i = 0; i < picture.area.width; ++i) {
        const int column = picture.area.x + i;
        const Rectangle cell = camera.area_of({column, picture.area.y, 1, 1});
        const int begin = std::max(cell.x - part.x, 0);
        const int end = std::min(cell.right() - part.x, part.width);
        if (begin >= end) {
            continue;
        }
        stretches_.push_back({i, begin, end, cell.x >= part.x});
        for (int x = begin; x < end; ++x) {
            column_[static_cast<std::size_t>(x)] = i;
            tile_x_[static_cast<std::size_t>(x)] =
                camera.pixel_at({part.x + x, 0}).x - column * camera.tile().width;
        }
    }
}

void Map_Painter::paint(const Map_Picture& picture, const Rectangle& part, const Pixel_Rows& target) {
    find_stretches(picture, part);
    const Cell_Pixels pixels(picture.tiles);
    const bool has_grid = picture.grid == Map_Grid::shown && has_room_for_grid(picture.camera);
    const int begin = stretches_.empty() ? part.width : stretches_.front().begin;
    const int end = stretches_.empty() ? part.width : stretches_.back().end;
    Row_Look before = look_of(picture, part.y - 1);
    for (int y = 0; y < part.height; ++y) {
        Color* const row = target.row(y);
        Row_Look look = look_of(picture, part.y + y);
        look.is_edge = has_grid && look.cell_row != before.cell_row;
        if (y > 0 && look == before) {
            std::copy_n(target.row(y - 1), part.width, row);
            continue;
        }
        before = look;
        const bool is_inside =
            look.cell_row >= picture.area.y && look.cell_row < picture.area.bottom() && !stretches_.empty();
        std::fill_n(row, is_inside ? begin : part.width, surround);
        if (is_inside) {
            std::fill(row + end, row + part.width, surround);
            paint_row(picture.row(look.cell_row), Cell_Pixels::Lines(pixels, look.tile_y), board_[look.board],
                      row);
        }
        if (is_inside && has_grid) {
            paint_grid(look.is_edge, row);
        }
    }
}

// Of a row of the view.
Map_Painter::Row_Look Map_Painter::look_of(const Map_Picture& picture, int y) {
    const Map_Camera& camera = picture.camera;
    const int cell_row = camera.cell_at({0, y}).y;
    return {cell_row, camera.pixel_at({0, y}).y - cell_row * camera.tile().height,
            static_cast<std::size_t>(std::max(y, 0) / checker_edge % 2), false};
}

void Map_Painter::paint_grid(bool is_cell_edge, Color* row) const {
    for (const Stretch& stretch : stretches_) {
        const int end = is_cell_edge ? stretch.end : stretch.begin + (stretch.has_edge ? 1 : 0);
        std::for_each(row + stretch.begin, row + end, draw_line_over);
    }
}

void Map_Painter::paint_row(const Map_Cell* cells, const Cell_Pixels::Lines& lines,
                            std::span<const std::uint32_t> board, Color* row) {
    const int* const tile_x = tile_x_.data();
    std::uint32_t* const words = words_.data();
    const int begin = stretches_.front().begin;
    const int end = stretches_.back().end;
    const auto take_pixel = [=](int x, Cell_Pixels::Line line) {
        words[x] = std::bit_cast<std::uint32_t>(line.first[tile_x[x] * line.step]);
    };
    if (end - begin < narrow_cell * static_cast<int>(stretches_.size())) {
        const int* const column = column_.data();
        for (int x = begin; x < end; ++x) {
            take_pixel(x, lines.of(cells[column[x]]));
        }
    } else {
        for (const Stretch& stretch : stretches_) {
            const Cell_Pixels::Line line = lines.of(cells[stretch.column]);
            for (int x = stretch.begin; x < stretch.end; ++x) {
                take_pixel(x, line);
            }
        }
    }
    const auto first = static_cast<std::size_t>(begin);
    const auto count = static_cast<std::size_t>(end - begin);
    lay_over_board(std::span(words_).subspan(first, count), board.subspan(first, count));
    std::memcpy(static_cast<void*>(row + begin), words + begin, count * sizeof(Color));
}

Map_Rows::Map_Rows(const Tile_Map& map, Tile_Pictures tiles, Size tile)
    : map_(map), tile_(tile), pixels_(tiles) {}

void Map_Rows::write(int y, std::span<Color> row) const {
    const Cell_Pixels::Lines lines(pixels_, y % tile_.height);
    Color* pixel = row.data();
    for (const Map_Cell cell : map_.row(y / tile_.height)) {
        const Cell_Pixels::Line line = lines.of(cell);
        for (int x = 0; x < tile_.width; ++x) {
            *pixel++ = line.first[x * line.step];
        }
    }
}

Tile map_picture(const Tile_Map& map, Tile_Pictures tiles, Size tile) {
    const Map_Rows rows(map, tiles, tile);
    Tile picture(rows.size().width, rows.size().height);
    picture.change_pixels([&](std::span<Color> pixels) {
        const auto width = static_cast<std::size_t>(picture.width());
        for (int y = 0; y < picture.height(); ++y) {
            rows.write(y, pixels.subspan(static_cast<std::size_t>(y) * width, width));
        }
    });
    return picture;
}

} // namespace quadrelle
