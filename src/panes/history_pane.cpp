#include "panes/history_pane.h"

#include "screen/screen.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr int thumbnail_edge = 24;
constexpr int thumbnail_step = 26;

const Tile& picture_of(const Undo_Entry& entry) {
    return entry.work.selection ? entry.work.selection->mask() : entry.snapshot->tile;
}

} // namespace

History_Pane::History_Pane(Point position)
    : Pane(below_title({position.x, position.y, window_layout::history.width, window_layout::history.height}),
           "History") {}

void History_Pane::draw(const Undo_History& history) {
    Pane::draw();
    if (!history.entries().empty()) {
        screen->draw_sprite(Sprite::history_list, {client_area().x - 1, client_area().y - 1});
        draw_entries(history);
    } else {
        draw_frame();
    }
}

void History_Pane::draw_entries(const Undo_History& history) {
    const int count = static_cast<int>(history.entries().size());
    Point cell{client_area().x, client_area().y};
    for (int i = std::max(count - shown_entries, 0); i < count; ++i) {
        // While newer entries come, each one keeps its texture.
        const auto index = static_cast<std::size_t>(i);
        Shown_Tile& thumbnail = thumbnails_.at((history.forgotten() + index) % shown_entries);
        thumbnail.draw(picture_of(history.entries()[index]),
                       {cell.x, cell.y, thumbnail_edge, thumbnail_edge});
        if (i == history.position()) {
            screen->draw_sprite(Sprite::tile_indicator, cell);
        }
        cell.x += thumbnail_step;
    }
}

} // namespace quadrelle
