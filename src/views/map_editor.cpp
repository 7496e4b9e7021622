#include "views/map_editor.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "tileset/document.h"
#include "ui/modal_dialog.h"
#include "ui/wrapped_text.h"
#include "views/map_layout.h"

#include <algorithm>
#include <iterator>

namespace quadrelle {

namespace {

using map_layout::view;

constexpr std::string_view map_help =
    "Left: places what is chosen, with Shift in a rectangle. Right: picks the tile there, a drag takes all "
    "of a "
    "rectangle. Wheel: zooms. Ctrl and right: moves the map. Double click: goes to that tile.";
constexpr std::string_view list_help = "A click chooses the tile, a drag several that are placed as a whole. "
                                       "Ctrl and click: one more or one less. "
                                       "Right: one more, or more often at random. Wheel: scrolls.";

} // namespace

Map_Editor::Map_Editor(Tileset_Document& document, const Map_Editor_Links& links)
    : document_(document), tileset_(document.tileset()), map_(*document.map()), desk_(document.map_desk()),
      links_(links), pane_(below_title(map_layout::map), "Map editor"), list_(tileset_),
      view_(map_, tileset_) {
    if (!desk_.camera) {
        desk_.camera.emplace(Size{view.width, view.height}, tileset_.tile_size());
        camera().centre(map_.map().size());
    }
    list_.scroll_to(desk_.first_row);
    remove_gone(desk_.stamp, map_.ids());
    if (desk_.stamp.is_empty()) {
        choose(tileset_.current_index());
    }
}

std::optional<Map_Visit> Map_Editor::run() {
    run_dialog({"map editor", [this] { draw(); }, [this](const Input_Event& event) { return handle(event); },
                [] { return Loop_Step::go_on; }, Dialog_Keys::enter});
    desk_.first_row = list_.first_row();
    return visit_;
}

Map_Pattern Map_Editor::pattern(Map_Point anchor) const {
    return {desk_.stamp, desk_.use, anchor, desk_.seed};
}

Map_Tool Map_Editor::tool() const {
    return held_modifiers().shift ? Map_Tool::rectangle : desk_.tool;
}

// It is the same as long as the pointer stays in it, and so is looked for when it comes to another one.
const std::vector<Map_Run>& Map_Editor::region() {
    const auto has_pointer = [this](const Map_Run& run) {
        return run.first.y == position_.y && position_.x >= run.first.x &&
               position_.x < run.first.x + run.length;
    };
    if (region_version_ != map_.version() || std::ranges::none_of(region_, has_pointer)) {
        region_ = filled_region(map_.map(), position_);
        region_version_ = map_.version();
    }
    return region_;
}

// What a press would place.
Map_Overlay Map_Editor::overlay() {
    Map_Overlay overlay;
    if (!is_over_map() || is_placing_ || taken_) {
        return overlay;
    }
    overlay.pattern.emplace(desk_.stamp, desk_.use, position_, desk_.seed);
    const Rectangle seen = camera().seen_cells(map_.map().size());
    if (tool() == Map_Tool::fill) {
        std::ranges::copy_if(region(), std::back_inserter(overlay.runs), [&seen](const Map_Run& run) {
            return run.first.y >= seen.y && run.first.y < seen.bottom();
        });
        return overlay;
    }
    const Rectangle reach = intersection(reach_of_press(), seen);
    for (int y = reach.y; y < reach.bottom() && reach.width > 0; ++y) {
        overlay.runs.push_back({{reach.x, y}, reach.width});
    }
    return overlay;
}

Rectangle Map_Editor::reach_of_press() const {
    return tool() == Map_Tool::pen ? pattern(position_).reach(position_)
                                   : Rectangle{position_.x, position_.y, 1, 1};
}

void Map_Editor::draw() {
    screen->fill_rect({0, 0, screen->size().width, screen->size().height},
                      standard_color(Standard_Color::frame));
    buttons_.draw([this](Map_Action action) { return state_of(action); });
    pane_.draw_around(view);
    view_.draw(camera(), desk_.shows_grid ? Map_Grid::shown : Map_Grid::hidden, overlay());
    draw_outlines();
    const bool shows_uses = desk_.shows_uses && !is_placing_;
    list_.draw(
        [&](int tile) {
            return Listed_Tile{weight_of(desk_.stamp, map_.ids().known_id_of(tile)),
                               shows_uses ? std::optional(map_.uses_of(tile)) : std::nullopt};
        },
        info());
    draw_hint();
}

void Map_Editor::draw_outlines() const {
    const auto draw = [this](const Rectangle& cells, Standard_Color color) {
        const Rectangle area = camera().area_of(cells);
        const Rectangle seen =
            intersection(view, {view.x + area.x, view.y + area.y, area.width, area.height});
        if (!seen.is_empty()) {
            screen->draw_outline(seen, standard_color(color));
        }
    };
    if (taken_) {
        draw(*taken_, Standard_Color::white);
    } else if (is_over_map() && !is_placing_) {
        draw(reach_of_press(), Standard_Color::highlight);
    }
}

std::string Map_Editor::info() const {
    const int listed = list_.tile_at(pointer_);
    const int tile = listed >= 0 ? listed : map_.indexed(map_.map().at(position_)).tile();
    std::string text = "Pos: " + std::to_string(position_.x) + "," + std::to_string(position_.y) +
                       "  \rTile: " + std::to_string(tile);
    // While cells are placed they are not counted at each of them.
    if (tile >= 0 && tile < tileset_.count() && !is_placing_) {
        text += "\rUsed: " + std::to_string(map_.uses_of(tile));
    }
    return text;
}

void Map_Editor::draw_hint() const {
    std::string text(is_over_map() ? map_help : list_help);
    if (const std::optional<Map_Action> action = buttons_.at(pointer_)) {
        const Map_Action_Row& row = row_of(*action);
        text = std::string(row.label) + (row.key.empty() ? "" : " (" + std::string(row.key) + ")") + ": " +
               std::string(row.text);
    }
    text = report_.empty() ? text : report_;
    const std::vector<std::string> lines = first_lines(
        Font::pane, wrapped_text(Font::pane, text, map_layout::hint.width), 2, map_layout::hint.width);
    screen->draw_text(Font::pane, corner_of(map_layout::hint), joined_lines(lines));
}

Map_Button_State Map_Editor::state_of(Map_Action action) const {
    const auto chosen_if = [](bool is_chosen) {
        return is_chosen ? Map_Button_State::chosen : Map_Button_State::plain;
    };
    const auto useless_unless = [](bool is_useful) {
        return is_useful ? Map_Button_State::plain : Map_Button_State::useless;
    };
    switch (action) {
    case Map_Action::pen: return chosen_if(desk_.tool == Map_Tool::pen);
    case Map_Action::rectangle: return chosen_if(desk_.tool == Map_Tool::rectangle);
    case Map_Action::fill: return chosen_if(desk_.tool == Map_Tool::fill);
    case Map_Action::erase: return chosen_if(desk_.use == Stamp_Use::erase);
    case Map_Action::random: return chosen_if(desk_.use == Stamp_Use::at_random);
    case Map_Action::grid: return chosen_if(desk_.shows_grid);
    case Map_Action::uses: return chosen_if(desk_.shows_uses);
    case Map_Action::turn_right:
    case Map_Action::turn_left: return useless_unless(tileset_.tile_width() == tileset_.tile_height());
    case Map_Action::undo: return useless_unless(map_.history().can_undo());
    case Map_Action::redo: return useless_unless(map_.history().can_redo());
    default: return Map_Button_State::plain;
    }
}

bool Map_Editor::is_over_map() const {
    return view.contains(pointer_);
}

Map_Point Map_Editor::cell_at(Point point) const {
    return camera().cell_at({point.x - view.x, point.y - view.y});
}

} // namespace quadrelle
