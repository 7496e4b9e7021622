#pragma once

// Whole steps of the wheel.

#include <algorithm>
#include <cmath>

namespace quadrelle {

// Touch pads turn the wheel by parts of a step: they add up, as long as they go one way.
class Wheel_Steps {
public:
    // Returns how many steps are complete, positive for up.
    [[nodiscard]] int take(float amount) {
        if (!std::isfinite(amount)) {
            return 0;
        }
        rest_ = (amount > 0) == (rest_ > 0) ? rest_ + amount : amount;
        const float steps = std::clamp(std::trunc(rest_), -most, most);
        rest_ -= std::trunc(rest_);
        return static_cast<int>(steps);
    }

private:
    static constexpr float most = 1000;

    float rest_ = 0;
};

} // namespace quadrelle
