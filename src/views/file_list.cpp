#include "views/file_list.h"

#include "base/fitting.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "tileset/tileset_file.h"
#include "ui/checkerboard.h"
#include "ui/control.h"
#include "ui/shown_text.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace quadrelle {

namespace {

constexpr Font font = Font::regular;
constexpr int row_height = 24;
constexpr int border = 1;
constexpr int icon_offset = 8;
constexpr int picture_edge = 20;
constexpr int text_offset = 36;
constexpr int text_drop = 1;

// Lit from above, with a dark outline, as the icons are.
void draw_folder_icon(Point position) {
    const Color black = standard_color(Standard_Color::black);
    const Color color = standard_color(Standard_Color::orange);
    Color light = color;
    light.brighten(50);
    const Rectangle tab{position.x, position.y + 4, 8, 4};
    const Rectangle body{position.x, position.y + 6, 18, 13};
    for (const Rectangle& part : {tab, body}) {
        screen->fill_rect(part, black);
    }
    for (const Rectangle& part : {tab, body}) {
        screen->fill_rect(part.inset(1), color);
        screen->fill_rect({part.x + 1, part.y + 1, part.width - 2, 1}, light);
    }
}

void draw_page_icon(Point position) {
    const Rectangle page{position.x + 2, position.y + 4, 13, 16};
    screen->fill_rect(page, standard_color(Standard_Color::black));
    screen->fill_rect(page.inset(1), standard_color(Standard_Color::light_grey));
}

// Beside the rows, inside of the border.
Rectangle bar_in(const Rectangle& area) {
    const Rectangle inner = area.inset(border);
    return {inner.right() - Scroll_Bar::width, inner.y, Scroll_Bar::width, inner.height};
}

} // namespace

File_List::File_List(const Rectangle& area, const Folder_Listing& listing)
    : area_(area), listing_(&listing), bar_(bar_in(area), (area.height - 2 * border) / row_height) {}

Rectangle File_List::row_area(std::size_t row) const {
    const int place = static_cast<int>(row) - bar_.first();
    return {area_.x + border, area_.y + border + place * row_height,
            area_.width - 2 * border - (bar_.is_needed() ? Scroll_Bar::width : 0), row_height};
}

void File_List::reset() {
    selected_.reset();
    clicked_.reset();
    bar_.set_count(count());
    first_tiles_.clear();
}

void File_List::select(std::size_t row) {
    selected_ = row;
    clicked_.reset();
    bar_.show_row(static_cast<int>(row));
}

void File_List::move_selection(int rows) {
    if (count() == 0) {
        return;
    }
    // The first step selects the first row.
    const std::int64_t from = selected_ ? static_cast<std::int64_t>(*selected_) : -1;
    select(static_cast<std::size_t>(std::clamp<std::int64_t>(from + rows, 0, count() - 1)));
}

File_List::Press File_List::press(Point point) {
    const int row = bar_.first() + (point.y - area_.y - border) / row_height;
    if (bar_.press(point) || !area_.inset(border).contains(point) || row >= bar_.end()) {
        return Press::nothing;
    }
    const auto pressed = static_cast<std::size_t>(row);
    if (clicked_ == pressed) {
        return Press::opens;
    }
    select(pressed);
    clicked_ = pressed;
    return Press::selects;
}

void File_List::draw(Focused focused) {
    screen->fill_rect(area_, standard_color(Standard_Color::dark_frame));
    for (int row = bar_.first(); row < bar_.end(); ++row) {
        draw_row(static_cast<std::size_t>(row), focused.row);
    }
    // Of folders with thousands of sets, only what is seen takes memory.
    std::erase_if(first_tiles_, [this](const auto& kept) {
        return std::cmp_less(kept.first, bar_.first()) || std::cmp_greater_equal(kept.first, bar_.end());
    });
    bar_.draw();
    screen->draw_outline(area_, standard_color(focused.list == Focus::yes ? Standard_Color::highlight
                                                                          : Standard_Color::frame));
}

File_List::First_Tile& File_List::first_tile(std::size_t row) {
    const auto [place, is_new] = first_tiles_.try_emplace(row);
    if (is_new) {
        place->second.tile = load_first_tile(listing_->path_of(row));
    }
    return place->second;
}

void File_List::draw_icon(std::size_t row, Point position) {
    if (listing_->rows()[row].kind != Listed_Kind::file) {
        draw_folder_icon(position);
        return;
    }
    First_Tile& first = first_tile(row);
    if (first.tile == nullptr) {
        draw_page_icon(position);
        return;
    }
    const Rectangle room{position.x - 1, position.y + (row_height - picture_edge) / 2, picture_edge,
                         picture_edge};
    const Rectangle place = centred(fitted(first.tile->size(), {room.width, room.height}), room);
    draw_checkerboard(place);
    first.shown.draw(*first.tile, place);
    screen->draw_outline(place.inset(-1), standard_color(Standard_Color::black));
}

void File_List::draw_row(std::size_t row, Focus focus) {
    const Rectangle place = row_area(row);
    const Listed_Row& listed = listing_->rows()[row];
    if (selected_ == row) {
        screen->fill_rect(place, standard_color(focus == Focus::yes ? Standard_Color::list_active
                                                                    : Standard_Color::list_passive));
    }
    draw_answer(place);
    draw_icon(row, {place.x + icon_offset, place.y});
    const int room = place.width - text_offset - icon_offset;
    screen->draw_text(font, {place.x + text_offset, place.y + text_drop},
                      fitted_text(font, listed.name, room, Left_Out::middle));
}

} // namespace quadrelle
