#include "canvas/shown_canvas.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

Rectangle Shown_Canvas::Cells::change_to(const Tile& tile) {
    if (version == tile.version()) {
        return {};
    }
    const std::span<const Color> now = tile.pixels();
    Rectangle changed;
    if (size != tile.size()) {
        size = tile.size();
        pixels.assign(now.begin(), now.end());
        changed = {0, 0, size.width, size.height};
    }
    for (int y = 0; y < size.height; ++y) {
        const auto start = static_cast<std::ptrdiff_t>(y) * size.width;
        const auto shown = pixels.begin() + start;
        const auto row = now.begin() + start;
        const auto first = std::mismatch(shown, shown + size.width, row).first;
        if (first != shown + size.width) {
            const auto back =
                std::mismatch(std::reverse_iterator(shown + size.width), std::reverse_iterator(first),
                              std::reverse_iterator(row + size.width));
            const auto from = static_cast<int>(first - shown);
            const auto to = static_cast<int>(back.first.base() - shown);
            changed = bounds_of(changed, {from, y, to - from, 1});
            std::copy_n(row + from, to - from, first);
        }
    }
    version = tile.version();
    return changed;
}

Shown_Canvas::Look Shown_Canvas::look_of(const Canvas_Picture& picture) {
    Look look{.tile = picture.tile == nullptr ? Size{} : picture.tile->size(),
              .pixel_size = picture.pixel_size,
              .origin = picture.origin,
              .grid_intensity = picture.grid_intensity,
              .checker = picture.checker,
              .surround = picture.surround,
              .is_dimmed = picture.selection != nullptr,
              .outlines = {},
              .column_marker = picture.column_marker,
              .row_marker = picture.row_marker};
    for (const Selection_Outline& outline : picture.outlines) {
        look.outlines.push_back(outline.edges);
    }
    return look;
}

Rectangle Shown_Canvas::changed_paste(const Canvas_Picture& picture) {
    Paste paste;
    if (picture.paste != nullptr) {
        const Tile& tile = picture.paste->picture;
        paste = {tile.version(),
                 {picture.paste->position.x, picture.paste->position.y, tile.width(), tile.height()}};
    }
    const Paste before = std::exchange(paste_, paste);
    return before == paste ? Rectangle{} : bounds_of(before.area, paste.area);
}

// A cell's outline depends on its neighbours too.
Rectangle Shown_Canvas::changed_cells(const Canvas_Picture& picture) {
    Rectangle changed = bounds_of(tile_.change_to(*picture.tile), changed_paste(picture));
    masks_.resize(picture.outlines.size());
    for (std::size_t i = 0; i < masks_.size(); ++i) {
        const Rectangle mask = masks_[i].change_to(picture.outlines[i].selection->mask());
        changed = bounds_of(changed, mask.is_empty() ? mask : mask.inset(-1));
    }
    return changed;
}

Rectangle Shown_Canvas::change_to(const Canvas_Picture& picture, const Rectangle& feedback, Size viewport) {
    const Rectangle cells = picture.tile == nullptr ? Rectangle{} : changed_cells(picture);
    const Rectangle all{0, 0, viewport.width, viewport.height};
    const Rectangle marked = bounds_of(std::exchange(feedback_, feedback), feedback);
    Look look = look_of(picture);
    if (look != look_) {
        look_ = std::move(look);
        return all;
    }
    const int edge = picture.pixel_size;
    const Rectangle changed{picture.origin.x + cells.x * edge, picture.origin.y + cells.y * edge,
                            cells.width * edge, cells.height * edge};
    return intersection(bounds_of(changed, marked), all);
}

} // namespace quadrelle
