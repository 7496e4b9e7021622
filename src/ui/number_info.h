#pragma once

// A pane that shows one number.

#include "ui/pane.h"

#include <string>
#include <string_view>

namespace quadrelle {

class Number_Info : public Pane {
public:
    // `unit` follows the number.
    Number_Info(const Rectangle& below_title, std::string_view title, std::string_view unit = "");

    void draw() const override;
    void set_value(int value) { value_ = value; }

private:
    std::string unit_;
    int value_ = 0;
};

} // namespace quadrelle
