#include "selection/copy_buffer.h"

namespace quadrelle {

namespace {

int centred_start(int copy, int tile) {
    return copy < tile ? (tile - copy) / 2 : -((copy - tile) / 2);
}

} // namespace

void Copy_Buffer::add(const Floating_Paste& copy) {
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

Floating_Paste cloned(const Floating_Paste& copy, Clone_Style style, Size tile) {
    switch (style) {
    case Clone_Style::centred:
        return {copy.picture,
                {centred_start(copy.picture.width(), tile.width),
                 centred_start(copy.picture.height(), tile.height)}};
    case Clone_Style::top_left: return {copy.picture, {0, 0}};
    case Clone_Style::resized: {
        Floating_Paste paste{Tile(tile.width, tile.height), {0, 0}};
        copy.picture.resample_into(paste.picture);
        return paste;
    }
    case Clone_Style::original_location: break;
    }
    return copy;
}

} // namespace quadrelle
