#pragma once

// The pane with a square of the shades of one hue and a bar of hues beside it. What is picked is read from
// its own pictures.

#include "base/input.h"
#include "color/color.h"
#include "screen/pixel_image.h"
#include "ui/pane.h"

#include <functional>
#include <optional>
#include <vector>

namespace quadrelle {

class HSV_Selector : public Pane {
public:
    static constexpr int size = 128;
    static constexpr int segments = 6;
    static constexpr int segment_width = 9;

    using Set_Color = std::function<void(Mouse_Button side, Color color)>;

    // The square shows red at first. `set_color` takes what is picked.
    HSV_Selector(Point position, Set_Color set_color);

    void layout() override;
    void draw() const override;
    // Chooses the hue that the square shows.
    void set_hue(Color hue);
    // Picks along the pointer's motions until a button is released. Returns true only when the square was
    // hit. `redraw` draws and presents the window.
    bool click(Mouse_Button side, Point point, const std::function<void()>& redraw);

    // These lie on the window.
    [[nodiscard]] Rectangle square_rect() const { return square_rect_; }
    [[nodiscard]] Rectangle bar_rect() const { return bar_rect_; }

private:
    enum class Mode { square, bar };

    void build_bar();
    void drag(Mouse_Button side, Point point, Mode mode, const std::function<void()>& redraw);
    void pick(Mouse_Button side, Point point, Mode mode);

    Set_Color set_color_;
    Rectangle bar_rect_;
    Rectangle square_rect_;
    std::vector<Color> left_column_;
    std::vector<Color> right_column_;
    Pixel_Image square_image_;
    Pixel_Image bar_image_;
    // While the pointer is hidden.
    std::optional<Point> marker_;
};

} // namespace quadrelle
