#pragma once

// The current tile magnified in the viewport: where its cells lie, which pixel is under the pointer, zoom and
// pan. The tools that draw on it are driven by `Stroke`.

#include "base/geometry.h"
#include "base/input.h"
#include "canvas/brush_feedback.h"
#include "canvas/canvas_painter.h"
#include "canvas/canvas_settings.h"
#include "canvas/edge_pictures.h"
#include "canvas/paste_handles.h"
#include "canvas/shown_canvas.h"
#include "commands/command.h"
#include "selection/work_area.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace quadrelle {

class Opaque_Texture;

constexpr int smallest_pixel_size = 3;
constexpr int largest_pixel_size = 32;

// The directions in which a tile is shifted to bring its edges into the middle.
enum class Seam { horizontal, vertical };

enum class Zoom_Step : int { out = -1, in = 1 };

constexpr int no_seam_shift = -1;

// The pointer over the viewport, and the button of the stroke that it makes, if any; or whether the next
// stroke will be joined to the last one.
struct Hover {
    Point position;
    Mouse_Button button = Mouse_Button::none;
    bool joins_strokes = false;
};

class Canvas_View {
public:
    explicit Canvas_View(int pixel_size);
    ~Canvas_View();

    // Borrowed; null shows an empty canvas. The tile before, if shifted, is still needed to be put right.
    void set_tile(Tile* tile);
    [[nodiscard]] Tile* tile() const { return tile_; }

    // What is selected on the tile and floats over it. Stays when another tile of the same size comes.
    [[nodiscard]] Work_Area& work_area() { return work_area_; }
    [[nodiscard]] const Work_Area& work_area() const { return work_area_; }
    [[nodiscard]] bool shows_paste(const Tool_State& tools) const;
    // Returns the tile as the canvas shows it, with what floats in view; null without a tile. To be used
    // before anything changes.
    [[nodiscard]] const Tile* shown_tile(const Tool_State& tools);
    // Returns one pixel of that; there is a tile.
    [[nodiscard]] Color seen_pixel(Tile_Point pixel, const Tool_State& tools) const;

    // What the pen's history mode draws from: the tile as it was when it came into view, or when this was
    // called.
    void save_history();
    [[nodiscard]] const Tile* history() const { return history_.get(); }
    // To be called when that command turned, mirrored or scrolled the whole tile, so that each pixel is
    // remembered where it is now. Nothing happens for every other command.
    void transform_history(Command command);

    // Where the last stroke of a brush on this tile ended, for one whose corner lies half of `reach` beside
    // the pointer; none before the first, and once the tile was changed otherwise.
    void set_stroke_end(Tile_Point corner, Size reach) { stroke_end_ = {corner, reach, tile_->version()}; }
    [[nodiscard]] std::optional<Tile_Point> stroke_end(Size reach) const;

    // Shifts the tile by about half of its size, an even number of pixels, or gives it back as it was. The
    // pixels move in the tile itself: `undo_seam_shifts` comes before anything that keeps or leaves it.
    // Returns false without a tile.
    bool toggle_seam_shift(Seam seam);
    void undo_seam_shifts();
    [[nodiscard]] bool is_shifted() const {
        return horizontal_seam_shift_ != no_seam_shift || vertical_seam_shift_ != no_seam_shift;
    }
    // Returns how far the pixels stand right of and below where they really are.
    [[nodiscard]] Tile_Point seam_shifts() const {
        return {std::max(horizontal_seam_shift_, 0), std::max(vertical_seam_shift_, 0)};
    }
    // Makes the shifts what they were once, for a tile of the same size. What floats goes with the pixels,
    // also out of reach.
    void restore_seam_shifts(Tile_Point shifts);
    // Does the work on the tile as it really is; the work leaves its size and keeps it on view.
    void with_tile_in_place(const std::function<void()>& work);
    // Return the shift in pixels, or -1 when the tile is not shifted; 0 is a shift too, that of a very small
    // tile.
    [[nodiscard]] int horizontal_seam_shift() const { return horizontal_seam_shift_; }
    [[nodiscard]] int vertical_seam_shift() const { return vertical_seam_shift_; }

    // Returns false, with nothing changed, outside of the smallest and the largest size.
    bool set_pixel_size(int pixel_size);
    [[nodiscard]] int pixel_size() const { return pixel_size_; }
    // Changes the pixel size by one, about the tile's centre.
    bool zoom(Zoom_Step step);
    // A tile larger than the viewport shows its top-left corner.
    void centre();
    void scroll_origin(int dx, int dy);
    // The tile follows the pointer, and `pointer` too, until a button is released; `redraw` draws and
    // presents the window.
    void pan(Pointer_State& pointer, const std::function<void()>& redraw);

