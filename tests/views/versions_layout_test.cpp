#include "views/versions_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quadrelle::testing {
namespace {

constexpr Size window{1232, 664};
// The selected view is marked around its edges.
constexpr int mark_width = 3;

bool is_within(const Rectangle& inner, const Rectangle& outer) {
    return inner.x >= outer.x && inner.y >= outer.y && inner.right() <= outer.right() &&
           inner.bottom() <= outer.bottom();
}

bool overlap(const Rectangle& a, const Rectangle& b) {
    return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

std::vector<Rectangle> parts_of(const Versions_Layout& layout) {
    std::vector<Rectangle> parts{layout.big_view.inset(-mark_width), layout.store_button, layout.take_button};
    for (const Rectangle& slot : layout.slots) {
        parts.push_back(slot.inset(-mark_width));
    }
    parts.insert(parts.end(), layout.labels.begin(), layout.labels.end());
    return parts;
}

void expect_apart(const std::vector<Rectangle>& parts, const Rectangle& below_title) {
    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_TRUE(is_within(parts[i], below_title)) << "part " << i;
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(overlap(parts[i], parts[j])) << "parts " << i << ", " << j;
        }
    }
}

TEST(Versions_Layout_Test, keeps_all_parts_apart_inside_of_the_window) {
    for (const Size tile : std::vector<Size>{
             {1, 1}, {1, 255}, {255, 1}, {6, 6}, {24, 24}, {24, 64}, {64, 32}, {64, 64}, {150, 255}}) {
        for (int grown = 0; tile.width + grown <= 255 && tile.height + grown <= 255; ++grown) {
            const Size size{tile.width + grown, tile.height + grown};
            SCOPED_TRACE(std::to_string(size.width) + " x " + std::to_string(size.height));
            const Versions_Layout layout = versions_layout(size, window);
            Rectangle below_title = layout.dialog;
            below_title.y += 24;
            below_title.height -= 24;
            EXPECT_TRUE(is_within(layout.dialog, {0, 0, window.width, window.height}));
            expect_apart(parts_of(layout), below_title);
        }
    }
}

} // namespace
} // namespace quadrelle::testing
