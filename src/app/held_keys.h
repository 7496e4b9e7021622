#pragma once

// What Ctrl and Alt make of a press on the canvas while they are held.

#include <cstdint>

namespace quadrelle {

struct Editor_Parts;

enum class Press_Meaning : std::int32_t {
    uses_tool,
    picks_color,   // Alt
    moves_copy,    // Ctrl, on what is selected, or floats and is in hand
    moves_outline, // Alt, on what is selected, with a selector
};

// Of the left button where the pointer is.
[[nodiscard]] Press_Meaning meaning_of_press(const Editor_Parts& editor);

// Lets the window show the dropper while a press picks a colour.
void follow_held_keys(const Editor_Parts& editor);

} // namespace quadrelle
