#pragma once

// Numbers and texts packed into bytes one after another, the low byte of a number first.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

using Bytes = std::vector<std::uint8_t>;

void pack_byte(Bytes& bytes, std::uint8_t byte);
void pack_word(Bytes& bytes, std::uint32_t word);
void pack_bytes(Bytes& bytes, std::span<const std::uint8_t> more);
// The length comes before the text.
void pack_text(Bytes& bytes, std::string_view text);

// Takes them out again. Beyond the end everything is 0 or empty, and the reader has failed.
class Packed_Reader {
public:
    explicit Packed_Reader(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    [[nodiscard]] std::uint8_t byte();
    [[nodiscard]] std::uint32_t word();
    // A word of at most `most`; a larger one is a failure.
    [[nodiscard]] int number(int most);
    [[nodiscard]] std::span<const std::uint8_t> bytes(std::size_t count);
    [[nodiscard]] std::string text();

    [[nodiscard]] bool has_failed() const { return has_failed_; }
    [[nodiscard]] bool is_at_end() const { return rest_.empty(); }

private:
    std::span<const std::uint8_t> rest_;
    bool has_failed_ = false;
};

} // namespace quadrelle
