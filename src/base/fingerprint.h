#pragma once

// Tells contents of files apart. No protection against somebody who wants two of them to be taken for one.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace quadrelle {

// The same for the same bytes, in however many parts they come.
class Fingerprint {
public:
    void add(std::span<const std::uint8_t> bytes);
    [[nodiscard]] std::uint64_t value() const;

private:
    static constexpr std::size_t lane_count = 4;
    static constexpr std::size_t lane_bytes = 8;
    static constexpr std::size_t stripe_bytes = lane_count * lane_bytes;

    void add_stripe(const std::uint8_t* bytes);

    // Several, because each step of one has to wait for the one before it.
    std::array<std::uint64_t, lane_count> lanes_{1, 2, 3, 4};
    std::array<std::uint8_t, stripe_bytes> rest_{};
    std::size_t rest_size_ = 0;
    std::uint64_t length_ = 0;
};

[[nodiscard]] std::uint64_t fingerprint_of(std::span<const std::uint8_t> bytes);

} // namespace quadrelle
