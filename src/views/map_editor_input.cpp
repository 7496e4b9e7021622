#include "map/map_strokes.h"
#include "tileset/document.h"
#include "ui/dialogs.h"
#include "ui/modal_dialog.h"
#include "views/map_editor.h"
#include "views/map_exchange.h"
#include "views/map_layout.h"
#include "views/map_questions.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

using map_layout::view;

constexpr int least_pan = 32;
constexpr Point nowhere{-1, -1};

Point in_view(Point point) {
    return {point.x - view.x, point.y - view.y};
}

} // namespace

Loop_Step Map_Editor::handle(const Input_Event& event) {
    if (event.kind == Input_Kind::key_press || event.kind == Input_Kind::wheel) {
        first_click_.reset();
    }
    switch (event.kind) {
    case Input_Kind::key_press: return handle_key(event);
    case Input_Kind::pointer_motion: gesture().follow(event.pointer.point()); return Loop_Step::go_on;
    case Input_Kind::pointer_left: pointer_ = nowhere; return Loop_Step::go_on;
    case Input_Kind::button_press: gesture().follow(event.pointer.point()); return press(event);
    case Input_Kind::wheel: turn_wheel(event); return Loop_Step::go_on;
    default: return Loop_Step::go_on;
    }
}

Map_Gesture Map_Editor::gesture() {
    return {[this](Point point) { return cell_at(point); },
            [this](Point point) {
                pointer_ = point;
                report_.clear();
                find_position();
            },
            show_backdrop};
}

Loop_Step Map_Editor::handle_key(const Input_Event& event) {
    if (pan_by_key(event.chord)) {
        find_position();
        return Loop_Step::go_on;
    }
    const std::optional<Map_Action> action = action_of_key(event);
    return action ? act(*action) : Loop_Step::go_on;
}

// The pointer may rest while the map moves below it.
void Map_Editor::find_position() {
    if (is_over_map()) {
        position_ = cell_at(pointer_);
    }
}

// By a cell at least, so that small ones go by as fast as large ones.
bool Map_Editor::pan_by_key(Key_Chord chord) {
    const Rectangle cell = camera().area_of({0, 0, 1, 1});
    const int times = chord.modifier == Modifier::shift ? 8 : 1;
    const Point step{std::max(cell.width, least_pan) * times, std::max(cell.height, least_pan) * times};
    switch (chord.key) {
    case key::left: camera().move({step.x, 0}); break;
    case key::right: camera().move({-step.x, 0}); break;
    case key::up: camera().move({0, step.y}); break;
    case key::down: camera().move({0, -step.y}); break;
    default: return false;
    }
    camera().keep_in_view(map_.map().size());
    return true;
}

void Map_Editor::zoom(int steps, Point about) {
    camera().zoom(steps, about);
    camera().keep_in_view(map_.map().size());
    find_position();
}

void Map_Editor::turn_wheel(const Input_Event& event) {
    gesture().follow(event.pointer.point());
    const int steps = wheel_.take(event.moved.y);
    if (map_layout::tiles.contains(pointer_)) {
        list_.scroll(-steps);
    } else {
        zoom(steps, in_view(pointer_));
    }
}

void Map_Editor::choose(int tile) {
    desk_.stamp = {{1, 1}, {{Map_Cell(map_.ids().id_of(tile))}}};
    list_.bring_into_view(tile);
}

void Map_Editor::note_change_if(bool is_changed, std::string_view otherwise) {
    if (is_changed) {
        links_.note_change();
    } else {
        report_ = otherwise;
    }
}

Loop_Step Map_Editor::press(const Input_Event& event) {
    if (event.pointer.button == Mouse_Button::none) {
        return Loop_Step::go_on;
    }
    const std::optional<First_Click> first_click = std::exchange(first_click_, std::nullopt);
    if (is_over_map() && event.pointer.button == Mouse_Button::left && event.clicks == 2 && first_click &&
        first_click->place == position_) {
        return visit(*first_click);
    }
    if (is_over_map()) {
        press_on_map(event);
        return Loop_Step::go_on;
    }
    if (const std::optional<Map_Action> action = buttons_.at(pointer_)) {
        return act(*action);
    }
    press_on_list(event);
    return Loop_Step::go_on;
}

