#include "canvas/edge_pictures.h"

#include "canvas/canvas_view.h"
#include "tests/support/window_test.h"

#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

namespace quadrelle::testing {
namespace {

using Edge_Pictures_Test = Window_Test;

// How long each run of one colour is in the line that the markers make.
std::vector<int> runs(const std::vector<const Cell_Marker*>& line, Point step) {
    std::vector<int> lengths;
    std::optional<Color> last;
    for (const Cell_Marker* marker : line) {
        const int count = marker->size.width * step.x + marker->size.height * step.y;
        for (int i = 0; i < count; ++i) {
            const Color color =
                marker->pixels[static_cast<std::size_t>(step.x != 0 ? i : i * marker->size.width)];
            if (color != std::exchange(last, color)) {
                lengths.push_back(0);
            }
            ++lengths.back();
        }
    }
    return lengths;
}

TEST_F(Edge_Pictures_Test, three_dashes_fill_a_cell_of_every_size_and_join_those_of_the_next_one) {
    Edge_Pictures pictures;
    for (const Edge_Family family : {Edge_Family::selection, Edge_Family::candidate, Edge_Family::paste}) {
        for (int size = smallest_pixel_size; size <= largest_pixel_size; ++size) {
            SCOPED_TRACE(size);
            const Cell_Edges& edges = *pictures.of(family, size);
            const int thickness = size < 16 ? 1 : 2;
            for (const auto& [markers, step] :
                 {std::pair{&edges.horizontal, Point{1, 0}}, {&edges.vertical, Point{0, 1}}}) {
                const auto& [plain, moved_on] = *markers;
                ASSERT_EQ(plain.size, step.x != 0 ? (Size{size, thickness}) : (Size{thickness, size}));
                const std::vector<int> lengths = runs({&plain, &moved_on, &plain}, step);
                EXPECT_EQ(lengths.size(), 9U);
                for (const int length : lengths) {
                    EXPECT_LE(std::abs(3 * length - size), 6);
                }
            }
        }
    }
}

TEST_F(Edge_Pictures_Test, the_mark_of_a_seam_is_as_long_as_the_cell_with_its_dark_part_in_the_middle) {
    Edge_Pictures pictures;
    for (const int size : {3, 10, 15, 16, 32}) {
        const Cell_Marker& marker = pictures.of(Edge_Family::seam, size)->vertical.front();
        EXPECT_EQ(marker.size, (Size{size < 16 ? 2 : 4, size}));
        const std::vector<int> lengths = runs({&marker}, {0, 1});
        ASSERT_EQ(lengths.size(), 3U) << size;
        EXPECT_LE(std::abs(lengths[0] - lengths[2]), 1) << size;
    }
}

} // namespace
} // namespace quadrelle::testing
