#pragma once

// A tile that stays as it is. All its copies are one and the same, however large it is.

#include "pixels/tile.h"

#include <memory>
#include <utility>

namespace quadrelle {

class Shared_Picture {
public:
    Shared_Picture(Tile tile) : tile_(std::make_shared<const Tile>(std::move(tile))) {}

    operator const Tile&() const { return *tile_; }
    const Tile* operator->() const { return tile_.get(); }

    [[nodiscard]] bool same_pixels(const Shared_Picture& other) const {
        return tile_ == other.tile_ || tile_->same_pixels(*other.tile_);
    }

private:
    std::shared_ptr<const Tile> tile_;
};

} // namespace quadrelle