void Map_Editor::press_on_list(const Input_Event& event) {
    const int tile = list_.tile_at(pointer_);
    if (tile < 0) {
        return;
    }
    const int id = map_.ids().id_of(tile);
    if (event.pointer.button == Mouse_Button::right) {
        raise_weight(desk_.stamp, id);
    } else if (held_modifiers().control) {
        add_or_remove(desk_.stamp, id);
    } else {
        choose(tile);
        drag_over_cells(gesture(), [this, tile](Map_Point) { choose_to(tile, list_.tile_at(pointer_)); });
    }
}

void Map_Editor::choose_to(int tile, int other) {
    if (other < 0) {
        return;
    }
    std::vector<int> tiles;
    desk_.stamp = {list_.rectangle_between(tile, other, tiles), {}};
    for (const int index : tiles) {
        desk_.stamp.cells.push_back({index < 0 ? Map_Cell() : Map_Cell(map_.ids().id_of(index))});
    }
}

void Map_Editor::press_on_map(const Input_Event& event) {
    if (event.pointer.button == Mouse_Button::left) {
        place(position_);
    } else if (held_modifiers().control) {
        pan();
    } else {
        take_stamp(position_);
    }
}

void Map_Editor::place(Map_Point cell) {
    const bool was_modified = document_.is_modified();
    is_placing_ = true;
    const bool is_changed = place_while_held(map_, pattern(cell), tool(), cell, gesture());
    is_placing_ = false;
    if (is_changed) {
        ++desk_.seed;
        links_.note_change();
    }
    if (position_ == cell) {
        first_click_ = {cell, is_changed, was_modified};
    }
}

// The first of the two clicks was none that was meant to place something.
Loop_Step Map_Editor::visit(const First_Click& first) {
    const Map_Point cell = first.place;
    if (first.has_placed) {
        map_.take_back();
        links_.note_taken_back(first.was_modified);
    }
    const int tile = map_.indexed(map_.map().at(cell)).tile();
    if (tile < 0 || tile >= tileset_.count()) {
        report_ = "No tile lies there to go to.";
        return Loop_Step::go_on;
    }
    desk_.place = cell;
    visit_ = Map_Visit{cell, tile};
    return Loop_Step::end;
}

// What lies in one cell is a stamp too, and a tile of the list.
void Map_Editor::take_stamp(Map_Point cell) {
    taken_ = cells_between(cell, cell);
    const bool is_done =
        drag_over_cells(gesture(), [this, cell](Map_Point other) { taken_ = cells_between(cell, other); });
    Map_Stamp stamp = stamp_of(map_.map(), *std::exchange(taken_, std::nullopt));
    if (!is_done) {
        return;
    }
    if (stamp.is_empty()) {
        report_ = "Nothing lies there to be taken. Erase (e) makes places empty.";
        return;
    }
    desk_.stamp = std::move(stamp);
    desk_.use = desk_.use == Stamp_Use::erase ? Stamp_Use::whole : desk_.use;
    list_.bring_into_view(map_.ids().index_of(first_tile(desk_.stamp)));
}

void Map_Editor::pan() {
    Point last = pointer_;
    follow_pointer("map pan", show_backdrop, [&](const Input_Event& motion) {
        const Point point = motion.pointer.point();
        camera().move({point.x - last.x, point.y - last.y});
        camera().keep_in_view(map_.map().size());
        last = point;
        pointer_ = point;
    });
}

