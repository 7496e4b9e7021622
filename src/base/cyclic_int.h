#pragma once

// A number that wraps around between two bounds.

#include <cstdint>

namespace quadrelle {

class Cyclic_Int {
public:
    // `low` must not be above `high`; the value must lie between them.
    constexpr Cyclic_Int(std::int32_t value, std::int32_t low, std::int32_t high)
        : value_(value), low_(low), high_(high) {}

    [[nodiscard]] constexpr std::int32_t value() const { return value_; }
    [[nodiscard]] constexpr std::int32_t low() const { return low_; }
    [[nodiscard]] constexpr std::int32_t high() const { return high_; }
    [[nodiscard]] constexpr bool allows(std::int32_t candidate) const {
        return candidate >= low_ && candidate <= high_;
    }

    // A candidate below the bounds becomes the high bound, one above them the low one. The candidate -1
    // stands for "no value" and is deliberately never set, so that a decrease stops at 0 instead of wrapping
    // around.
    constexpr void set(std::int64_t candidate) {
        if (candidate == -1) {
            return;
        }
        value_ = candidate < low_ ? high_ : candidate > high_ ? low_ : static_cast<std::int32_t>(candidate);
    }
    constexpr void increase() { set(std::int64_t{value_} + 1); }
    constexpr void decrease() { set(std::int64_t{value_} - 1); }

private:
    std::int32_t value_;
    std::int32_t low_;
    std::int32_t high_;
};

} // namespace quadrelle
