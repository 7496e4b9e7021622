#include "selection/copy_buffer.h"

#include <utility>

namespace quadrelle {

namespace {

int centred_start(int copy, int tile) {
    return copy < tile ? (tile - copy) / 2 : -((copy - tile) / 2);
}

} // namespace

void Copy_Buffer::add(const Floating_Paste& copy) {
    std::erase_if(copies_,
                  [&copy](const Floating_Paste& kept) { return kept.picture.same_pixels(copy.picture); });
    copies_.push_front(copy);
    current_ = 0;
    if (copies_.size() > capacity) {
        copies_.pop_back();
    }
}

const Floating_Paste* Copy_Buffer::current() const {
    return copies_.empty() ? nullptr : &copies_[current_];
}

void Copy_Buffer::choose(std::size_t index) {
    if (index < copies_.size()) {
        current_ = index;
    }
}

void Copy_Buffer::remove(std::size_t index) {
    if (index >= copies_.size()) {
        return;
    }
    copies_.erase(copies_.begin() + static_cast<std::ptrdiff_t>(index));
    const bool is_last_gone = current_ == copies_.size() && current_ > 0;
    current_ -= current_ > index || is_last_gone ? 1U : 0U;
}

Floating_Paste cloned(const Floating_Paste& copy, Clone_Style style, Size tile) {
    switch (style) {
    case Clone_Style::centred:
        return {copy.picture,
                {centred_start(copy.picture->width(), tile.width),
                 centred_start(copy.picture->height(), tile.height)}};
    case Clone_Style::top_left: return {copy.picture, {0, 0}};
    case Clone_Style::resized: {
        Tile picture(tile.width, tile.height);
        copy.picture->resample_into(picture);
        // Which makes every pixel opaque.
        for (int y = 0; y < tile.height; ++y) {
            for (int x = 0; x < tile.width; ++x) {
                Color pixel = picture.get_pixel(x, y);
                pixel.a = copy.picture->alpha_at(x * copy.picture->width() / tile.width,
                                                 y * copy.picture->height() / tile.height);
                picture.set_pixel(x, y, pixel);
            }
        }
        return {std::move(picture), {0, 0}};
    }
    case Clone_Style::original_location: break;
    }
    return copy;
}

Floating_Paste in_view(const Floating_Paste& paste, Size tile) {
    const bool is_beside = paste.position.x >= tile.width || paste.position.y >= tile.height ||
                           paste.position.x + paste.picture->width() <= 0 ||
                           paste.position.y + paste.picture->height() <= 0;
    return is_beside ? cloned(paste, Clone_Style::centred, tile) : paste;
}

} // namespace quadrelle
