#include "canvas/canvas_view.h"

#include "base/fatal.h"
#include "canvas/paste_in_view.h"
#include "canvas/stroke_table.h"
#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/image.h"
#include "screen/opaque_texture.h"
#include "selection/transform_table.h"
#include "selection/transforms.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace quadrelle {

namespace {

// Along one axis, in window pixels.
int centred_start(int viewport_start, int viewport_extent, int extent) {
    return extent < viewport_extent ? viewport_start + (viewport_extent - extent) / 2 : viewport_start;
}

// In the viewport, of a brush around that position in the window.
Point centred_corner(Point position, Size brush, int pixel_size) {
    return {position.x - window_layout::canvas.x - brush.width * pixel_size / 2,
            position.y - window_layout::canvas.y - brush.height * pixel_size / 2};
}

} // namespace

Canvas_View::Canvas_View(int pixel_size)
    : pixel_size_(std::clamp(pixel_size, smallest_pixel_size, largest_pixel_size)),
      texture_(
          std::make_unique<Opaque_Texture>(Size{window_layout::canvas.width, window_layout::canvas.height})) {
}

Canvas_View::~Canvas_View() = default;

void Canvas_View::set_tile(Tile* tile) {
    undo_seam_shifts();
    const bool is_another = tile != tile_ || (tile != nullptr && (!history_ || !history_->same_size(*tile)));
    tile_ = tile;
    if (is_another) {
        save_history();
        work_area_.leave_tile();
        stroke_end_.reset();
    }
    if (tile_ != nullptr && work_area_.selection().size() != tile_->size()) {
        work_area_.resize(tile_->size());
    }
}

std::optional<Tile_Point> Canvas_View::stroke_end(Size reach) const {
    if (!stroke_end_ || stroke_end_->tile_version != tile_->version()) {
        return std::nullopt;
    }
    return Tile_Point{stroke_end_->corner.x + (stroke_end_->reach.width - reach.width) / 2,
                      stroke_end_->corner.y + (stroke_end_->reach.height - reach.height) / 2};
}

void Canvas_View::save_history() {
    history_ = tile_ == nullptr ? nullptr : std::make_unique<Tile>(*tile_);
}

void Canvas_View::transform_history(Command command) {
    if (find_transform(command) != nullptr) {
        static_cast<void>(transform_tile(history_.get(), command));
    }
}

bool Canvas_View::shows_paste(const Tool_State& tools) const {
    return paste_in_view(work_area_, tools) != nullptr;
}

Color Canvas_View::seen_pixel(Tile_Point pixel, const Tool_State& tools) const {
    return quadrelle::seen_pixel(*tile_, pixel, paste_in_view(work_area_, tools));
}

const Tile* Canvas_View::shown_tile(const Tool_State& tools) {
    if (tile_ == nullptr || !shows_paste(tools)) {
        with_paste_.reset();
        return tile_;
    }
    const Floating_Paste& paste = *work_area_.paste();
    const bool is_known = with_paste_ && with_paste_->tile == tile_->version() &&
                          with_paste_->paste == paste.picture->version() &&
                          with_paste_->position == paste.position;
    if (!is_known) {
        with_paste_.emplace(
            Tile_With_Paste{*tile_, tile_->version(), paste.picture->version(), paste.position});
        Drawing_Target target(with_paste_->picture);
        paste.plot(target);
    }
    return &with_paste_->picture;
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
    origin_ = {centred_start(window_layout::canvas.x, window_layout::canvas.width, size.width),
               centred_start(window_layout::canvas.y, window_layout::canvas.height, size.height)};
}

void Canvas_View::scroll_origin(int dx, int dy) {
    origin_.x += dx;
    origin_.y += dy;
}

void Canvas_View::pan(Pointer_State& pointer, const std::function<void()>& redraw) {
    const Point start = origin_;
    bool has_moved = false;
    float dx = 0;
    float dy = 0;
    follow_pointer("pan", redraw, [&](const Input_Event& motion) {
        pointer = {motion.pointer.x, motion.pointer.y, pointer.button};
        // The first motion only tells where the pointer was.
        if (std::exchange(has_moved, true)) {
            dx += motion.moved.x;
            dy += motion.moved.y;
            origin_ = {start.x + static_cast<int>(dx), start.y + static_cast<int>(dy)};
        }
    });
}

