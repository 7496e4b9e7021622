#include "ui/number_prompt.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/modal_dialog.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>

namespace quadrelle {

namespace {

constexpr Font font = Font::regular;
constexpr int margin = 7;
constexpr int narrowest = 90;
constexpr int distance = 12;
constexpr int field_padding = 3;
// As many as every 32-bit number has; more could only lie outside of the bounds.
constexpr std::size_t most_digits = 10;

constexpr std::optional<char> digit_of(Keycode pressed) {
    if (pressed >= '0' && pressed <= '9') {
        return static_cast<char>(pressed);
    }
    if (pressed >= key::keypad_1 && pressed < key::keypad_0) {
        return static_cast<char>('1' + (pressed - key::keypad_1));
    }
    return pressed == key::keypad_0 ? std::optional('0') : std::nullopt;
}

int pulled_inside(int position, int extent, int limit) {
    return std::clamp(position, 0, std::max(limit - extent, 0));
}

class Number_Prompt {
public:
    Number_Prompt(Point position, int value, int low, int high);

    std::optional<int> run();

private:
    [[nodiscard]] std::string hint() const;
    void draw() const;
    Loop_Step handle(const Input_Event& event);
    [[nodiscard]] Loop_Step press(const Pointer_State& pointer) const;
    void handle_key(Keycode pressed);
    Loop_Step accept();
    void append(char digit);
    void change_sign();

    int low_;
    int high_;
    std::string typed_;
    // The first digit replaces the value that is shown at the start.
    bool is_untouched_ = true;
    bool is_refused_ = false;
    std::optional<int> result_;
    Rectangle box_;
};

Number_Prompt::Number_Prompt(Point position, int value, int low, int high)
    : low_(low), high_(high), typed_(std::to_string(value)) {
    box_.width = std::max(narrowest, screen->text_width(font, hint()) + 2 * margin);
    box_.height = 2 * line_height(font) + 2 * field_padding + 2 * margin;
    box_.x = pulled_inside(position.x + distance, box_.width, screen->size().width);
    box_.y = pulled_inside(position.y + distance, box_.height, screen->size().height);
}

std::string Number_Prompt::hint() const {
    return std::to_string(low_) + " to " + std::to_string(high_);
}

std::optional<int> Number_Prompt::run() {
    run_dialog({"number prompt", [this] { draw(); },
                [this](const Input_Event& event) { return handle(event); }, [this] { return accept(); }});
    return result_;
}

void Number_Prompt::draw() const {
    const Color edge = standard_color(is_refused_ ? Standard_Color::red : Standard_Color::dark_frame);
    screen->fill_rect(box_.inset(-1), standard_color(Standard_Color::dark_frame));
    screen->draw_panel(box_, standard_color(Standard_Color::pane_background));
    const Rectangle field{box_.x + margin, box_.y + margin, box_.width - 2 * margin,
                          line_height(font) + 2 * field_padding};
    screen->fill_rect(field, standard_color(Standard_Color::dark_frame));
    screen->draw_outline(field, edge);

    const int text_y = field.y + field_padding;
    const Point start{field.x + 2 * field_padding, text_y};
    if (is_untouched_) {
        screen->fill_rect(
            {start.x - 1, text_y + 1, screen->text_width(font, typed_) + 2, line_height(font) - 2},
            standard_color(Standard_Color::highlight_deep));
    }
    const Point end = screen->draw_text(font, start, typed_);
    screen->fill_rect({end.x + 1, text_y + 2, 1, line_height(font) - 4},
                      standard_color(Standard_Color::white));
    if (is_refused_) {
        screen->fill_rect({field.x, field.bottom() + 1, field.width, line_height(font)}, edge);
    }
    screen->draw_text(font, {start.x, field.bottom() + 1}, hint());
}

Loop_Step Number_Prompt::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::key_press: {
        // What the key makes counts where it makes something: digits may need Shift.
        const bool is_plain = event.chord.modifier == Modifier::none;
        handle_key(is_plain ? event.chord.key : event.character);
        return Loop_Step::go_on;
    }
    case Input_Kind::button_press: return press(event.pointer);
    default: return Loop_Step::go_on;
    }
}

Loop_Step Number_Prompt::press(const Pointer_State& pointer) const {
    const bool is_outside = pointer.button != Mouse_Button::none && !box_.contains(pointer.point());
    return is_outside ? Loop_Step::end : Loop_Step::go_on;
}

void Number_Prompt::handle_key(Keycode pressed) {
    if (pressed == key::backspace) {
        is_untouched_ = is_refused_ = false;
        if (!typed_.empty()) {
            typed_.pop_back();
        }
    } else if (pressed == '-' || pressed == key::keypad_minus) {
        change_sign();
    } else if (const std::optional<char> digit = digit_of(pressed)) {
        append(*digit);
    }
}

void Number_Prompt::append(char digit) {
    if (is_untouched_) {
        typed_.clear();
    }
    is_untouched_ = is_refused_ = false;
    if (typed_.size() < most_digits) {
        typed_ += digit;
    }
}

void Number_Prompt::change_sign() {
    if (low_ >= 0) {
        return;
    }
    if (is_untouched_) {
        typed_.clear();
    }
    is_untouched_ = is_refused_ = false;
    if (typed_.starts_with('-')) {
        typed_.erase(0, 1);
    } else {
        typed_.insert(0, 1, '-');
    }
}

Loop_Step Number_Prompt::accept() {
    std::int64_t number = std::int64_t{low_} - 1; // refused, where there is no digit
    std::from_chars(typed_.data(), typed_.data() + typed_.size(), number);
    is_refused_ = typed_.empty() || number < low_ || number > high_;
    if (is_refused_) {
        return Loop_Step::go_on;
    }
    result_ = static_cast<int>(number);
    return Loop_Step::end;
}

} // namespace

std::optional<int> ask_number(Point position, int value, int low, int high) {
    return Number_Prompt(position, value, low, high).run();
}

} // namespace quadrelle
