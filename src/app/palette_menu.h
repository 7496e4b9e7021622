#pragma once

// What the palette's menu offers, and the list of palettes.

#include "app/window_panes.h"

#include <span>
#include <string_view>

namespace quadrelle {

struct Editor_Parts;

namespace palette_menu {

// A row without a text parts those around it.
struct Menu_Entry {
    std::string_view text;
    std::string_view hint;
    void (*carry_out)(Editor_Parts&);
    bool (*can_be_used)(const Palette_Area&);
};
[[nodiscard]] std::span<const Menu_Entry> entries();

// Opens that popup beside the palette and does what is chosen there.
void open(Editor_Parts& editor, Pane_Popup popup);

} // namespace palette_menu

} // namespace quadrelle
