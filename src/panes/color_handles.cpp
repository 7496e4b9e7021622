#include "panes/color_handles.h"

#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "ui/control.h"
#include "ui/held_button.h"
#include "ui/swatch.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

struct Handle_Row {
    std::string_view label;
    Button_Type icon;
};

constexpr std::array handle_rows{
    Handle_Row{"Red", Button_Type::red},
    Handle_Row{"Green", Button_Type::green},
    Handle_Row{"Blue", Button_Type::blue},
    Handle_Row{"Alpha", Button_Type::alpha},
    Handle_Row{"Saturation", Button_Type::saturation},
    Handle_Row{"Lightness", Button_Type::lightness},
};

struct Step_Button {
    Button_Type type;
    int x; // from the row's left edge
};

constexpr std::array step_row{
    Step_Button{Button_Type::less, 135},
    Step_Button{Button_Type::middle, 155},
    Step_Button{Button_Type::more, 175},
};

constexpr int row_count = static_cast<int>(handle_rows.size());
constexpr int buttons_in_row = static_cast<int>(step_row.size());
constexpr int first_hsl_row = 4;
constexpr int row_step = 17;
static_assert(window_layout::handles.height == window_layout::pane_height(row_count * row_step + 2));

// A slider is 130 pixels wide: the row's icon, and a track of which each column is one step.
constexpr int track_left = 17;
constexpr Size track_size{113, 15};
constexpr int picture_width = step_row.back().x + sprite_rect(Sprite::button_more).width;
// The tails of the letters end above the strip of colours. Their heads need a pixel above the row.
constexpr int strip_top = 11;
constexpr Point label_offset{4, -6};
constexpr int room_for_heads = 1;
// Around the strip; its middle goes from one end to the other as far as it stays within the track.
constexpr Size marker_size{5, 6};
constexpr int marker_top = track_size.height - marker_size.height;
constexpr int middle_channel = 128;

constexpr bool is_hsl(int row) {
    return row >= first_hsl_row;
}

constexpr double middle_of(int row) {
    return is_hsl(row) ? 0.5 : middle_channel / 255.0;
}

} // namespace

Color_Handles::Color_Handles(Point position, std::function<void(Color)> hand_on)
    : Pane(below_title({position.x, position.y, window_layout::handles.width, window_layout::handles.height}),
           "Handles"),
      hand_on_(std::move(hand_on)), hsl_(color_, color_),
      picture_({picture_width, (row_count - 1) * row_step + track_size.height + room_for_heads}) {
    for (const Handle_Row& row : handle_rows) {
        icons_.push_back(std::make_unique<Button_Dialog_Item>(Item_Id{}, row.icon));
        for (const Step_Button& button : step_row) {
            const auto id = static_cast<std::int32_t>(step_buttons_.size());
            step_buttons_.push_back(std::make_unique<Button_Dialog_Item>(Item_Id{id}, button.type));
        }
    }
    Color_Handles::layout();
    paint_buttons();
    paint_tracks();
}

void Color_Handles::layout() {
    Pane::layout();
    const int left = client_area().x + 1;
    int top = client_area().y + 1;
    auto button = step_buttons_.begin();
    for (const auto& icon : icons_) {
        // Not `set_position`, which lowers a button to the text of a dialog's row.
        icon->area.x = left;
        icon->area.y = top;
        for (const Step_Button& place : step_row) {
            (*button)->area.x = left + place.x;
            (*button)->area.y = top;
            ++button;
        }
        top += row_step;
    }
}

Rectangle Color_Handles::track(int row) const {
    const Rectangle client = client_area();
    return {client.x + 1 + track_left, client.y + 1 + row * row_step, track_size.width, track_size.height};
}

void Color_Handles::set_color(Color color) {
    if (color == color_) {
        return;
    }
    color_ = color;
    hsl_.from_rgb(color, color);
    paint_tracks();
}

Bounded_Value& Color_Handles::hsl_value(int row) {
    return row == first_hsl_row ? hsl_.saturation : hsl_.lightness;
}

double Color_Handles::fraction(int row) const {
    if (is_hsl(row)) {
        return (row == first_hsl_row ? hsl_.saturation : hsl_.lightness).value();
    }
    return color_.channel(row) / 255.0;
}

int Color_Handles::step(int row, int amount) {
    if (!is_hsl(row)) {
        return color_.add_clamped(row, amount);
    }
    hsl_value(row) += static_cast<double>(amount) / track_size.width;
    return 0;
}

void Color_Handles::set_fraction(int row, double fraction) {
    if (is_hsl(row)) {
        hsl_value(row) = fraction;
    } else {
        color_.add_clamped(row, static_cast<int>(std::lround(fraction * 255.0)) - color_.channel(row));
    }
}

// What came from saturation and lightness is opaque, deliberately, and the colour is not measured again:
// going to that form and back changes it.
void Color_Handles::take(int row, int result) {
    if (result == 0 && is_hsl(row)) {
        color_ = hsl_.to_rgb();
    } else {
        hsl_.from_rgb(color_, color_);
    }
    paint_tracks();
    hand_on_(color_);
}

