#pragma once

// The box that a dialog is shown in.

#include "base/geometry.h"

#include <string>
#include <string_view>

namespace quadrelle {

// The part of a frame above its contents.
constexpr int dialog_title_height = 24;
constexpr int dialog_margin = 7;

class Dialog_Frame {
public:
    // Stands in the middle of the screen.
    explicit Dialog_Frame(std::string_view title);

    // Makes the part below the title that large and centres the frame.
    void set_size(Size below_title);
    // Puts the frame elsewhere, so that what is worked on stays in view.
    void set_area(const Rectangle& area) { area_ = area; }
    void draw() const;
    [[nodiscard]] int title_width() const;

    [[nodiscard]] const std::string& title() const { return title_; }
    // Returns the whole frame with the title.
    [[nodiscard]] const Rectangle& area() const { return area_; }

private:
    void centre(Size size);

    Rectangle area_{100, 100, 100, 100};
    std::string title_;
};

} // namespace quadrelle