Canvas_Picture Canvas_View::picture(const Tool_State& tools, const Canvas_Settings& settings) const {
    Canvas_Picture picture;
    picture.tile = tile_;
    picture.pixel_size = pixel_size_;
    picture.origin = in_viewport({0, 0});
    picture.grid_intensity = shows_grid_ ? settings.grid_intensity : 0;
    picture.checker = settings.checker;
    picture.surround = standard_color(Standard_Color::dark_frame);
    picture.around = tile_ == nullptr ? nullptr : surroundings_.get();
    const Cell_Edges* const seam = edges_.of(Edge_Family::seam, pixel_size_);
    if (horizontal_seam_shift_ != no_seam_shift && seam != nullptr) {
        picture.column_marker = &seam->vertical.front();
    }
    if (vertical_seam_shift_ != no_seam_shift && seam != nullptr) {
        picture.row_marker = &seam->horizontal.front();
    }
    show_selection(picture, tools);
    const bool is_in_stroke = hover_ && hover_->button != Mouse_Button::none;
    picture.handles = is_in_stroke ? std::nullopt : paste_handles(tools);
    return picture;
}

std::optional<Paste_Handles> Canvas_View::paste_handles(const Tool_State& tools) const {
    const Rectangle viewport{0, 0, window_layout::canvas.width, window_layout::canvas.height};
    if (tools.tool != Tool::selection || !shows_paste(tools)) {
        return std::nullopt;
    }
    const Floating_Paste& paste = *work_area_.paste();
    const Point corner = in_viewport(paste.position);
    const Rectangle area{corner.x, corner.y, paste.picture->width() * pixel_size_,
                         paste.picture->height() * pixel_size_};
    if (intersection(area, viewport).is_empty()) {
        return std::nullopt;
    }
    Paste_Handles handles = handles_around(area, {viewport.width, viewport.height});
    if (hover_) {
        handles.lit = quadrelle::handle_at(handles, {hover_->position.x - window_layout::canvas.x,
                                                     hover_->position.y - window_layout::canvas.y});
    }
    return handles;
}

Paste_Handle Canvas_View::handle_at(Point position, const Tool_State& tools) const {
    const std::optional<Paste_Handles> handles = paste_handles(tools);
    const Point point{position.x - window_layout::canvas.x, position.y - window_layout::canvas.y};
    return handles ? quadrelle::handle_at(*handles, point) : Paste_Handle::none;
}

void Canvas_View::show_selection(Canvas_Picture& picture, const Tool_State& tools) const {
    const auto outline = [&](const Selection& selection, Edge_Family family) {
        picture.outlines.push_back({&selection, edges_.of(family, pixel_size_)});
    };
    if (work_area_.has_selection()) {
        picture.selection = &work_area_.selection();
        outline(work_area_.selection(), Edge_Family::selection);
    } else if (shows_paste(tools)) {
        picture.paste = &*work_area_.paste();
        outline(work_area_.paste_area(), Edge_Family::paste);
    }
    if (work_area_.candidate()) {
        outline(*work_area_.candidate(), Edge_Family::candidate);
    }
}

Tile_Point Canvas_View::tool_point(Point position, const Tool_State& tools,
                                   const Canvas_Settings& settings) const {
    const Point offset = pointer_offset(tools, settings, pixel_size_);
    return tile_point({position.x - offset.x, position.y - offset.y});
}

Tile_Point Canvas_View::cell_at(Point position) const {
    const auto rounded_down = [this](int distance) {
        return distance / pixel_size_ - (distance % pixel_size_ < 0 ? 1 : 0);
    };
    return {rounded_down(position.x - origin_.x), rounded_down(position.y - origin_.y)};
}

Tile_Position Canvas_View::exact_position(Point position) const {
    return {static_cast<double>(position.x - origin_.x) / pixel_size_,
            static_cast<double>(position.y - origin_.y) / pixel_size_};
}

Point Canvas_View::in_viewport(Tile_Point corner) const {
    return {origin_.x - window_layout::canvas.x + corner.x * pixel_size_,
            origin_.y - window_layout::canvas.y + corner.y * pixel_size_};
}

