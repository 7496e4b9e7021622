#pragma once

// Numbers kept inside bounds, and their way back to a channel's byte.

#include <algorithm>
#include <cstdint>

namespace quadrelle {

// Clamps to 0 to 255.
[[nodiscard]] constexpr std::uint8_t clamped_channel(int number) {
    return static_cast<std::uint8_t>(std::clamp(number, 0, 255));
}

// Clamps to 0 to 255 and truncates; what is not a number gives 0.
[[nodiscard]] constexpr std::uint8_t truncated_channel(double number) {
    if (!(number > 0.0)) {
        return 0;
    }
    return number < 255.0 ? static_cast<std::uint8_t>(number) : std::uint8_t{255};
}

// Every assignment and every addition clamps to low .. high; what is not a number passes unchanged.
class Bounded_Value {
public:
    constexpr Bounded_Value(double low, double high, double value = 0.0)
        : value_(clamped(value, low, high)), low_(low), high_(high) {}

    constexpr Bounded_Value& operator=(double value) {
        value_ = clamped(value, low_, high_);
        return *this;
    }
    constexpr Bounded_Value& operator+=(double amount) { return *this = value_ + amount; }
    constexpr Bounded_Value& operator-=(double amount) { return *this = value_ - amount; }
    constexpr bool operator==(const Bounded_Value&) const = default;

    [[nodiscard]] constexpr double value() const { return value_; }
    [[nodiscard]] constexpr double low() const { return low_; }
    [[nodiscard]] constexpr double high() const { return high_; }
    [[nodiscard]] constexpr std::uint8_t channel() const { return truncated_channel(value_); }

private:
    static constexpr double clamped(double value, double low, double high) {
        if (low > value) {
            return low;
        }
        return value > high ? high : value;
    }

    double value_;
    double low_;
    double high_;
};

} // namespace quadrelle
