#include "tools/brush_pad.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

constexpr Color empty(0, 0, 0, 0);
constexpr Color brush_mark(255, 255, 255);
constexpr Color ring_mark(255, 0, 0);

// No brush is laid with its corner in the last columns and rows, even where a narrow one would fit.
constexpr int search_margin = 2;

Tile outline_of(const Brush& brush) {
    Tile outline(brush.size().width + 2, brush.size().height + 2);
    outline.fill(empty);
    const auto for_each_set = [&](auto mark) {
        for (int y = 0; y < brush.size().height; ++y) {
            for (int x = 0; x < brush.size().width; ++x) {
                if (brush.pixel(x, y)) {
                    mark(x + 1, y + 1);
                }
            }
        }
    };
    for_each_set([&](int x, int y) { outline.set_pixel(x, y, brush_mark); });
    for_each_set([&](int x, int y) { outline.replace_near(x, y, empty, ring_mark); });
    return outline;
}

std::vector<Tile_Point> taken_cells(const Tile& outline) {
    std::vector<Tile_Point> cells;
    for (int y = 0; y < outline.height(); ++y) {
        for (int x = 0; x < outline.width(); ++x) {
            if (!outline.is_empty_at(x, y)) {
                cells.push_back({x, y});
            }
        }
    }
    return cells;
}

bool paints_something(const Brush& brush) {
    for (int y = 0; y < brush.size().height; ++y) {
        for (int x = 0; x < brush.size().width; ++x) {
            if (brush.pixel(x, y)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

Pad_Brush::Pad_Brush(const Tile& brush_picture, const Tile& brush_mask)
    : picture(brush_picture), mask(brush_mask), outline(outline_of(stamp_brush(picture, mask))),
      brush(stamp_brush(picture, mask)) {}

Brush_Pad::Brush_Pad() : board_(board_size.width, board_size.height) {
    board_.fill(empty);
}

void Brush_Pad::choose(const Pad_Brush* brush) {
    current_ = brush;
    ++revision_;
}

bool Brush_Pad::make_temporary(const Tile& picture, const Tile& mask) {
    if (!picture.same_size(mask) || picture.pixel_count() == 0) {
        return false;
    }
    auto brush = std::make_unique<Pad_Brush>(picture, mask);
    if (!paints_something(brush->brush)) {
        return false;
    }
    temporary_ = std::move(brush);
    choose(temporary_.get());
    return true;
}

// The lowest one, or 0 when all are taken.
std::uint8_t Brush_Pad::free_identifier() const {
    const auto free = std::find(used_.begin() + 1, used_.end(), false);
    return free == used_.end() ? std::uint8_t{0} : static_cast<std::uint8_t>(free - used_.begin());
}

std::optional<Tile_Point> Brush_Pad::find_place(const Tile& outline) const {
    const std::vector<Tile_Point> cells = taken_cells(outline);
    for (int y = 0; y < board_.height() - search_margin; ++y) {
        for (int x = 0; x < board_.width() - search_margin; ++x) {
            const bool fits = std::ranges::all_of(cells, [&](Tile_Point cell) {
                return !board_.is_outside(x + cell.x, y + cell.y) &&
                       board_.alpha_at(x + cell.x, y + cell.y) == 0;
            });
            if (fits) {
                return Tile_Point{x, y};
            }
        }
    }
    return std::nullopt;
}

bool Brush_Pad::move_to_pad() {
    const std::uint8_t id = free_identifier();
    if (!temporary_ || id == 0) {
        return false;
    }
    const std::optional<Tile_Point> place = find_place(temporary_->outline);
    if (!place) {
        return false;
    }
    temporary_->id = id;
    temporary_->position = *place;
    used_.at(id) = true;
    for (const Tile_Point cell : taken_cells(temporary_->outline)) {
        board_.set_pixel(place->x + cell.x, place->y + cell.y, Color(0, 0, 0, id));
    }
    brushes_.push_back(std::move(temporary_));
    changed_ = true;
    choose(brushes_.back().get());
    return true;
}

bool Brush_Pad::delete_current() {
    if (current_ == nullptr) {
        return false;
    }
    if (current_ == temporary_.get()) {
        temporary_.reset();
        choose(nullptr);
        return true;
    }
    used_.at(current_->id) = false;
    board_.replace_alpha(current_->id, 0);
    std::erase_if(brushes_, [this](const auto& brush) { return brush.get() == current_; });
    changed_ = true;
    choose(brushes_.empty() ? nullptr : brushes_.front().get());
    return true;
}

std::uint8_t Brush_Pad::identifier_at(Tile_Point cell) const {
    return board_.alpha_at(cell.x, cell.y);
}

bool Brush_Pad::click(Tile_Point cell) {
    const std::uint8_t id = identifier_at(cell);
    const auto brush = std::ranges::find_if(brushes_, [id](const auto& each) { return each->id == id; });
    if (id == 0 || brush == brushes_.end()) {
        return false;
    }
    choose(brush->get());
    return true;
}

} // namespace quadrelle
