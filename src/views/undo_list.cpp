#include "views/undo_list.h"

#include "color/standard_colors.h"
#include "commands/command_table.h"
#include "panes/command_icons.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "ui/control.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"
#include "ui/shown_tile.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

namespace {

constexpr Size row_size{300, 28};
constexpr int row_step = 30;
constexpr int room_around_rows = 7;
constexpr int room_above_rows = 4;
constexpr int thumbnail_inset = 2;
constexpr int thumbnail_edge = row_size.height - 2 * thumbnail_inset;
constexpr int label_offset = thumbnail_edge + 12;
constexpr int name_offset = 32; // behind an icon
constexpr int margin = 8;
constexpr int text_drop = 3;

// Nothing was done to what there was at the start, whatever it is labelled as.
std::string_view name_of(const Undo_History& history, std::size_t entry) {
    const Command kind = history.entries()[entry].kind;
    if (kind == Command::none) {
        return "-empty-";
    }
    return entry == 0 && history.forgotten() == 0 ? "At the start" : row_of(kind).name;
}

// What a tool did has its icon too.
void draw_label(Command kind, std::string_view name, Point position) {
    if (kind != Command::none && tool_of(kind) != Tool::none) {
        screen->draw_sprite(icon_of(kind), position);
    }
    screen->draw_text(Font::pane, {position.x + name_offset, position.y + text_drop}, name);
}

void draw_tile_number(int tile, const Rectangle& row) {
    const std::string text = "Tile " + std::to_string(tile);
    const int width = screen->text_width(Font::pane, text);
    screen->draw_text(Font::pane, {row.right() - margin - width, row.y + thumbnail_inset + text_drop}, text);
}

void draw_row(const Undo_History& history, std::size_t index, Shown_Tile& thumbnail, const Rectangle& area) {
    const Undo_Entry& entry = history.entries()[index];
    const bool is_current = static_cast<int>(index) == history.position();
    screen->draw_box(area,
                     standard_color(is_current ? Standard_Color::list_active : Standard_Color::list_passive));
    const int y = area.y + thumbnail_inset;
    thumbnail.draw(entry.snapshot->tile, {area.x + thumbnail_inset, y, thumbnail_edge, thumbnail_edge});
    draw_label(entry.kind, name_of(history, index), {area.x + label_offset, y});
    draw_tile_number(entry.tile_index, area);
    draw_answer(area);
}

// The newest entry is on top.
Rectangle row_area(const Dialog_Frame& frame, std::size_t entry, std::size_t count) {
    const int row = static_cast<int>(count - 1 - entry);
    return {frame.area().x, frame.area().y + dialog_title_height + room_above_rows + row * row_step,
            row_size.width, row_size.height};
}

// Each entry keeps its thumbnail.
void draw_list(const Undo_History& history, std::span<Shown_Tile> thumbnails, const Dialog_Frame& frame) {
    frame.draw();
    for (std::size_t entry = 0; entry < thumbnails.size(); ++entry) {
        draw_row(history, entry, thumbnails[entry], row_area(frame, entry, thumbnails.size()));
    }
}

std::optional<std::size_t> entry_at(const Dialog_Frame& frame, std::size_t count, Point point) {
    for (std::size_t entry = 0; entry < count; ++entry) {
        if (row_area(frame, entry, count).contains(point)) {
            return entry;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::size_t> show_undo_list(const Undo_History& history) {
    Dialog_Frame frame("Undo history");
    const int count = static_cast<int>(history.entries().size());
    frame.set_size({row_size.width, count * row_step + room_around_rows});
    std::vector<Shown_Tile> thumbnails(history.entries().size());
    std::optional<std::size_t> clicked;
    run_dialog({"dialog \"Undo history\"", [&] { draw_list(history, thumbnails, frame); },
                [&](const Input_Event& event) {
                    const bool is_press = event.kind == Input_Kind::button_press;
                    if (is_press && event.pointer.button == Mouse_Button::left) {
                        clicked = entry_at(frame, thumbnails.size(), event.pointer.point());
                    }
                    return is_press || event.kind == Input_Kind::key_press ? Loop_Step::end
                                                                           : Loop_Step::go_on;
                },
                [] { return Loop_Step::end; }});
    return clicked;
}

} // namespace quadrelle
