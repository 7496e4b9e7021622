#pragma once

// The numbers of a colour, ways to change them, and what is known about it.

#include "color/color_edit.h"
#include "ui/pane.h"
#include "ui/slider_panel.h"
#include "ui/text_field.h"

#include <string>

namespace quadrelle {

class Color_Data_View : public Slider_Numbers {
public:
    // Borrows the colour and shows beside it how it is at the start.
    Color_Data_View(Color_Edit& edit, const Rectangle& area);

    void draw() const;
    void handle(const Input_Event& event);
    // Returns false while the text stands for no colour, which is then kept as it was before.
    [[nodiscard]] bool is_complete() const { return refusal_.empty(); }
    // Shows a colour that was changed elsewhere.
    void refresh();

    [[nodiscard]] int number(std::size_t index) const override;
    void set_number(std::size_t index, int number) override;
    void step(std::size_t index, int amount) override;
    [[nodiscard]] Color color_of(std::size_t index, int number) const override;

    [[nodiscard]] const Number_Slider& slider(Color_Channel channel) const {
        return sliders_.slider(static_cast<std::size_t>(channel));
    }

private:
    void handle_field(const Input_Event& event);
    void take_text();
    void draw_swatches() const;
    void draw_information() const;

    Color_Edit& edit_;
    Color_Edit before_typing_;
    Color before_;
    Rectangle swatches_;
    Pane information_;
    Slider_Panel sliders_;
    Text_Field field_;
    std::string refusal_;
    bool is_typing_ = false;
};

} // namespace quadrelle
