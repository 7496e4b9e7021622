#pragma once

// The pane of the palette's entry that is selected, with what Store puts there: the lit tool colour. In its
// title bar stand the colours of both buttons, whatever the tool is.

#include "base/input.h"
#include "panes/palette_area.h"
#include "tools/tool_state.h"
#include "ui/pane.h"

#include <optional>

namespace quadrelle {

class Selected_Color_Area : public Pane {
public:
    // Borrows the palette and the colours.
    Selected_Color_Area(Point position, const Palette_Area& palette, const Tool_Colors& colors);

    void draw() const override;
    // Returns the button whose colour is shown at `point`, if any.
    [[nodiscard]] std::optional<Mouse_Button> button_color_at(Point point) const;
    // Returns whether the entry is shown there.
    [[nodiscard]] bool has_entry_at(Point point) const;
    [[nodiscard]] Rectangle store_button() const;
    [[nodiscard]] Rectangle adjust_button() const;

private:
    [[nodiscard]] Rectangle button_color(Mouse_Button button) const;
    void draw_entry() const;
    void draw_store_button() const;

    const Palette_Area& palette_;
    const Tool_Colors& colors_;
};

} // namespace quadrelle
