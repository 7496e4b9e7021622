#include "tools/brush.h"

#include "tileset/tile.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace quadrelle {

namespace brush_masks {

template <typename Holds>
constexpr bool hold_for_all(Holds holds) {
    for (const Sheet& sheet : table) {
        for (int size_index = 0; size_index < brush_size_count; ++size_index) {
            if (!holds(sheet.id, size_index)) {
                return false;
            }
        }
    }
    return true;
}

constexpr int set_pixels(Brush_Shape shape, int size_index) {
    int count = 0;
    for (int y = 0; y <= size_index; ++y) {
        for (int x = 0; x <= size_index; ++x) {
            count += brush_mask_at(shape, size_index, x, y) ? 1 : 0;
        }
    }
    return count;
}

constexpr bool follow_their_ids() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (static_cast<std::size_t>(table[i].id) != i) {
            return false;
        }
    }
    return true;
}

constexpr int marks_in(const Sheet& sheet, char mark) {
    int count = 0;
    for (const std::string_view row : sheet.rows) {
        for (const char other : row) {
            count += other == mark ? 1 : 0;
        }
    }
    return count;
}

// Every row has its length and its five separators, and nothing is set below a mask.
constexpr bool are_laid_out() {
    for (const Sheet& sheet : table) {
        int pixels = 0;
        for (int size_index = 0; size_index < brush_size_count; ++size_index) {
            pixels += set_pixels(sheet.id, size_index);
        }
        for (const std::string_view row : sheet.rows) {
            if (row.size() != row_length) {
                return false;
            }
            for (std::size_t i = 1; i < columns.size(); ++i) {
                if (row[columns.at(i) - 1] != '|') {
                    return false;
                }
            }
        }
        if (marks_in(sheet, '#') != pixels || marks_in(sheet, '|') != 5 * static_cast<int>(row_count)) {
            return false;
        }
    }
    return true;
}

// A half turn changes no mask.
constexpr bool is_turnable(Brush_Shape shape, int size_index) {
    for (int y = 0; y <= size_index; ++y) {
        for (int x = 0; x <= size_index; ++x) {
            if (brush_mask_at(shape, size_index, x, y) !=
                brush_mask_at(shape, size_index, size_index - x, size_index - y)) {
                return false;
            }
        }
    }
    return true;
}

// Every shape but the two diagonals, which mirror each other, is its own mirror image.
constexpr bool is_mirrored(Brush_Shape shape, int size_index) {
    const Brush_Shape twin = shape == Brush_Shape::falling_diagonal  ? Brush_Shape::rising_diagonal
                             : shape == Brush_Shape::rising_diagonal ? Brush_Shape::falling_diagonal
                                                                     : shape;
    for (int y = 0; y <= size_index; ++y) {
        for (int x = 0; x <= size_index; ++x) {
            if (brush_mask_at(shape, size_index, x, y) !=
                brush_mask_at(twin, size_index, size_index - x, y)) {
                return false;
            }
        }
    }
    return true;
}

constexpr bool is_full_when_small(Brush_Shape shape, int size_index) {
    return size_index > 1 || set_pixels(shape, size_index) == (size_index + 1) * (size_index + 1);
}

static_assert(follow_their_ids());
static_assert(are_laid_out());
static_assert(hold_for_all([](Brush_Shape shape, int size) { return set_pixels(shape, size) > 0; }));
static_assert(hold_for_all(is_turnable));
static_assert(hold_for_all(is_mirrored));
static_assert(hold_for_all(is_full_when_small));

} // namespace brush_masks

namespace {

std::size_t area(Size size) {
    if (size.width < 1 || size.height < 1) {
        throw std::length_error("brush size");
    }
    return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
}

int wrapped(std::int64_t number, int length) {
    const std::int64_t remainder = number % length;
    return static_cast<int>(remainder < 0 ? remainder + length : remainder);
}

} // namespace

Brush::Brush(Size size, std::vector<std::optional<Color>> pixels, Brush_Owner owner)
    : size_(size), pixels_(std::move(pixels)), owner_(owner) {
    if (pixels_.size() != area(size)) {
        throw std::length_error("brush pixels");
    }
}

std::optional<Color> Brush::wallpaper_pixel(std::int64_t x, std::int64_t y) const {
    return pixel(wrapped(x, size_.width), wrapped(y, size_.height));
}

void Brush::recolor(Color color) {
    if (owner_ == Brush_Owner::stamp_brush) {
        return;
    }
    for (std::optional<Color>& pixel : pixels_) {
        if (pixel) {
            pixel = color;
        }
    }
}

Brush built_in_brush(Brush_Shape shape, int size_index, Color color, Brush_Owner owner) {
    std::vector<std::optional<Color>> pixels;
    for (int y = 0; y <= size_index; ++y) {
        for (int x = 0; x <= size_index; ++x) {
            pixels.push_back(brush_mask_at(shape, size_index, x, y) ? std::optional(color) : std::nullopt);
        }
    }
    return {{size_index + 1, size_index + 1}, std::move(pixels), owner};
}

Brush stamp_brush(const Tile& picture, const Tile& mask) {
    std::vector<std::optional<Color>> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            pixels.push_back(mask.is_white_at(x, y) ? std::optional(picture.get_pixel(x, y)) : std::nullopt);
        }
    }
    return {picture.size(), std::move(pixels), Brush_Owner::stamp_brush};
}

} // namespace quadrelle
