#pragma once

// Sliders below each other, and what the pointer, the wheel and the keys do to their numbers.

#include "base/input.h"
#include "base/wheel_steps.h"
#include "ui/number_slider.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quadrelle {

// The owner of the numbers. The index is that of the slider.
class Slider_Numbers {
public:
    Slider_Numbers() = default;
    Slider_Numbers(const Slider_Numbers&) = delete;
    Slider_Numbers& operator=(const Slider_Numbers&) = delete;
    virtual ~Slider_Numbers() = default;

    [[nodiscard]] virtual int number(std::size_t index) const = 0;
    // The number lies within the bounds of the slider.
    virtual void set_number(std::size_t index, int number) = 0;
    // The number plus the amount may lie outside of the bounds.
    virtual void step(std::size_t index, int amount) = 0;
    // Returns the colour that the slider shows where that number is.
    [[nodiscard]] virtual Color color_of(std::size_t index, int number) const = 0;
};

enum class Event_Use { taken, left };

class Slider_Panel {
public:
    // Borrows the numbers.
    Slider_Panel(std::span<const Number_Slider_Row> rows, const Rectangle& area, Slider_Numbers& numbers);

    void draw() const;
    Event_Use handle(const Input_Event& event);

    [[nodiscard]] const Number_Slider& slider(std::size_t index) const { return sliders_[index]; }
    [[nodiscard]] int bottom() const { return bottom_; }
    // Chooses the slider that the keys act on.
    void set_focus(std::optional<std::size_t> index) { focus_ = index; }
    [[nodiscard]] bool has_focus() const { return focus_.has_value(); }

private:
    Event_Use press(const Pointer_State& pointer);
    Event_Use act(std::size_t index, Slider_Part part);
    // Again and again while the button is held.
    void hold_step(std::size_t index, Slider_Part part, int direction);
    void ask(std::size_t index);
    Event_Use move(Point point);
    Event_Use release(const Pointer_State& pointer);
    Event_Use turn_wheel(float amount);
    Event_Use handle_key(const Key_Chord& chord);
    void move_focus(int direction);
    [[nodiscard]] std::optional<std::size_t> slider_at(Point point) const;

    std::vector<Number_Slider> sliders_;
    Slider_Numbers& numbers_;
    int bottom_;
    Point pointer_;
    std::optional<std::size_t> dragged_;
    std::optional<std::size_t> focus_;
    Wheel_Steps wheel_;
};

} // namespace quadrelle
