#pragma once

// The pane that changes the current tool colour by one channel at a time, with buttons and sliders.

#include "color/color.h"
#include "color/hsl.h"
#include "screen/pixel_image.h"
#include "ui/button_dialog_item.h"
#include "ui/pane.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quadrelle {

class Color_Handles : public Pane {
public:
    // `hand_on` takes each new colour.
    Color_Handles(Point position, std::function<void(Color)> hand_on);

    void layout() override;
    void draw() const override;
    // Takes the colour to change, when it became another one elsewhere.
    void set_color(Color color);
    // Answers a press on a step button, which acts on while it is held, or on a slider, which then follows
    // the pointer until a button is released. Returns false where there is neither. `redraw` draws and
    // presents the window.
    bool click(Point point, const std::function<void()>& redraw);

private:
    [[nodiscard]] Rectangle track(int row) const;
    // Returns where the channel lies between its bounds, 0 to 1.
    [[nodiscard]] double fraction(int row) const;
    [[nodiscard]] Bounded_Value& hsl_value(int row);
    // Returns -1 when the channel was at its bound, else 0.
    int step(int row, int amount);
    void set_fraction(int row, double fraction);
    void press(int button);
    [[nodiscard]] bool changes_by(int button) const;
    void drag(int row, Point point, const std::function<void()>& redraw);
    void take(int row, int result);
    [[nodiscard]] std::optional<int> button_at(Point point) const;
    [[nodiscard]] Color color_at(int row, double fraction) const;
    void draw_row(int row) const;
    void paint_buttons();
    void paint_tracks();

    std::function<void(Color)> hand_on_;
    Color color_;
    HSL_Color hsl_;
    std::vector<std::unique_ptr<Button_Dialog_Item>> icons_;
    std::vector<std::unique_ptr<Button_Dialog_Item>> step_buttons_;
    Pixel_Image picture_; // of all rows, without their texts and markers
};

} // namespace quadrelle
