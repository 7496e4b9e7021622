#pragma once

// One number as a labelled slider with buttons beside it. Knows its bounds and where it lies, not whose
// number it shows.

#include "base/geometry.h"
#include "color/color.h"
#include "ui/focus.h"

#include <functional>
#include <optional>
#include <string_view>

namespace quadrelle {

struct Number_Slider_Row {
    std::string_view label;
    int low = 0;
    int high = 0;
    std::string_view unit = {};
    // A button goes there, if there is such a number.
    std::optional<int> middle = {};
    // Beyond each bound comes the other one.
    bool wraps = false;
};

enum class Slider_Part { none, bar, less, number, middle, more };

constexpr int number_slider_height = 24;

class Number_Slider {
public:
    // The slider is one row high.
    Number_Slider(const Number_Slider_Row& row, Point position, int width);

    // The bar shows for each place the colour that the number there stands for.
    void draw(int number, Focus focus, const std::function<Color(int)>& color_of) const;

    [[nodiscard]] bool contains(Point point) const { return area_.contains(point); }
    [[nodiscard]] Slider_Part part_at(Point point) const;
    // Returns the nearest number, also for a place beside the bar.
    [[nodiscard]] int number_at(int x) const;
    [[nodiscard]] const Number_Slider_Row& row() const { return row_; }
    [[nodiscard]] const Rectangle& bar() const { return bar_; }
    [[nodiscard]] const Rectangle& number_area() const { return number_; }
    [[nodiscard]] Rectangle part_area(Slider_Part part) const;

private:
    void draw_bar(const std::function<Color(int)>& color_of) const;
    void draw_number(int number) const;
    void draw_answers(int number) const;

    Number_Slider_Row row_;
    Rectangle area_;
    Rectangle bar_;
    Rectangle less_;
    Rectangle number_;
    Rectangle middle_; // empty without that button
    Rectangle more_;
};

} // namespace quadrelle
