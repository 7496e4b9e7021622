#include "ui/slider_panel.h"

#include "screen/events.h"
#include "screen/screen.h"
#include "ui/held_button.h"
#include "ui/modal_dialog.h"
#include "ui/number_prompt.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int large_step = 10;

int step_size() {
    return is_shift_held() ? large_step : 1;
}

} // namespace

Slider_Panel::Slider_Panel(std::span<const Number_Slider_Row> rows, const Rectangle& area,
                           Slider_Numbers& numbers)
    : numbers_(numbers), bottom_(area.y), pointer_(screen->read_pointer().point()) {
    for (const Number_Slider_Row& row : rows) {
        sliders_.emplace_back(row, Point{area.x, bottom_}, area.width);
        bottom_ += number_slider_height;
    }
}

void Slider_Panel::draw() const {
    for (std::size_t i = 0; i < sliders_.size(); ++i) {
        sliders_[i].draw(numbers_.number(i), focus_ == i ? Focus::yes : Focus::no,
                         [this, i](int number) { return numbers_.color_of(i, number); });
    }
}

Event_Use Slider_Panel::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::button_press: return press(event.pointer);
    case Input_Kind::pointer_motion: return move(event.pointer.point());
    case Input_Kind::button_release: return release(event.pointer);
    case Input_Kind::wheel: return turn_wheel(event.moved.y);
    case Input_Kind::key_press: return handle_key(event.chord);
    default: return Event_Use::left;
    }
}

std::optional<std::size_t> Slider_Panel::slider_at(Point point) const {
    for (std::size_t i = 0; i < sliders_.size(); ++i) {
        if (sliders_[i].contains(point)) {
            return i;
        }
    }
    return std::nullopt;
}

Event_Use Slider_Panel::press(const Pointer_State& pointer) {
    pointer_ = pointer.point();
    const std::optional<std::size_t> index = slider_at(pointer_);
    if (pointer.button != Mouse_Button::left || !index || dragged_) {
        return Event_Use::left;
    }
    return act(*index, sliders_[*index].part_at(pointer_));
}

Event_Use Slider_Panel::act(std::size_t index, Slider_Part part) {
    const Number_Slider& slider = sliders_[index];
    switch (part) {
    case Slider_Part::none: return Event_Use::left;
    case Slider_Part::bar:
        dragged_ = index;
        numbers_.set_number(index, slider.number_at(pointer_.x));
        break;
    case Slider_Part::less: hold_step(index, part, -1); break;
    case Slider_Part::more: hold_step(index, part, 1); break;
    case Slider_Part::middle: numbers_.set_number(index, slider.row().middle.value_or(0)); break;
    case Slider_Part::number: ask(index); break;
    }
    return Event_Use::taken;
}

void Slider_Panel::hold_step(std::size_t index, Slider_Part part, int direction) {
    const auto step = [this, index, direction] { numbers_.step(index, direction * step_size()); };
    step();
    repeat_while_held({sliders_[index].part_area(part), show_backdrop, step}, pointer_);
}

void Slider_Panel::ask(std::size_t index) {
    const Number_Slider_Row& row = sliders_[index].row();
    const Rectangle area = sliders_[index].number_area();
    const std::optional<int> answer = ask_number({area.x, area.y}, numbers_.number(index), row.low, row.high);
    if (answer) {
        numbers_.set_number(index, *answer);
    }
}

Event_Use Slider_Panel::move(Point point) {
    pointer_ = point;
    if (!dragged_) {
        return Event_Use::left;
    }
    numbers_.set_number(*dragged_, sliders_[*dragged_].number_at(point.x));
    return Event_Use::taken;
}

Event_Use Slider_Panel::release(const Pointer_State& pointer) {
    if (!dragged_ || pointer.button != Mouse_Button::left) {
        return Event_Use::left;
    }
    dragged_.reset();
    return Event_Use::taken;
}

Event_Use Slider_Panel::turn_wheel(float amount) {
    const std::optional<std::size_t> index = slider_at(pointer_);
    if (!index || amount == 0 || dragged_) {
        return Event_Use::left;
    }
    if (const int steps = wheel_.take(amount); steps != 0) {
        numbers_.step(*index, steps * step_size());
    }
    return Event_Use::taken;
}

Event_Use Slider_Panel::handle_key(const Key_Chord& chord) {
    if (chord.modifier == Modifier::control || chord.modifier == Modifier::alt) {
        return Event_Use::left;
    }
    if (chord.key == key::up || chord.key == key::down) {
        move_focus(chord.key == key::up ? -1 : 1);
        return Event_Use::taken;
    }
    if (focus_ && (chord.key == key::left || chord.key == key::right)) {
        const int size = chord.modifier == Modifier::shift ? large_step : 1;
        numbers_.step(*focus_, chord.key == key::left ? -size : size);
        return Event_Use::taken;
    }
    return Event_Use::left;
}

// Above the first slider the keys belong to whatever else is there.
void Slider_Panel::move_focus(int direction) {
    const int current = focus_ ? static_cast<int>(*focus_) : -1;
    const int next = std::min(current + direction, static_cast<int>(sliders_.size()) - 1);
    focus_ = next < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(next));
}

} // namespace quadrelle
