#include "base/fingerprint.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace quadrelle {

namespace {

// Odd numbers without a pattern in their bits.
constexpr std::uint64_t first_factor = 0x9e3779b97f4a7c15U;
constexpr std::uint64_t second_factor = 0xc2b2ae3d27d4eb4fU;

std::uint64_t word_at(const std::uint8_t* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

std::uint64_t mixed(std::uint64_t sum, std::uint64_t word) {
    return std::rotl(sum ^ (word * first_factor), 31) * second_factor;
}

} // namespace

void Fingerprint::add_stripe(const std::uint8_t* bytes) {
    for (std::size_t i = 0; i < lane_count; ++i) {
        lanes_[i] = mixed(lanes_[i], word_at(bytes + i * lane_bytes));
    }
}

void Fingerprint::add(std::span<const std::uint8_t> bytes) {
    length_ += bytes.size();
    if (rest_size_ > 0) {
        const std::size_t taken = std::min(bytes.size(), stripe_bytes - rest_size_);
        std::copy_n(bytes.begin(), taken, rest_.begin() + static_cast<std::ptrdiff_t>(rest_size_));
        rest_size_ += taken;
        bytes = bytes.subspan(taken);
        if (rest_size_ == stripe_bytes) {
            add_stripe(rest_.data());
            rest_size_ = 0;
        }
    }
    while (bytes.size() >= stripe_bytes) {
        add_stripe(bytes.data());
        bytes = bytes.subspan(stripe_bytes);
    }
    if (!bytes.empty()) {
        std::ranges::copy(bytes, rest_.begin());
        rest_size_ = bytes.size();
    }
}

std::uint64_t Fingerprint::value() const {
    std::uint64_t sum = length_;
    for (const std::uint64_t lane : lanes_) {
        sum = mixed(sum, lane);
    }
    for (std::size_t i = 0; i < rest_size_; ++i) {
        sum = mixed(sum, rest_[i] + 1U);
    }
    sum ^= sum >> 29U;
    sum *= first_factor;
    return sum ^ (sum >> 32U);
}

std::uint64_t fingerprint_of(std::span<const std::uint8_t> bytes) {
    Fingerprint sum;
    sum.add(bytes);
    return sum.value();
}

} // namespace quadrelle
