#pragma once

// The masks of the built-in brushes: seven shapes in six sizes. Knows no colour.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quadrelle {

enum class Brush_Shape : std::int32_t {
    disc,
    square,
    falling_diagonal,
    rising_diagonal,
    cross,
    ring,
    square_outline,
    count
};

constexpr int brush_shape_count = 7;
constexpr int brush_size_count = 6;
static_assert(brush_shape_count == static_cast<int>(Brush_Shape::count));

namespace brush_masks {

constexpr std::size_t row_count = 6;
constexpr std::size_t row_length = 26;

// The masks of sizes 1 to 6 side by side: '#' set, '.' clear, '|' between two masks.
struct Sheet {
    Brush_Shape id;
    std::array<std::string_view, row_count> rows;
};

constexpr std::array<std::size_t, brush_size_count> columns{0, 2, 5, 9, 14, 20};

// clang-format off
constexpr std::array<Sheet, brush_shape_count> table{{
    {Brush_Shape::disc, {
        "#|##|.#.|.##.|.###.|..##..",
        ".|##|###|####|#####|.####.",
        ".|..|.#.|####|#####|######",
        ".|..|...|.##.|#####|######",
        ".|..|...|....|.###.|.####.",
        ".|..|...|....|.....|..##..",
    }},
    {Brush_Shape::square, {
        "#|##|###|####|#####|######",
        ".|##|###|####|#####|######",
        ".|..|###|####|#####|######",
        ".|..|...|####|#####|######",
        ".|..|...|....|#####|######",
        ".|..|...|....|.....|######",
    }},
    {Brush_Shape::falling_diagonal, {
        "#|##|#..|#...|#....|#.....",
        ".|##|.#.|.#..|.#...|.#....",
        ".|..|..#|..#.|..#..|..#...",
        ".|..|...|...#|...#.|...#..",
        ".|..|...|....|....#|....#.",
        ".|..|...|....|.....|.....#",
    }},
    {Brush_Shape::rising_diagonal, {
        "#|##|..#|...#|....#|.....#",
        ".|##|.#.|..#.|...#.|....#.",
        ".|..|#..|.#..|..#..|...#..",
        ".|..|...|#...|.#...|..#...",
        ".|..|...|....|#....|.#....",
        ".|..|...|....|.....|#.....",
    }},
    {Brush_Shape::cross, {
        "#|##|#.#|#..#|#...#|#....#",
        ".|##|.#.|.##.|.#.#.|.#..#.",
        ".|..|#.#|.##.|..#..|..##..",
        ".|..|...|#..#|.#.#.|..##..",
        ".|..|...|....|#...#|.#..#.",
        ".|..|...|....|.....|#....#",
    }},
    {Brush_Shape::ring, {
        "#|##|.#.|.##.|.###.|..##..",
        ".|##|#.#|#..#|#...#|.#..#.",
        ".|..|.#.|#..#|#...#|#....#",
        ".|..|...|.##.|#...#|#....#",
        ".|..|...|....|.###.|.#..#.",
        ".|..|...|....|.....|..##..",
    }},
    {Brush_Shape::square_outline, {
        "#|##|###|####|#####|######",
        ".|##|#.#|#..#|#...#|#....#",
        ".|..|###|#..#|#...#|#....#",
        ".|..|...|####|#...#|#....#",
        ".|..|...|....|#####|#....#",
        ".|..|...|....|.....|######",
    }},
}};
// clang-format on

} // namespace brush_masks

// Whether the pixel is set in the brush that is `size_index` + 1 pixels wide and high; x and y lie inside it.
[[nodiscard]] constexpr bool brush_mask_at(Brush_Shape shape, int size_index, int x, int y) {
    const brush_masks::Sheet& sheet = brush_masks::table.at(static_cast<std::size_t>(shape));
    const std::size_t column = brush_masks::columns.at(static_cast<std::size_t>(size_index));
    return sheet.rows.at(static_cast<std::size_t>(y)).at(column + static_cast<std::size_t>(x)) == '#';
}

} // namespace quadrelle
