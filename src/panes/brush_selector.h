#pragma once

// The two rows of icons that show the shape and size of the built-in brush and let them be chosen.

#include "tools/chosen_brush.h"
#include "ui/pane.h"

#include <memory>
#include <optional>

namespace quadrelle {

class Brush_Selector {
public:
    Brush_Selector();

    // Puts both rows below each other and returns the y for what comes below.
    int move(Point position);
    void draw(const Chosen_Brush& chosen);
    // Returns false where there is no icon, or the one chosen already.
    bool click(Point point, Chosen_Brush& chosen) const;

private:
    void update_icons(const Chosen_Brush& chosen);

    Pane shape_row_;
    Pane size_row_;
    // What the icons show as chosen.
    std::optional<Brush_Shape> shown_shape_;
    int shown_size_ = 0;
    std::unique_ptr<Texture> shape_icons_;
    std::unique_ptr<Texture> size_icons_;
};

} // namespace quadrelle