Loop_Step Map_Editor::act(Map_Action action) {
    report_.clear();
    const Map_Point origin = map_.origin();
    switch (action) {
    case Map_Action::pen: desk_.tool = Map_Tool::pen; break;
    case Map_Action::rectangle: desk_.tool = Map_Tool::rectangle; break;
    case Map_Action::fill: desk_.tool = Map_Tool::fill; break;
    case Map_Action::erase: toggle(Stamp_Use::erase); break;
    case Map_Action::random: toggle(Stamp_Use::at_random); break;
    case Map_Action::mirror: change_stamp(Stamp_Change::mirror); break;
    case Map_Action::flip: change_stamp(Stamp_Change::flip); break;
    case Map_Action::turn_right: change_stamp(Stamp_Change::turn_right); break;
    case Map_Action::turn_left: change_stamp(Stamp_Change::turn_left); break;
    case Map_Action::undo:
        step_back_or_on(&Tileset_Document::undo_map, "There is nothing to take back.");
        break;
    case Map_Action::redo:
        step_back_or_on(&Tileset_Document::redo_map, "There is nothing to do again.");
        break;
    case Map_Action::grid: desk_.shows_grid = !desk_.shows_grid; break;
    case Map_Action::uses: desk_.shows_uses = !desk_.shows_uses; break;
    case Map_Action::zoom_out: zoom(-1, {view.width / 2, view.height / 2}); break;
    case Map_Action::zoom_in: zoom(1, {view.width / 2, view.height / 2}); break;
    case Map_Action::centre: camera().centre(map_.map().size()); break;
    case Map_Action::size: change_size(); break;
    case Map_Action::remove: return ask_to_remove();
    case Map_Action::import_map: import(); break;
    case Map_Action::export_map: report_export(); break;
    case Map_Action::save:
        report_ = links_.save();
        view_.forget();
        break;
    case Map_Action::close: return Loop_Step::end;
    case Map_Action::count: break;
    }
    follow_origin(origin);
    camera().keep_in_view(map_.map().size());
    find_position();
    return Loop_Step::go_on;
}

// A deleted tile may come back with its places.
void Map_Editor::step_back_or_on(bool (Tileset_Document::*step)(), std::string_view otherwise) {
    const int tiles = tileset_.count();
    note_change_if((document_.*step)(), otherwise);
    if (tileset_.count() > tiles) {
        view_.take_tiles(tileset_);
        report_ = "The deleted tile is back, behind all others.";
    }
    if (map_.left_empty() > 0) {
        report_ = std::to_string(map_.left_empty()) +
                  " places stay empty: their tiles were deleted too long ago, or the set is full.";
    }
}

void Map_Editor::toggle(Stamp_Use use) {
    desk_.use = desk_.use == use ? Stamp_Use::whole : use;
}

void Map_Editor::change_stamp(Stamp_Change change) {
    const bool is_turn = change == Stamp_Change::turn_right || change == Stamp_Change::turn_left;
    if (is_turn && tileset_.tile_width() != tileset_.tile_height()) {
        report_ = "Tiles that are not square cannot be turned.";
        return;
    }
    desk_.stamp = changed(desk_.stamp, change);
}

void Map_Editor::change_size() {
    if (const std::optional<Map_Sides> sides = ask_map_sides(map_.map().size())) {
        note_change_if(map_.resize(*sides), "The map has this size already.");
    }
}

// Columns and rows that come or go before the others leave what is seen where it is.
void Map_Editor::follow_origin(Map_Point before) {
    const Map_Point by{map_.origin().x - before.x, map_.origin().y - before.y};
    const Rectangle was = camera().area_of({0, 0, 1, 1});
    const Rectangle is = camera().area_of({by.x, by.y, 1, 1});
    camera().move({was.x - is.x, was.y - is.y});
    position_ = {position_.x + by.x, position_.y + by.y};
    if (desk_.place) {
        desk_.place = Map_Point{desk_.place->x + by.x, desk_.place->y + by.y};
    }
}

Loop_Step Map_Editor::ask_to_remove() {
    is_map_unwanted_ =
        dialogs->ask("Map editor", "The map goes with all its steps, and its file when the set "
                                   "is saved.\rThis cannot be undone. Take the map away?");
    return is_map_unwanted_ ? Loop_Step::end : Loop_Step::go_on;
}

void Map_Editor::import() {
    if (std::optional<Tile_Map> map = import_map(document_)) {
        note_change_if(map_.replace(*std::move(map)), "The map is the same already.");
        camera().centre(map_.map().size());
        desk_.place.reset();
    }
}

void Map_Editor::report_export() {
    if (const std::optional<std::string> path = export_map(document_)) {
        report_ = "Exported to " + *path;
    }
}

} // namespace quadrelle
