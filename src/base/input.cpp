#include "base/input.h"

#include <algorithm>
#include <array>

namespace quadrelle {

namespace {

constexpr std::array modifier_keys = {key::left_control,  key::left_shift,  key::left_alt,
                                      key::right_control, key::right_shift, key::right_alt};

Modifier strongest(Held_Modifiers held) {
    if (held.shift) {
        return Modifier::shift;
    }
    if (held.control) {
        return Modifier::control;
    }
    return held.alt ? Modifier::alt : Modifier::none;
}

} // namespace

Key_Chord make_key_chord(Keycode pressed, Held_Modifiers held) {
    const bool is_modifier = std::ranges::find(modifier_keys, pressed) != modifier_keys.end();
    return {is_modifier ? key::none : pressed, strongest(held)};
}

} // namespace quadrelle
