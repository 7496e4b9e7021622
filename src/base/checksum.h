#pragma once

// CRC-32, as PNG files have it: tells whether bytes are those of before.

#include <cstdint>
#include <span>

namespace quadrelle {

[[nodiscard]] std::uint32_t checksum(std::span<const std::uint8_t> bytes);

} // namespace quadrelle
