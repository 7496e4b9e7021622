#include "tools/brush_masks.h"

#include "base/table.h"

namespace quadrelle {

// What the pictures promise, checked while they are compiled.
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

static_assert(rows_follow_their_ids(table));
static_assert(are_laid_out());
static_assert(hold_for_all([](Brush_Shape shape, int size) { return set_pixels(shape, size) > 0; }));
static_assert(hold_for_all(is_turnable));
static_assert(hold_for_all(is_mirrored));
static_assert(hold_for_all(is_full_when_small));

} // namespace brush_masks

} // namespace quadrelle
