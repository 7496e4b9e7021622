#include "views/adjust_hsv.h"

#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "tools/recolor.h"
#include "ui/control.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"
#include "ui/slider_panel.h"
#include "ui/text_button.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quadrelle {

namespace {

constexpr int gap = 10;
constexpr int tick_height = 24;
constexpr int note_height = 20;

// clang-format off
constexpr std::array<Number_Slider_Row, 3> slider_rows = {{
    {"Hue",        -most_hue_change,     most_hue_change,     "",  0},
    {"Saturation", -most_percent_change, most_percent_change, "%", 0},
    {"Value",      -most_percent_change, most_percent_change, "%", 0},
}};
constexpr std::array<int HSV_Change::*, 3> parts = {&HSV_Change::hue, &HSV_Change::saturation, &HSV_Change::value};
// clang-format on

constexpr Rectangle frame_area{window_layout::beside_canvas.x, window_layout::beside_canvas.y,
                               window_layout::beside_canvas.width,
                               dialog_title_height + 3 * number_slider_height + tick_height + note_height +
                                   text_button_height + 4 * gap};
constexpr Rectangle inside{frame_area.x + gap, frame_area.y + dialog_title_height + gap,
                           frame_area.width - 2 * gap, frame_area.height - dialog_title_height - 2 * gap};
constexpr int tick_y = inside.y + 3 * number_slider_height + gap;
constexpr int buttons_y = inside.bottom() - text_button_height;

// What the sliders show: of the pixels that change, the one on which it is seen best.
Color most_colorful(const Drawing_Target& target) {
    const auto strength = [](Color color) {
        return std::pair(color.max_channel() - color.min_channel(), color.max_channel());
    };
    Color best;
    for (int y = 0; y < target.size().height; ++y) {
        for (int x = 0; x < target.size().width; ++x) {
            const Color color = target.get({x, y});
            if (color.a != 0 && target.is_selected({x, y}) && strength(color) > strength(best)) {
                best = color;
            }
        }
    }
    return best;
}

class Adjust_HSV : public Slider_Numbers {
public:
    Adjust_HSV(const Drawing_Target& target, All_Tiles_Choice choice, const std::function<void()>& changed);
    std::optional<HSV_Adjustment> run();

    [[nodiscard]] int number(std::size_t index) const override;
    void set_number(std::size_t index, int number) override;
    void step(std::size_t index, int amount) override;
    [[nodiscard]] Color color_of(std::size_t index, int number) const override;

private:
    void draw() const;
    void draw_tick() const;
    void draw_note() const;
    Loop_Step handle(const Input_Event& event);
    Loop_Step press(const Input_Event& event);
    void handle_key(const Input_Event& event);
    Loop_Step accept();
    void toggle_all_tiles();
    void show_change();

