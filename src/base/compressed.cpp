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
    std::vector<std::uint8_t> found(aside_.size);
    if (aside_.file && !aside_.file->get(aside_.place, found)) {
        return {};
    }
    const std::vector<std::uint8_t>& kept = aside_.file ? found : kept_;
    if (full_size_ == 0) {
        return kept;
    }
    std::vector<std::uint8_t> bytes(full_size_);
    auto size = static_cast<uLongf>(full_size_);
    uncompress(bytes.data(), &size, kept.data(), static_cast<uLong>(kept.size()));
    return bytes;
}

bool Compressed_Bytes::put_aside(const std::shared_ptr<Scratch_File>& file) {
    const std::optional<std::int64_t> place = aside_.file ? std::nullopt : file->put(kept_);
    if (!place) {
        return false;
    }
    aside_ = {file, *place, kept_.size()};
    kept_ = std::vector<std::uint8_t>();
    return true;
}

} // namespace quadrelle
