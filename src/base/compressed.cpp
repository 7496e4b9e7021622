#include "base/compressed.h"

#include <zlib.h>

#include <utility>

namespace quadrelle {

namespace {

constexpr std::size_t shortest = 4096;

} // namespace

Compressed_Bytes::Compressed_Bytes(std::vector<std::uint8_t> bytes) : kept_(std::move(bytes)) {
    if (kept_.size() >= shortest) {
        uLongf size = compressBound(static_cast<uLong>(kept_.size()));
        std::vector<std::uint8_t> smaller(size);
        if (compress2(smaller.data(), &size, kept_.data(), static_cast<uLong>(kept_.size()), Z_BEST_SPEED) ==
                Z_OK &&
            size < kept_.size()) {
            full_size_ = kept_.size();
            smaller.resize(size);
            kept_ = std::move(smaller);
        }
    }
    kept_.shrink_to_fit();
}

std::vector<std::uint8_t> Compressed_Bytes::bytes() const {
    if (full_size_ == 0) {
        return kept_;
    }
    std::vector<std::uint8_t> bytes(full_size_);
    auto size = static_cast<uLongf>(full_size_);
    uncompress(bytes.data(), &size, kept_.data(), static_cast<uLong>(kept_.size()));
    return bytes;
}

} // namespace quadrelle
