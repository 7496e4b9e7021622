#include "views/tile_array.h"

#include "base/wheel_steps.h"
#include "screen/events.h"
#include "tileset/tileset.h"
#include "ui/modal_dialog.h"
#include "views/tile_grid.h"

#include <string>

namespace quadrelle {

namespace {

class Tile_Array {
public:
    explicit Tile_Array(const Tileset& tileset) : tileset_(tileset), grid_("Tile array", tileset) {
        grid_.show_page_of(tileset.current_index());
    }

    std::optional<int> run() {
        run_dialog({"tile array", [this] { draw(); },
                    [this](const Input_Event& event) { return handle(event); },
                    [] { return Loop_Step::end; }});
        return clicked_;
    }

private:
    void draw();
    [[nodiscard]] std::string text() const;
    Loop_Step handle(const Input_Event& event);
    Loop_Step handle_key(const Input_Event& event);
    Loop_Step press(const Pointer_State& pointer);
    Loop_Step turn_pages(int pages);

    const Tileset& tileset_;
    Tile_Grid grid_;
    Point pointer_{-1, -1};
    std::optional<int> clicked_;
    Wheel_Steps wheel_;
};

void Tile_Array::draw() {
    grid_.draw(text());
    const int cells = grid_.columns() * grid_.rows();
    const int current = tileset_.current_index() - grid_.page() * cells;
    if (tileset_.has_tiles() && current >= 0) {
        grid_.draw_marker(Sprite::first_big_marker, current % grid_.columns(), current / grid_.columns());
    }
}

std::string Tile_Array::text() const {
    const int hovered = grid_.tile_at(pointer_);
    std::string text =
        "Click: Select tile - Tab: Close\rTile: " + (hovered < 0 ? "?" : std::to_string(hovered)) +
        "  (current: " + std::to_string(tileset_.current_index()) +
        ", tiles: " + std::to_string(tileset_.count()) + ")";
    if (grid_.page_count() > 1) {
        text += "\rPage " + std::to_string(grid_.page() + 1) + " of " + std::to_string(grid_.page_count()) +
                " - wheel, PageUp, PageDown: Turn the page";
    }
    return text;
}

Loop_Step Tile_Array::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::key_press: return handle_key(event);
    case Input_Kind::pointer_motion: pointer_ = event.pointer.point(); return Loop_Step::go_on;
    case Input_Kind::button_press: return press(event.pointer);
    case Input_Kind::wheel: return turn_pages(-wheel_.take(event.moved.y));
    default: return Loop_Step::go_on;
    }
}

Loop_Step Tile_Array::handle_key(const Input_Event& event) {
    switch (event.chord.key) {
    case key::page_up: return turn_pages(-1);
    case key::page_down: return turn_pages(1);
    case key::tab: return Loop_Step::end;
    default: return Loop_Step::go_on;
    }
}

Loop_Step Tile_Array::turn_pages(int pages) {
    if (pages != 0) {
        grid_.set_page(grid_.page() + pages);
    }
    return Loop_Step::go_on;
}

Loop_Step Tile_Array::press(const Pointer_State& pointer) {
    if (pointer.button == Mouse_Button::none) {
        return Loop_Step::go_on;
    }
    const int tile = grid_.tile_at(pointer.point());
    if (tile >= 0) {
        clicked_ = tile;
    }
    return Loop_Step::end;
}

} // namespace

std::optional<int> show_tile_array(const Tileset& tileset) {
    return Tile_Array(tileset).run();
}

} // namespace quadrelle