    Drawing_Target target_;
    const Tile source_;
    Color sample_;
    All_Tiles_Choice choice_;
    std::function<void()> changed_;
    HSV_Adjustment adjustment_;
    bool is_accepted_ = false;
    Dialog_Frame frame_{"Adjust HSV"};
    Slider_Panel sliders_;
    Rectangle tick_;
    Text_Button ok_{"Ok", {inside.x, buttons_y, 70, text_button_height}};
    Text_Button cancel_{"Cancel", {inside.right() - 85, buttons_y, 85, text_button_height}};
};

Adjust_HSV::Adjust_HSV(const Drawing_Target& target, All_Tiles_Choice choice,
                       const std::function<void()>& changed)
    : target_(target), source_(target.tile()), sample_(most_colorful(target)), choice_(choice),
      changed_(changed), sliders_(slider_rows, inside, *this), tick_{inside.x, tick_y, 120, tick_height} {
    frame_.set_area(frame_area);
    sliders_.set_focus(0);
}

std::optional<HSV_Adjustment> Adjust_HSV::run() {
    run_dialog({"dialog \"Adjust HSV\"", [this] { draw(); },
                [this](const Input_Event& event) { return handle(event); }, [this] { return accept(); }});
    source_.copy_to(target_.tile());
    return is_accepted_ ? std::optional(adjustment_) : std::nullopt;
}

int Adjust_HSV::number(std::size_t index) const {
    return adjustment_.change.*parts.at(index);
}

void Adjust_HSV::set_number(std::size_t index, int number) {
    adjustment_.change.*parts.at(index) =
        std::clamp(number, slider_rows.at(index).low, slider_rows.at(index).high);
    show_change();
}

// In all tiles every pixel changes, also those that are not selected.
void Adjust_HSV::show_change() {
    source_.copy_to(target_.tile());
    Drawing_Target shown =
        adjustment_.tiles == Adjusted_Tiles::all ? Drawing_Target(target_.tile()) : target_;
    recolor(shown, source_, [this](Color color) { return adjusted(color, adjustment_.change); });
    changed_();
}

void Adjust_HSV::step(std::size_t index, int amount) {
    set_number(index, number(index) + amount);
}

Color Adjust_HSV::color_of(std::size_t index, int number) const {
    HSV_Change change = adjustment_.change;
    change.*parts.at(index) = number;
    Color color = adjusted(sample_, change);
    color.a = 255;
    return color;
}

void Adjust_HSV::draw() const {
    frame_.draw();
    sliders_.draw();
    if (choice_ == All_Tiles_Choice::shown) {
        draw_tick();
    }
    draw_note();
    ok_.draw(Button_Look::by_default);
    cancel_.draw(Button_Look::plain);
}

void Adjust_HSV::draw_tick() const {
    const bool is_all = adjustment_.tiles == Adjusted_Tiles::all;
    const Sprite sprite = is_all ? Sprite::radiobutton_check : Sprite::radiobutton_uncheck;
    const Rectangle mark = sprite_rect(sprite);
    screen->draw_sprite(sprite, {tick_.x, tick_.y + (tick_.height - mark.height) / 2});
    screen->draw_text(Font::pane, {tick_.x + mark.width + gap, tick_.y + 1}, "All tiles (a)");
    draw_answer(tick_);
}

void Adjust_HSV::draw_note() const {
    const bool is_all = adjustment_.tiles == Adjusted_Tiles::all;
    const int y = choice_ == All_Tiles_Choice::shown ? tick_.bottom() : tick_.y;
    screen->draw_text(Font::pane, {tick_.x, y},
                      is_all ? "Note: Adjusting all tiles clears undo history."
                             : "The wheel and the arrow keys step by 1, with Shift by 10.");
}

Loop_Step Adjust_HSV::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::button_press: return press(event);
    case Input_Kind::key_press: handle_key(event); break;
    default: sliders_.handle(event); break;
    }
    return Loop_Step::go_on;
}

void Adjust_HSV::handle_key(const Input_Event& event) {
    if (event.chord == Key_Chord{'a', Modifier::none}) {
        toggle_all_tiles();
        return;
    }
    sliders_.handle(event);
    if (!sliders_.has_focus()) {
        sliders_.set_focus(0);
    }
}

Loop_Step Adjust_HSV::press(const Input_Event& event) {
    const Point point = event.pointer.point();
    if (event.pointer.button == Mouse_Button::none) {
        return Loop_Step::go_on;
    }
    if (cancel_.contains(point)) {
        return Loop_Step::end;
    }
    if (ok_.contains(point)) {
        return accept();
    }
    if (tick_.contains(point)) {
        toggle_all_tiles();
    } else {
        sliders_.handle(event);
    }
    return Loop_Step::go_on;
}

Loop_Step Adjust_HSV::accept() {
    is_accepted_ = true;
    return Loop_Step::end;
}

void Adjust_HSV::toggle_all_tiles() {
    if (choice_ == All_Tiles_Choice::shown) {
        const bool was_all = adjustment_.tiles == Adjusted_Tiles::all;
        adjustment_.tiles = was_all ? Adjusted_Tiles::current : Adjusted_Tiles::all;
        show_change();
    }
}

} // namespace

std::optional<HSV_Adjustment> ask_hsv_adjustment(const Drawing_Target& target, All_Tiles_Choice choice,
                                                 const std::function<void()>& changed) {
    return Adjust_HSV(target, choice, changed).run();
}

} // namespace quadrelle
