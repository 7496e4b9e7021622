#pragma once

// Bytes that take less room while nobody looks at them.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quadrelle {

// Keeps short ones as they are.
class Compressed_Bytes {
public:
    Compressed_Bytes() = default;
    explicit Compressed_Bytes(std::vector<std::uint8_t> bytes);

    [[nodiscard]] std::vector<std::uint8_t> bytes() const;
    // Returns how many bytes are kept.
    [[nodiscard]] std::size_t kept_size() const { return kept_.capacity(); }

private:
    std::vector<std::uint8_t> kept_;
    std::size_t full_size_ = 0; // 0 where they are kept as they are
};

} // namespace quadrelle
