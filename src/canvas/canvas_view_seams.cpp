// How the canvas shifts the tile's pixels for the seam tools, and back.

#include "canvas/canvas_view.h"
#include "selection/scroll.h"

#include <utility>

namespace quadrelle {

namespace {

// Always even: that of a half that is odd is one less.
int seam_shift_of(int extent) {
    const int half = extent / 2;
    return half - half % 2;
}

Tile_Point along(Seam seam, int shift) {
    return seam == Seam::horizontal ? Tile_Point{shift, 0} : Tile_Point{0, shift};
}

} // namespace

bool Canvas_View::toggle_seam_shift(Seam seam) {
    if (tile_ == nullptr) {
        return false;
    }
    if (seam_shift(seam) != no_seam_shift) {
        undo_seam_shift(seam);
        return true;
    }
    const int shift = seam_shift_of(seam == Seam::horizontal ? tile_->width() : tile_->height());
    shift_pixels(seam, shift);
    work_area_.bring_paste_back(along(seam, shift));
    seam_shift(seam) = shift;
    return true;
}

void Canvas_View::undo_seam_shifts() {
    undo_seam_shift(Seam::horizontal);
    undo_seam_shift(Seam::vertical);
}

void Canvas_View::restore_seam_shifts(Tile_Point shifts) {
    const Tile_Point now = seam_shifts();
    restore_seam_shift(Seam::horizontal, now.x, shifts.x);
    restore_seam_shift(Seam::vertical, now.y, shifts.y);
}

void Canvas_View::restore_seam_shift(Seam seam, int now, int shift) {
    if (shift != now) {
        shift_pixels(seam, shift - now);
        seam_shift(seam) = shift > 0 ? shift : no_seam_shift;
    }
}

// Backwards, not on: where half of the tile is odd, twice the shift would not lead around it.
void Canvas_View::undo_seam_shift(Seam seam) {
    const int shift = std::exchange(seam_shift(seam), no_seam_shift);
    if (shift > 0) {
        shift_pixels(seam, -shift);
        work_area_.bring_paste_back(along(seam, -shift));
    }
}

void Canvas_View::shift_pixels(Seam seam, int shift) {
    const Tile_Point offset = along(seam, shift);
    scroll_wrapped(*tile_, offset);
    scroll_wrapped(*history_, offset);
    work_area_.scroll(offset);
}

void Canvas_View::with_tile_in_place(const std::function<void()>& work) {
    const auto [horizontal, vertical] = seam_shifts();
    if (tile_ == nullptr || (horizontal == 0 && vertical == 0)) {
        work();
        return;
    }
    shift_pixels(Seam::horizontal, -horizontal);
    shift_pixels(Seam::vertical, -vertical);
    work();
    shift_pixels(Seam::horizontal, horizontal);
    shift_pixels(Seam::vertical, vertical);
}

} // namespace quadrelle
