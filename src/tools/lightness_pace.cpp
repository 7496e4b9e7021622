#include "tools/lightness_pace.h"

#include <array>
#include <cstddef>

namespace quadrelle {

namespace {

// Milliseconds, by speed.
constexpr std::array<std::int64_t, 7> intervals{14, 12, 10, 8, 6, 4, 2};
static_assert(intervals.size() == static_cast<std::size_t>(Lightness_Speed::count));

} // namespace

std::int64_t lightness_interval(const Lightness_Pace& pace, int brush_width) {
    const std::int64_t interval = intervals.at(static_cast<std::size_t>(pace.speed));
    return pace.compensation == Size_Compensation::on ? interval + 2 * std::int64_t{brush_width} : interval;
}

std::optional<Pixel_Operation> lightness_operation(Button_Order order, Mouse_Button button) {
    if (button == Mouse_Button::none) {
        return std::nullopt;
    }
    const bool lightens = (button == Mouse_Button::left) == (order == Button_Order::left_lightens);
    return lightens ? Pixel_Operation::lighten : Pixel_Operation::darken;
}

std::optional<Pixel_Operation> lightness_step(std::int64_t now, std::int64_t last_step,
                                              const Lightness_Pace& pace, int brush_width,
                                              Mouse_Button button) {
    const bool is_too_early = now - last_step <= lightness_interval(pace, brush_width);
    return is_too_early ? std::nullopt : lightness_operation(pace.order, button);
}

} // namespace quadrelle
