#pragma once

// Bytes that take less room while nobody looks at them.

#include "base/scratch_file.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace quadrelle {

// Keeps short ones as they are.
class Compressed_Bytes {
public:
    Compressed_Bytes() = default;
    explicit Compressed_Bytes(std::vector<std::uint8_t> bytes);

    // Empty when they were put aside and do not come back.
    [[nodiscard]] std::vector<std::uint8_t> bytes() const;
    // Lets the file keep them. False where it does not take them, or they are aside already.
    bool put_aside(const std::shared_ptr<Scratch_File>& file);
    // Returns how many bytes are kept in memory.
    [[nodiscard]] std::size_t kept_size() const { return kept_.capacity(); }

private:
    struct Aside {
        std::shared_ptr<Scratch_File> file; // null: they are in memory
        std::int64_t place = 0;
        std::size_t size = 0;
    };

    std::vector<std::uint8_t> kept_;
    Aside aside_;
    std::size_t full_size_ = 0; // 0 where they are kept as they are
};

} // namespace quadrelle
