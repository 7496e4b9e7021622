#include "app/canvas_view.h"

#include "app/events.h"
#include "app/opaque_texture.h"
#include "app/options.h"
#include "app/renderer.h"
#include "color/standard_colors.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

// Along one axis, in window pixels.
int centred_start(int viewport_start, int viewport_extent, int extent) {
    return extent < viewport_extent ? viewport_start + (viewport_extent - extent) / 2 : viewport_start;
}

Canvas_Picture picture_of(const Canvas_View& view) {
    Canvas_Picture picture;
    picture.tile = view.tile();
    picture.pixel_size = view.pixel_size();
    picture.origin = {view.origin().x - canvas_viewport.x, view.origin().y - canvas_viewport.y};
    picture.grid_intensity = options->value(Option::grid_intensity);
    picture.checker = {std::max(options->value(Option::alpha_grid_width), 1),
                       std::max(options->value(Option::alpha_grid_height), 1)};
    picture.surround = standard_color(Standard_Color::dark_frame);
    return picture;
}

bool ends_pan(const SDL_Event& event) {
    const bool is_release =
        event.type == SDL_EVENT_MOUSE_BUTTON_UP && pointer_of(event.button).button != Mouse_Button::none;
    return is_release || event.type == SDL_EVENT_QUIT;
}

} // namespace

Canvas_View::Canvas_View(int pixel_size)
    : pixel_size_(std::clamp(pixel_size, smallest_pixel_size, largest_pixel_size)),
      texture_(std::make_unique<Opaque_Texture>(Size{canvas_viewport.width, canvas_viewport.height},
                                                active_renderer())) {}

Canvas_View::~Canvas_View() = default;

void Canvas_View::set_tile(Tile* tile) {
    tile_ = tile;
}

Size Canvas_View::magnified_size() const {
    return tile_ == nullptr ? Size{} : Size{tile_->width() * pixel_size_, tile_->height() * pixel_size_};
}

bool Canvas_View::set_pixel_size(int pixel_size) {
    if (pixel_size < smallest_pixel_size || pixel_size > largest_pixel_size) {
        return false;
    }
    pixel_size_ = pixel_size;
    return true;
}

bool Canvas_View::zoom(Zoom_Step step) {
    const Size before = magnified_size();
    if (!set_pixel_size(pixel_size_ + static_cast<int>(step))) {
        return false;
    }
    const Size after = magnified_size();
    scroll_origin((before.width - after.width) / 2, (before.height - after.height) / 2);
    return true;
}

void Canvas_View::centre() {
    const Size size = magnified_size();
    origin_ = {centred_start(canvas_viewport.x, canvas_viewport.width, size.width),
               centred_start(canvas_viewport.y, canvas_viewport.height, size.height)};
}

void Canvas_View::scroll_origin(int dx, int dy) {
    origin_.x += dx;
    origin_.y += dy;
}

void Canvas_View::pan(const std::function<void()>& redraw) {
    const Point start = origin_;
    bool has_moved = false;
    float dx = 0;
    float dy = 0;
    run_modal({"pan", redraw, [&](const SDL_Event& event) {
                   // The first motion only tells where the pointer was.
                   if (event.type == SDL_EVENT_MOUSE_MOTION && std::exchange(has_moved, true)) {
                       dx += event.motion.xrel;
                       dy += event.motion.yrel;
                       origin_ = {start.x + static_cast<int>(dx), start.y + static_cast<int>(dy)};
                   }
                   return ends_pan(event) ? Loop_Step::end : Loop_Step::go_on;
               }});
}

void Canvas_View::draw() {
    texture_->update([this](const Pixel_Rows& rows) { painter_.paint(picture_of(*this), rows); });
    texture_->draw_at({canvas_viewport.x, canvas_viewport.y});
}

} // namespace quadrelle
