#include "views/color_data_view.h"

#include "color/color_data.h"
#include "color/hex_color.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "screen/text_input.h"
#include "ui/shown_text.h"
#include "ui/swatch.h"

namespace quadrelle {

namespace {

constexpr Size swatch_size{90, 80};
constexpr int gap = 10;
constexpr int label_width = 100;
constexpr Size field_size{104, 24};
constexpr int information_lines = 4;
// More than any colour needs, so that what is too long is seen to be.
constexpr std::size_t most_characters = 14;

// clang-format off
constexpr std::array<Number_Slider_Row, color_channels.size()> slider_rows = [] {
    std::array<Number_Slider_Row, color_channels.size()> rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = {color_channels[i].name, 0, color_channels[i].high, color_channels[i].unit};
        rows[i].wraps = color_channels[i].end == Channel_End::wraps;
    }
    return rows;
}();
// clang-format on

Rectangle information_area(const Rectangle& area) {
    const int x = area.x + 2 * swatch_size.width + gap;
    const int client_height = information_lines * line_height(Font::pane) + 6;
    return {x, area.y, area.right() - x, client_height + 2 * pane_border};
}

} // namespace

Color_Data_View::Color_Data_View(Color_Edit& edit, const Rectangle& area)
    : edit_(edit), before_typing_(edit),
      before_(edit.color()), swatches_{area.x, area.y + pane_title_height, 2 * swatch_size.width,
                                       swatch_size.height},
      information_(information_area(area), "Information"),
      sliders_(slider_rows, {area.x, information_.area.bottom() + gap, area.width, 0}, *this),
      field_({area.x + label_width, sliders_.bottom() + gap, field_size.width, field_size.height}, Font::pane,
             most_characters) {
    refresh();
}

void Color_Data_View::refresh() {
    is_typing_ = false;
    refusal_.clear();
    field_.set_text(hex_text(edit_.color()));
    field_.select_all();
}

int Color_Data_View::number(std::size_t index) const {
    return edit_.number(static_cast<Color_Channel>(index));
}

void Color_Data_View::set_number(std::size_t index, int number) {
    edit_.set_number(static_cast<Color_Channel>(index), number);
    refresh();
}

void Color_Data_View::step(std::size_t index, int amount) {
    edit_.step(static_cast<Color_Channel>(index), amount);
    refresh();
}

// Hues are shown as pure as they can be: of a grey, all would look the same.
Color Color_Data_View::color_of(std::size_t index, int number) const {
    const auto channel = static_cast<Color_Channel>(index);
    Color_Edit there = edit_;
    there.set_number(channel, number);
    if (channel == Color_Channel::hue) {
        there.set_number(Color_Channel::value, 100);
        there.set_number(Color_Channel::saturation, 100);
    }
    Color color = there.color();
    color.a = channel == Color_Channel::alpha ? color.a : std::uint8_t{255};
    return color;
}

void Color_Data_View::handle(const Input_Event& event) {
    const Key_Chord chord = event.kind == Input_Kind::key_press ? event.chord : Key_Chord{};
    if (chord == Key_Chord{'c', Modifier::control}) {
        set_clipboard_text(hex_text(edit_.color()));
        return;
    }
    // What is pasted is a whole colour.
    if (chord == Key_Chord{'v', Modifier::control}) {
        field_.select_all();
    }
    if (sliders_.handle(event) == Event_Use::left) {
        handle_field(event);
    }
}

void Color_Data_View::handle_field(const Input_Event& event) {
    const bool is_press = event.kind == Input_Kind::button_press;
    if (is_press && !field_.area().contains(event.pointer.point())) {
        return;
    }
    const Text_Change change = field_.handle(event);
    if (is_press || change == Text_Change::changed) {
        sliders_.set_focus(std::nullopt);
    }
    if (change == Text_Change::changed) {
        take_text();
    }
}

// What the text passes through on its way to a whole one leaves nothing behind.
void Color_Data_View::take_text() {
    if (!is_typing_) {
        before_typing_ = edit_;
    }
    is_typing_ = true;
    Hex_Reading reading = read_hex(shown_text(field_.text()));
    edit_ = before_typing_;
    if (reading.color) {
        edit_.set_color(*reading.color);
    }
    refusal_ = std::move(reading.refusal);
}

void Color_Data_View::draw() const {
    draw_swatches();
    draw_information();
    sliders_.draw();
    const Rectangle& field = field_.area();
    const int text_y = field.y + (field.height - line_height(Font::pane)) / 2 - 1;
    screen->draw_text(Font::pane, {swatches_.x, text_y}, "Hexadecimal");
    field_.draw(sliders_.has_focus() ? Focus::no : Focus::yes,
                is_complete() ? Text_Verdict::fine : Text_Verdict::refused);
    screen->draw_text(Font::pane, {field.right() + gap, text_y},
                      is_complete() ? "^c copies, ^v pastes" : std::string_view(refusal_));
}

void Color_Data_View::draw_swatches() const {
    const int middle = swatches_.x + swatch_size.width;
    screen->draw_text(Font::pane, {swatches_.x, swatches_.y - pane_title_height}, "Before");
    screen->draw_text(Font::pane, {middle, swatches_.y - pane_title_height}, "New");
    draw_swatch({swatches_.x, swatches_.y, swatch_size.width, swatch_size.height}, before_);
    draw_swatch({middle, swatches_.y, swatch_size.width, swatch_size.height}, edit_.color());
    screen->draw_outline(swatches_.inset(-1), standard_color(Standard_Color::dark_frame));
}

void Color_Data_View::draw_information() const {
    information_.draw();
    information_.clear(standard_color(Standard_Color::pane_frame));
    const Rectangle client = information_.client_area();
    const Point start{client.x + 1, client.y + 3};
    screen->draw_text(Font::pane, start, color_information(edit_.color()));
    const Point name =
        screen->draw_text(Font::pane, {start.x, start.y + 3 * line_height(Font::pane)}, "Name: ");
    screen->draw_text(Font::pane, name, color_data->shown_name(edit_.color()));
}

} // namespace quadrelle
