#pragma once

// All named colours, to take one of them.

#include "color/color_data.h"
#include "color/color_edit.h"
#include "ui/slider_panel.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quadrelle {

enum class List_Answer { none, taken, accepted };

class Color_Database_View {
public:
    // Borrows the colour.
    Color_Database_View(Color_Edit& edit, const Rectangle& area);

    void draw() const;
    // A click or an arrow key takes a colour, a double click also accepts it.
    List_Answer handle(const Input_Event& event);

    // Returns a colour's place. The table's order leads down the first column and then down the second.
    [[nodiscard]] Rectangle row(std::size_t index) const;

private:
    List_Answer press(const Input_Event& event);
    List_Answer handle_key(Keycode pressed);
    List_Answer take(std::size_t index);
    void draw_row(std::size_t index) const;
    // Returns the index of the colour as it is now, if it has a name.
    [[nodiscard]] std::optional<std::size_t> current() const;
    [[nodiscard]] std::size_t rows_in_column() const { return (colors_.size() + 1) / 2; }

    Color_Edit& edit_;
    Rectangle area_;
    std::vector<Named_Color> colors_;
};

} // namespace quadrelle