// The preview lies on the pixels that would be painted; so does an outline that is blocky or of a brush with
// fixed places, as the first one of a flood fill. Any other follows the pointer.
Brush_Feedback Canvas_View::brush_feedback(const Hover& hover, const Tool_State& tools,
                                           const Canvas_Settings& settings) const {
    const Brush& brush = tools.brush();
    const Size tile = magnified_size();
    const Point start = in_viewport({0, 0});
    const Tile_Point corner = tools.brush_corner(tool_point(hover.position, tools, settings));
    Brush_Feedback feedback{.brush = &brush,
                            .color = tools.brush_color(hover.button),
                            .tile = {start.x, start.y, tile.width, tile.height},
                            .selection = work_area_.has_selection() ? &work_area_.selection() : nullptr,
                            .checker = settings.checker};
    if (tools.pen_mode() == Pen_Mode::pattern) {
        feedback.wallpaper = corner;
    }
    if (shows_brush_preview(tools, settings, hover.button)) {
        feedback.preview = in_viewport(corner);
    }
    if (hover.joins_strokes) {
        feedback.line_start = line_start(corner, tools, settings);
    }
    // A line shows also where the brush by itself is left out, as it is of one pixel only.
    const bool shows_line =
        feedback.line_start && !feedback.preview && settings.brush_outline != Brush_Outline::off;
    if (shows_brush_outline(tools, settings) || shows_line) {
        const bool is_on_cells = settings.is_outline_blocky || tools.pen_mode() != Pen_Mode::brush ||
                                 tools.fills_with_brush() || shows_line;
        feedback.outline =
            is_on_cells ? in_viewport(corner) : centred_corner(hover.position, brush.size(), pixel_size_);
    }
    const Stroke_Row* const stroke = find_stroke(tools.canvas_action());
    if (stroke != nullptr && stroke->points == Stroke_Points::corners) {
        feedback.taken_corner = in_viewport(corner_point(hover.position));
    }
    return feedback;
}

// Not with tools that do not join their strokes, nor where the brush keeps to places of its own.
std::optional<Tile_Point> Canvas_View::line_start(Tile_Point corner, const Tool_State& tools,
                                                  const Canvas_Settings& settings) const {
    const Stroke_Row* const stroke = find_stroke(tools.canvas_action());
    const std::optional<Tile_Point> end = stroke_end(brush_reach(tools, settings));
    if (stroke == nullptr || !stroke->joins_strokes || !end || tools.pen_mode() != Pen_Mode::brush) {
        return std::nullopt;
    }
    return Tile_Point{end->x - corner.x, end->y - corner.y};
}

bool Canvas_View::shows_brush(const Tool_State& tools, const Canvas_Settings& settings) const {
    return hover_ && tile_ != nullptr && tools.uses_brush() &&
           !feedback_area(brush_feedback(*hover_, tools, settings), pixel_size_).is_empty();
}

// Painting a part is painting a smaller viewport that stands elsewhere.
void Canvas_View::paint(Canvas_Picture picture, const Brush_Feedback& feedback, const Rectangle& part,
                        const Pixel_Rows& target) {
    picture.origin = {picture.origin.x - part.x, picture.origin.y - part.y};
    if (picture.handles) {
        picture.handles = seen_from({part.x, part.y}, *picture.handles);
    }
    painter_.paint(picture, target);
    paint_brush_feedback(seen_from({part.x, part.y}, feedback), pixel_size_, target);
}

void Canvas_View::draw(const Tool_State& tools, const Canvas_Settings& settings) {
    const Canvas_Picture now = picture(tools, settings);
    const Brush_Feedback feedback =
        hover_ && tile_ != nullptr ? brush_feedback(*hover_, tools, settings) : Brush_Feedback{};
    const Rectangle part = shown_.change_to(now, feedback_area(feedback, pixel_size_), texture_->size());
    if (!part.is_empty()) {
        texture_->update_part(part, [&](const Pixel_Rows& target) { paint(now, feedback, part, target); });
    }
    check_painted(now, feedback);
    texture_->draw_at({window_layout::canvas.x, window_layout::canvas.y});
}

#ifdef NDEBUG
void Canvas_View::check_painted(const Canvas_Picture& /*picture*/, const Brush_Feedback& /*feedback*/) {}
#else
// Painted from nothing it would look the same.
void Canvas_View::check_painted(const Canvas_Picture& picture, const Brush_Feedback& feedback) {
    const Size size = texture_->size();
    static std::vector<Color> anew(static_cast<std::size_t>(size.width) *
                                   static_cast<std::size_t>(size.height));
    paint(picture, feedback, {0, 0, size.width, size.height},
          {anew.data(), size.width * static_cast<std::ptrdiff_t>(sizeof(Color)), size});
    const std::vector<Color>& shown = texture_->image().pixels;
    if (std::memcmp(anew.data(), shown.data(), shown.size() * sizeof(Color)) != 0) {
        fatal("The canvas is not what it would be if it were painted from nothing");
    }
}
#endif

} // namespace quadrelle
