#include "canvas/shown_canvas.h"

#include "pixels/changed_area.h"

#include <utility>

namespace quadrelle {

Rectangle Shown_Canvas::Cells::change_to(const Tile& tile) {
    if (version == tile.version()) {
        return {};
    }
    version = tile.version();
    if (size == tile.size()) {
        return update_copy(tile.pixels(), size, pixels);
    }
    size = tile.size();
    pixels.assign(tile.pixels().begin(), tile.pixels().end());
    return {0, 0, size.width, size.height};
}

Shown_Canvas::Look Shown_Canvas::look_of(const Canvas_Picture& picture) {
    Look look{.tile = picture.tile == nullptr ? Size{} : picture.tile->size(),
              .pixel_size = picture.pixel_size,
              .origin = picture.origin,
              .grid_intensity = picture.grid_intensity,
              .checker = picture.checker,
              .surround = picture.surround,
              .around = picture.around == nullptr ? 0 : picture.around->version(),
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

Rectangle Shown_Canvas::changed_handles(const Canvas_Picture& picture) {
    const std::optional<Paste_Handles> before = std::exchange(handles_, picture.handles);
    if (before == picture.handles) {
        return {};
    }
    return bounds_of(before ? area_of(*before) : Rectangle{},
                     picture.handles ? area_of(*picture.handles) : Rectangle{});
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
    const Rectangle marked =
        bounds_of(bounds_of(std::exchange(feedback_, feedback), feedback), changed_handles(picture));
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
