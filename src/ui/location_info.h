#pragma once

// A pane that shows two numbers, such as a position or a size.

#include "ui/pane.h"

#include <string_view>

namespace quadrelle {

class Location_Info : public Pane {
public:
    Location_Info(const Rectangle& below_title, std::string_view title);

    // Shows the numbers as "%d, %d".
    void draw() const override;
    void set_values(Point values) { values_ = values; }

private:
    Point values_;
};

} // namespace quadrelle