void Color_Handles::press(int button) {
    const int row = button / buttons_in_row;
    int result = 0;
    switch (step_row.at(static_cast<std::size_t>(button % buttons_in_row)).type) {
    case Button_Type::less: result = step(row, -1); break;
    case Button_Type::more: result = step(row, 1); break;
    default: set_fraction(row, middle_of(row)); break;
    }
    take(row, result);
}

// Where the button leads to is not where the row is already.
bool Color_Handles::changes_by(int button) const {
    const int row = button / buttons_in_row;
    switch (step_row.at(static_cast<std::size_t>(button % buttons_in_row)).type) {
    case Button_Type::less: return fraction(row) > 0;
    case Button_Type::more: return fraction(row) < 1;
    default: return fraction(row) != middle_of(row);
    }
}

std::optional<int> Color_Handles::button_at(Point point) const {
    const auto found = std::ranges::find_if(
        step_buttons_, [point](const auto& button) { return button->area.contains(point); });
    return found == step_buttons_.end() ? std::nullopt : std::optional<int>((*found)->id);
}

bool Color_Handles::click(Point point, const std::function<void()>& redraw) {
    if (const std::optional<int> button = button_at(point)) {
        press(*button);
        repeat_while_held({step_buttons_.at(static_cast<std::size_t>(*button))->area, redraw,
                           [this, button] { press(*button); }},
                          point);
        return true;
    }
    for (int row = 0; row < row_count; ++row) {
        const Rectangle bar = track(row);
        if (Rectangle{bar.x, bar.y, bar.width, row_step}.contains(point)) {
            drag(row, point, redraw);
            return true;
        }
    }
    return false;
}

void Color_Handles::drag(int row, Point point, const std::function<void()>& redraw) {
    const auto follow = [this, row](int x) {
        const int column = std::clamp(x - track(row).x, 0, track_size.width - 1);
        set_fraction(row, column / (track_size.width - 1.0));
        take(row, 0);
    };
    follow(point.x);
    follow_pointer("handle", redraw, [&](const Input_Event& motion) { follow(motion.pointer.point().x); });
}

// The colour that the slider would give there.
Color Color_Handles::color_at(int row, double fraction) const {
    if (is_hsl(row)) {
        HSL_Color moved = hsl_;
        (row == first_hsl_row ? moved.saturation : moved.lightness) = fraction;
        return moved.to_rgb();
    }
    Color moved = color_;
    moved.a = 255;
    moved.add_clamped(row, static_cast<int>(std::lround(fraction * 255.0)) - moved.channel(row));
    return moved;
}

// Once: drawn one by one in each frame, they would cost more than all the rest of the pane.
void Color_Handles::paint_buttons() {
    picture_.fill_rect({0, 0, picture_.size().width, picture_.size().height},
                       standard_color(Standard_Color::pane_background));
    const Rectangle first = icons_.front()->area;
    for (const auto* buttons : {&icons_, &step_buttons_}) {
        for (const auto& button : *buttons) {
            const Sprite sprite = button_table.at(static_cast<std::size_t>(button->type())).sprite;
            picture_.draw_sprite(sprite,
                                 {button->area.x - first.x, button->area.y - first.y + room_for_heads});
        }
    }
}

void Color_Handles::paint_tracks() {
    for (int row = 0; row < row_count; ++row) {
        const Rectangle bar{track_left, row * row_step, track_size.width, track_size.height + room_for_heads};
        picture_.fill_rect(bar, standard_color(Standard_Color::dark_frame));
        const int top = strip_top + room_for_heads;
        const Rectangle strip{bar.x, bar.y + top, bar.width, bar.height - top};
        picture_.fill_checkers(strip);
        for (int x = 0; x < strip.width; ++x) {
            picture_.fill_rect({strip.x + x, strip.y, 1, strip.height},
                               color_at(row, x / (strip.width - 1.0)));
        }
    }
    picture_.upload();
}

void Color_Handles::draw() const {
    const Point corner{icons_.front()->area.x, icons_.front()->area.y - room_for_heads};
    draw_around({corner.x, corner.y, picture_.size().width, picture_.size().height});
    picture_.draw_at(corner);
    for (int row = 0; row < row_count; ++row) {
        draw_row(row);
    }
    for (const auto& button : step_buttons_) {
        draw_answer(button->area, usable_if(changes_by(button->id)));
    }
}

void Color_Handles::draw_row(int row) const {
    const auto index = static_cast<std::size_t>(row);
    const Rectangle bar = track(row);
    const int scale = is_hsl(row) ? 100 : 255;
    const std::string number = std::to_string(std::lround(fraction(row) * scale));
    const int text_y = bar.y + label_offset.y;
    screen->draw_text(Font::pane, {bar.x + label_offset.x, text_y}, handle_rows.at(index).label);
    screen->draw_text(
        Font::pane, {bar.right() - label_offset.x - screen->text_width(Font::pane, number), text_y}, number);
    const int x =
        bar.x + static_cast<int>(std::lround(fraction(row) * (track_size.width - marker_size.width)));
    draw_mark({x, bar.y + marker_top, marker_size.width, marker_size.height});
}

} // namespace quadrelle
