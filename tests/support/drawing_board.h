#pragma once

// A tile on a canvas that no window shows, and strokes of the tools on it at moments that the test chooses.

#include "canvas/stroke.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quadrelle::testing {

class Drawing_Board {
public:
    explicit Drawing_Board(const Tile& picture);

    // The middle of a pixel on the window.
    [[nodiscard]] Point at(Tile_Point pixel) const;
    void press(Point point, Mouse_Button button = Mouse_Button::left);
    void move(Point point);
    // What is held may have changed.
    void hold() { stroke_->hold(moment()); }
    void take_back() { stroke_->take_back(); }
    // The button is held meanwhile.
    void pause(int milliseconds);
    Stroke_Outcome release();
    // Pressed on the first pixel, along the others, and released; no time goes by.
    Stroke_Outcome drag(const std::vector<Tile_Point>& path, Mouse_Button button = Mouse_Button::left);

    Tool_State tools;
    Tile tile;
    Canvas_View canvas{10};
    Canvas_Settings settings;
    bool is_shift_held = false;
    bool is_control_held = false;

private:
    [[nodiscard]] Stroke_Moment moment() const { return {time_, is_shift_held, is_control_held}; }

    Pointer_State pointer_;
    std::int64_t time_ = 0;
    std::optional<Stroke> stroke_;
};

} // namespace quadrelle::testing