    // Both are in window pixels.
    [[nodiscard]] Point origin() const { return origin_; }
    [[nodiscard]] Size magnified_size() const;
    // The cell under a window position, truncated toward zero: the strip one cell wide just left of or above
    // the tile deliberately counts as its first column or row. Not limited to the tile.
    [[nodiscard]] int tile_column(int x) const { return (x - origin_.x) / pixel_size_; }
    [[nodiscard]] int tile_row(int y) const { return (y - origin_.y) / pixel_size_; }
    [[nodiscard]] Tile_Point tile_point(Point position) const {
        return {tile_column(position.x), tile_row(position.y)};
    }
    // The same, but just left of and above the tile come its column -1 and row -1.
    [[nodiscard]] Tile_Point cell_at(Point position) const;
    // The pixel that the tool in use acts on when the pointer is there: a brush lies around the pointer.
    [[nodiscard]] Tile_Point tool_point(Point position, const Tool_State& tools,
                                        const Canvas_Settings& settings) const;
    // The nearest cell boundary.
    [[nodiscard]] int nearest_column(int x) const { return tile_column(x + pixel_size_ / 2); }
    [[nodiscard]] int nearest_row(int y) const { return tile_row(y + pixel_size_ / 2); }
    // The corner of cells that is nearest.
    [[nodiscard]] Tile_Point corner_point(Point position) const {
        return {nearest_column(position.x), nearest_row(position.y)};
    }

    // The grid shows in the intensity of the settings, or not at all.
    void toggle_grid() { shows_grid_ = !shows_grid_; }
    void show_grid() { shows_grid_ = true; }

    // What lies around the tile in a map shows too, or not. The picture is larger than the tile by as much at
    // opposite sides; null for nothing.
    void toggle_surroundings() { shows_surroundings_ = !shows_surroundings_; }
    [[nodiscard]] bool shows_surroundings() const { return shows_surroundings_; }
    void set_surroundings(std::unique_ptr<const Tile> picture) { surroundings_ = std::move(picture); }

    // Where in the tile that is, to the window pixel.
    [[nodiscard]] Tile_Position exact_position(Point position) const;
    // The handle of what floats that is there, while the tool in use shows them.
    [[nodiscard]] Paste_Handle handle_at(Point position, const Tool_State& tools) const;

    // Where the brush, or the corner that is taken, shows, if the tool has one; nowhere for none.
    void set_hover(std::optional<Hover> hover) { hover_ = hover; }
    // Returns whether anything of it shows there.
    [[nodiscard]] bool shows_brush(const Tool_State& tools, const Canvas_Settings& settings) const;

    void draw(const Tool_State& tools, const Canvas_Settings& settings);

private:
    // The tile with what floats over it, and what that was made of.
    struct Tile_With_Paste {
        Tile picture;
        std::uint64_t tile = 0;
        std::uint64_t paste = 0;
        Tile_Point position;
    };

    struct Stroke_End {
        Tile_Point corner;
        Size reach;
        std::uint64_t tile_version;
    };

    void undo_seam_shift(Seam seam);
    void restore_seam_shift(Seam seam, int now, int shift);
    // The pixels of the tile and all that belongs to them, right or down, or back where negative.
    void shift_pixels(Seam seam, int shift);
    [[nodiscard]] int& seam_shift(Seam seam) {
        return seam == Seam::horizontal ? horizontal_seam_shift_ : vertical_seam_shift_;
    }
    [[nodiscard]] Canvas_Picture picture(const Tool_State& tools, const Canvas_Settings& settings) const;
    void show_selection(Canvas_Picture& picture, const Tool_State& tools) const;
    // In pixels of the viewport.
    [[nodiscard]] std::optional<Paste_Handles> paste_handles(const Tool_State& tools) const;
    // Writes every pixel of that part of the viewport.
    void paint(Canvas_Picture picture, const Brush_Feedback& feedback, const Rectangle& part,
               const Pixel_Rows& target);
    void check_painted(const Canvas_Picture& picture, const Brush_Feedback& feedback);
    // Where the corner of a cell lies, in pixels of the viewport.
    [[nodiscard]] Point in_viewport(Tile_Point corner) const;
    // Where the line from the last stroke to the brush there begins, from that on.
    [[nodiscard]] std::optional<Tile_Point> line_start(Tile_Point corner, const Tool_State& tools,
                                                       const Canvas_Settings& settings) const;
    [[nodiscard]] Brush_Feedback brush_feedback(const Hover& hover, const Tool_State& tools,
                                                const Canvas_Settings& settings) const;

    Tile* tile_ = nullptr;
    int pixel_size_;
    bool shows_grid_ = true;
    bool shows_surroundings_ = true;
    std::unique_ptr<const Tile> surroundings_;
    Point origin_{window_layout::canvas.x, window_layout::canvas.y};
    int horizontal_seam_shift_ = no_seam_shift;
    int vertical_seam_shift_ = no_seam_shift;
    mutable Edge_Pictures edges_;
    Work_Area work_area_;
    std::optional<Tile_With_Paste> with_paste_;
    std::unique_ptr<Tile> history_;
    std::optional<Stroke_End> stroke_end_;
    std::optional<Hover> hover_;
    Canvas_Painter painter_;
    Shown_Canvas shown_;
    std::unique_ptr<Opaque_Texture> texture_;
};

} // namespace quadrelle
