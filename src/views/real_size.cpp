#include "views/real_size.h"

#include "color/translucency.h"
#include "pixels/tile.h"
#include "screen/events.h"
#include "screen/opaque_texture.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"

#include <algorithm>
#include <string>

namespace quadrelle {

namespace {

constexpr int largest_scale = 8;
constexpr int note_margin = 8;
constexpr int note_padding = 6;

// Of no tile a clear pixel.
Color repeated_pixel(const Tile* tile, int x, int y) {
    if (tile == nullptr || tile->pixel_count() == 0) {
        return standard_color(Standard_Color::transparent);
    }
    return tile->get_pixel(x % tile->width(), y % tile->height());
}

void paint_repeated(const Tile* tile, int scale, const Pixel_Rows& target) {
    for (int y = 0; y < target.size.height; ++y) {
        Color* const row = target.row(y);
        for (int x = 0; x < target.size.width; ++x) {
            const Color pixel = repeated_pixel(tile, x / scale, y / scale);
            row[x] = blended_over(pixel, checkerboard_color(x, y));
        }
    }
}

int step_of_key(Keycode pressed) {
    switch (pressed) {
    case '+':
    case '=': // where "+" is Shift and this key
    case key::keypad_plus: return 1;
    case '-':
    case key::keypad_minus: return -1;
    default: return 0;
    }
}

// With Shift some systems turn the wheel's steps sideways.
int step_of_wheel(const Movement& moved) {
    const float amount = moved.y != 0 ? moved.y : moved.x;
    return amount > 0 ? 1 : amount < 0 ? -1 : 0;
}

class Real_Size {
public:
    explicit Real_Size(const Tile* tile) : tile_(tile), picture_(screen->size()) { compose(); }

    void run() {
        run_modal(
            {"real size", [this] { draw(); }, [this](const Input_Event& event) { return handle(event); }});
    }

private:
    void compose();
    void draw() const;
    void scale_by(int step);
    Loop_Step handle(const Input_Event& event);
    Loop_Step handle_key(const Input_Event& event);

    const Tile* tile_;
    int scale_ = 1;
    Opaque_Texture picture_;
};

// Once for each scale: to draw a small tile hundreds of thousands of times takes too long for every frame.
void Real_Size::compose() {
    picture_.update([this](const Pixel_Rows& target) { paint_repeated(tile_, scale_, target); });
}

void Real_Size::draw() const {
    picture_.draw_at({0, 0});
    const std::string note = std::to_string(scale_) + "x   + and -: Scale - any other key: Back";
    const int height = line_height(Font::pane) + note_padding;
    const Rectangle box{note_margin, screen->size().height - height - note_margin,
                        screen->text_width(Font::pane, note) + 2 * note_padding, height};
    screen->draw_panel(box, standard_color(Standard_Color::pane_background));
    screen->draw_text(Font::pane, {box.x + note_padding, box.y + note_padding / 2}, note);
    screen->present();
}

void Real_Size::scale_by(int step) {
    const int scale = std::clamp(scale_ + step, 1, largest_scale);
    if (scale != scale_) {
        scale_ = scale;
        compose();
    }
}

Loop_Step Real_Size::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::quit: return Loop_Step::end;
    case Input_Kind::key_press: return handle_key(event);
    case Input_Kind::button_press:
        return event.pointer.button == Mouse_Button::none ? Loop_Step::go_on : Loop_Step::end;
    case Input_Kind::wheel:
        if (is_shift_held()) {
            scale_by(step_of_wheel(event.moved));
        }
        return Loop_Step::go_on;
    default: return Loop_Step::go_on;
    }
}

Loop_Step Real_Size::handle_key(const Input_Event& event) {
    const int step = step_of_key(event.chord.key);
    scale_by(step);
    // Shift, which goes with the wheel, is no key by itself.
    const bool is_key = event.chord.key != key::none && !event.is_repeat;
    return step == 0 && is_key ? Loop_Step::end : Loop_Step::go_on;
}

} // namespace

void show_real_size(const Tile* tile) {
    Real_Size(tile).run();
}

} // namespace quadrelle
