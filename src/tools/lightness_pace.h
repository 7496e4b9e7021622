#pragma once

// How often the lightness pen acts while its button is held, and in which direction. Reads no clock.

#include "base/input.h"
#include "tools/pens.h"

#include <cstdint>
#include <optional>

namespace quadrelle {

enum class Lightness_Speed : std::int32_t {
    extremely_slow,
    very_slow,
    slow,
    moderate,
    fast,
    very_fast,
    extremely_fast,
    count
};

enum class Button_Order : std::int32_t { left_lightens, left_darkens };

enum class Size_Compensation : std::int32_t { off, on };

struct Lightness_Pace {
    Lightness_Speed speed = Lightness_Speed::moderate;
    Size_Compensation compensation = Size_Compensation::off;
    Button_Order order = Button_Order::left_lightens;
};

// Returns the milliseconds that must be exceeded from step to step. The brush's width is in pixels.
[[nodiscard]] std::int64_t lightness_interval(const Lightness_Pace& pace, int brush_width);

// Returns lighten or darken, as that button does, or none for a button that never acts.
[[nodiscard]] std::optional<Pixel_Operation> lightness_operation(Button_Order order, Mouse_Button button);

// Returns what `lightness_operation` does, or none while it is too early. Times are in milliseconds; on a
// step the caller keeps `now` as the last one.
[[nodiscard]] std::optional<Pixel_Operation> lightness_step(std::int64_t now, std::int64_t last_step,
                                                            const Lightness_Pace& pace, int brush_width,
                                                            Mouse_Button button);

} // namespace quadrelle
