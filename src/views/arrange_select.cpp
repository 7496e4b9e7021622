#include "views/arrange_select.h"

#include "tileset/document.h"
#include "ui/modal_dialog.h"

#include <utility>

namespace quadrelle {

namespace {

constexpr const char* title = "Arrange/Select";

} // namespace

Arrangement::Arrangement(Tileset_Document& document)
    : document_(document), tileset_(document.tileset()), grid_(title, tileset_) {}

Arrangement::Arrangement(Tileset_Document& document, Size cells, Size cell)
    : document_(document), tileset_(document.tileset()), grid_(title, tileset_, cells, cell) {}

bool Arrangement::run(const std::function<void()>& before_change, const std::function<void()>& swapped) {
    before_change_ = before_change;
    swapped_ = swapped;
    start_ = tileset_.current_index();
    primary_ = start_;
    secondary_ = 0;
    hovered_ = -1;
    has_swapped_ = false;
    run_dialog({title, [this] { draw(); }, [this](const Input_Event& event) { return handle(event); },
                [] { return Loop_Step::end; }});
    return has_swapped_;
}

void Arrangement::draw() {
    grid_.draw(text());
    if (tileset_.has_tiles()) {
        draw_marker(Sprite::first_big_marker, primary_);
        draw_marker(Sprite::second_big_marker, secondary_);
    }
}

// The row deliberately comes from the number of rows, which is that of the columns in the grid of the
// command.
void Arrangement::draw_marker(Sprite marker, int tile) const {
    grid_.draw_marker(marker, tile % grid_.columns(), tile / grid_.rows());
}

std::string Arrangement::text() const {
    return "Tab: Swap tiles - Space: Select current tile\r"
           "Tile: " +
           (hovered_ < 0 ? "?" : std::to_string(hovered_)) + "  (primary: " + std::to_string(primary_) +
           ", secondary: " + std::to_string(secondary_) +
           ")    \r"
           "Note: Swapping tiles clears undo history.";
}

Loop_Step Arrangement::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::key_press: return handle_key(event);
    case Input_Kind::pointer_motion: hovered_ = grid_.tile_at(event.pointer.point()); return Loop_Step::go_on;
    case Input_Kind::button_press: return press(event);
    default: return Loop_Step::go_on;
    }
}

// A key that is held down acts once: the tiles do not flicker.
Loop_Step Arrangement::handle_key(const Input_Event& event) {
    if (event.is_repeat) {
        return Loop_Step::go_on;
    }
    switch (event.chord.key) {
    case key::space: select_primary(); return Loop_Step::end;
    case key::tab: swap(); return Loop_Step::go_on;
    default: return Loop_Step::go_on;
    }
}

void Arrangement::select_primary() {
    if (primary_ != start_) {
        before_change_();
        tileset_.select(primary_);
    }
}

void Arrangement::swap() {
    if (primary_ == secondary_) {
        return;
    }
    before_change_();
    if (document_.swap_tiles(primary_, secondary_)) {
        std::swap(primary_, secondary_);
        has_swapped_ = true;
        swapped_();
    }
}

// The one place where the middle button acts, and the right one does not.
Loop_Step Arrangement::press(const Input_Event& event) {
    const Point position = event.pointer.point();
    hovered_ = grid_.tile_at(position);
    if (hovered_ < 0) {
        return grid_.is_on_title(position) ? Loop_Step::end : Loop_Step::go_on;
    }
    if (event.button_number == left_button_number) {
        primary_ = hovered_;
    } else if (event.button_number == middle_button_number) {
        secondary_ = hovered_;
    }
    return Loop_Step::go_on;
}

} // namespace quadrelle
