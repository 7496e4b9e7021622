#pragma once

// A colour being edited through its channels, in both forms at once: what one form cannot say of a grey or a
// black, the other keeps. Draws nothing.

#include "base/table.h"
#include "color/color.h"
#include "color/hsv.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace quadrelle {

enum class Color_Channel { red, green, blue, alpha, hue, saturation, value, count };

enum class Channel_End { stops, wraps };

// The lowest number of each is 0.
struct Color_Channel_Row {
    Color_Channel id;
    std::string_view name;
    int high;
    std::string_view unit;
    Channel_End end;
};

// clang-format off
constexpr std::array color_channels = {
    Color_Channel_Row{Color_Channel::red,        "Red",        255, "",  Channel_End::stops},
    Color_Channel_Row{Color_Channel::green,      "Green",      255, "",  Channel_End::stops},
    Color_Channel_Row{Color_Channel::blue,       "Blue",       255, "",  Channel_End::stops},
    Color_Channel_Row{Color_Channel::alpha,      "Alpha",      255, "",  Channel_End::stops},
    Color_Channel_Row{Color_Channel::hue,        "Hue",        359, "",  Channel_End::wraps}, // degrees
    Color_Channel_Row{Color_Channel::saturation, "Saturation", 100, "%", Channel_End::stops},
    Color_Channel_Row{Color_Channel::value,      "Value",      100, "%", Channel_End::stops},
};
// clang-format on
static_assert(color_channels.size() == static_cast<std::size_t>(Color_Channel::count));
static_assert(rows_follow_their_ids(color_channels));

[[nodiscard]] constexpr const Color_Channel_Row& row_of(Color_Channel channel) {
    return color_channels[static_cast<std::size_t>(channel)];
}

class Color_Edit {
public:
    explicit Color_Edit(Color color);

    [[nodiscard]] Color color() const { return color_; }
    // A grey keeps the hue of the colour before it.
    void set_color(Color color);

    // Returns the nearest whole number.
    [[nodiscard]] int number(Color_Channel channel) const;
    // Takes the number to the nearest bound; one that is there already changes nothing.
    void set_number(Color_Channel channel, int number);
    // Steps around the wheel for the hue, up to the bounds for all others.
    void step(Color_Channel channel, int amount);

private:
    void set_component(Color_Channel channel, int number);

    Color color_;
    HSV_Color hsv_;
};

} // namespace quadrelle
