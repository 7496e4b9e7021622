#pragma once

// The bar beside a list that is longer than its box: which rows are shown, and the thumb that moves them.

#include "base/geometry.h"
#include "base/wheel_steps.h"

namespace quadrelle {

class Scroll_Bar {
public:
    static constexpr int width = 14;

    // The track lies in the window; that many rows have room beside it.
    Scroll_Bar(const Rectangle& track, int page) : track_(track), page_(page) {}

    // Shows the first rows.
    void set_count(int rows);
    [[nodiscard]] int page() const { return page_; }
    [[nodiscard]] int first() const { return first_; }
    // Returns the row behind the last one that is shown.
    [[nodiscard]] int end() const;
    // Without more rows than have room nothing is drawn and nothing can be grabbed.
    [[nodiscard]] bool is_needed() const { return count_ > page_; }

    // Stops at the first and the last row.
    void scroll(int rows);
    void scroll_by_wheel(float amount);
    // Scrolls no further than is needed.
    void show_row(int row);

    // Grabs the thumb, whose middle then follows the pointer; answers whether the bar was hit.
    bool press(Point point);
    void drag(Point point);
    void release() { is_dragging_ = false; }

    void draw() const;

private:
    [[nodiscard]] int last_first() const;
    [[nodiscard]] Rectangle thumb() const;

    Rectangle track_;
    int page_;
    int count_ = 0;
    int first_ = 0;
    bool is_dragging_ = false;
    Wheel_Steps wheel_; // in rows
};

} // namespace quadrelle
