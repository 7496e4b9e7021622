#include "base/fingerprint.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace quadrelle {

TEST(Fingerprint, same_for_all_parts_of_the_same_bytes_and_another_for_all_others) {
    std::vector<std::uint8_t> bytes(75);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i * 37);
    }
    std::set<std::uint64_t> sums;
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        const std::span part = std::span(bytes).first(length);
        sums.insert(fingerprint_of(part));
        for (std::size_t cut = 0; cut <= length; ++cut) {
            Fingerprint sum;
            sum.add(part.first(cut));
            sum.add(part.subspan(cut));
            ASSERT_EQ(sum.value(), fingerprint_of(part)) << length << " cut at " << cut;
        }
    }
    for (std::size_t bit = 0; bit < bytes.size() * 8; ++bit) {
        bytes[bit / 8] ^= static_cast<std::uint8_t>(1U << bit % 8);
        sums.insert(fingerprint_of(bytes));
        bytes[bit / 8] ^= static_cast<std::uint8_t>(1U << bit % 8);
    }
    EXPECT_EQ(sums.size(), bytes.size() * 9 + 1);
}

} // namespace quadrelle
