#pragma once

// Bytes that are put aside on the disk, so that they take no memory.

#include "base/file_handle.h"

#include <cstdint>
#include <optional>
#include <span>

namespace quadrelle {

// A file without a name, which goes with the object, or when the program ends, however that happens.
class Scratch_File {
public:
    static constexpr std::int64_t most_bytes = std::int64_t{1} << 30U;

    // Returns where the bytes lie; nothing when the disk does not take them, or there are too many by now.
    [[nodiscard]] std::optional<std::int64_t> put(std::span<const std::uint8_t> bytes);
    // Fills all of the buffer with what lies there; false when it does not come back.
    [[nodiscard]] bool get(std::int64_t place, std::span<std::uint8_t> buffer);

private:
    File_Handle file_;
    std::int64_t end_ = 0;
};

} // namespace quadrelle
