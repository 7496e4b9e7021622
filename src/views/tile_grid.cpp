#include "views/tile_grid.h"

#include "base/fitting.h"
#include "color/translucency.h"
#include "pixels/thumbnail.h"
#include "screen/opaque_texture.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "tileset/tileset.h"
#include "ui/control.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

constexpr Point grid_position{16, 16};
constexpr Size default_cells{16, 16};
constexpr Size default_cell{32, 32};

constexpr int panel_margin = 8;
constexpr int text_gap = 6;
constexpr Color window_shade{0, 0, 0, 120};
constexpr int text_lines = 3;
constexpr int narrowest_text = 360;

Rectangle text_area_below(const Rectangle& grid) {
    return {grid.x, grid.bottom() + text_gap, std::max(grid.width, narrowest_text),
            text_lines * line_height(Font::pane) + 2 * pane_border};
}

// Each pixel of the area shows the nearest one of the tile, over a checkerboard.
void paint_tile(const Tile& tile, const Rectangle& area, const Pixel_Rows& target) {
    for (int y = 0; y < area.height; ++y) {
        Color* const row = target.row(area.y + y) + area.x;
        for (int x = 0; x < area.width; ++x) {
            const Color pixel =
                tile.get_pixel(x * tile.width() / area.width, y * tile.height() / area.height);
            row[x] = blended_over(pixel, checkerboard_color(x, y));
        }
    }
}

} // namespace

Tile_Grid::Tile_Grid(std::string_view title, const Tileset& tileset)
    : Tile_Grid(title, tileset, default_cells, default_cell) {}

Tile_Grid::Tile_Grid(std::string_view title, const Tileset& tileset, Size cells, Size cell)
    : tileset_(tileset), cells_(cells),
      cell_(cell), area_{grid_position.x, grid_position.y, cells.width * cell.width,
                         cells.height * cell.height},
      text_(text_area_below(area_), title),
      picture_(std::make_unique<Opaque_Texture>(Size{area_.width, area_.height})) {}

Tile_Grid::~Tile_Grid() = default;

int Tile_Grid::tile_at(Point position) const {
    if (!area_.contains(position)) {
        return -1;
    }
    const int column = (position.x - area_.x) / cell_.width;
    const int row = (position.y - area_.y) / cell_.height;
    const int tile = page_ * page_size() + column + cells_.width * row;
    return tile < tileset_.count() ? tile : -1;
}

bool Tile_Grid::is_on_title(Point position) const {
    return text_.title_area().contains(position);
}

int Tile_Grid::page_count() const {
    return std::max((tileset_.count() + page_size() - 1) / page_size(), 1);
}

void Tile_Grid::set_page(int page) {
    page_ = std::clamp(page, 0, page_count() - 1);
}

void Tile_Grid::show_page_of(int tile) {
    set_page(tile / page_size());
}

std::vector<std::uint64_t> Tile_Grid::versions_on_page() const {
    const int first = page_ * page_size();
    const int end = std::min(tileset_.count(), first + page_size());
    std::vector<std::uint64_t> versions;
    for (int i = first; i < end; ++i) {
        versions.push_back(tileset_.tile_at(i).version());
    }
    return versions;
}

void Tile_Grid::update_picture() {
    std::vector<std::uint64_t> versions = versions_on_page();
    if (versions != shown_versions_) {
        picture_->update([this](const Pixel_Rows& target) { paint_cells(target); });
        shown_versions_ = std::move(versions);
    }
}

void Tile_Grid::paint_cells(const Pixel_Rows& target) const {
    for (int y = 0; y < target.size.height; ++y) {
        std::fill_n(target.row(y), target.size.width, standard_color(Standard_Color::dark_frame));
    }
    const Size shown = fitted(tileset_.tile_size(), cell_);
    const int first = page_ * page_size();
    const int count = std::min(tileset_.count() - first, page_size());
    for (int i = 0; i < count; ++i) {
        const Rectangle cell{i % cells_.width * cell_.width, i / cells_.width * cell_.height, cell_.width,
                             cell_.height};
        paint_tile(tileset_.tile_at(first + i), centred(shown, cell), target);
        paint_edge({cell.right() - 1, cell.y, 1, cell.height}, target);
        paint_edge({cell.x, cell.bottom() - 1, cell.width - 1, 1}, target);
    }
}

void Tile_Grid::draw(std::string_view text) {
    update_picture();
    // What else is in the window steps back: the panel covers parts of it.
    screen->fill_rect({0, 0, screen->size().width, screen->size().height}, window_shade);
    const Rectangle panel{area_.x, area_.y, text_.area.width, text_.area.bottom() - area_.y};
    screen->draw_panel(panel.inset(-panel_margin), standard_color(Standard_Color::frame));
    screen->draw_outline(area_.inset(-1), standard_color(Standard_Color::black));
    picture_->draw_at({area_.x, area_.y});
    draw_answers();
    text_.draw();
    const Rectangle client = text_.client_area();
    screen->draw_text(Font::pane, {client.x, client.y}, text);
}

void Tile_Grid::draw_answers() const {
    const int shown = std::min(tileset_.count() - page_ * page_size(), page_size());
    for (int i = 0; i < shown; ++i) {
        draw_outlined_answer({area_.x + i % cells_.width * cell_.width,
                              area_.y + i / cells_.width * cell_.height, cell_.width, cell_.height});
    }
}

void Tile_Grid::draw_marker(Sprite marker, int column, int row) const {
    const Point corner{area_.x + column * cell_.width, area_.y + row * cell_.height};
    if (area_.contains(corner)) {
        screen->draw_sprite(marker, corner);
    }
}

} // namespace quadrelle
