#include "pixels/color_use.h"

#include "color/palette_craft.h"
#include "pixels/tile.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <utility>

namespace quadrelle {

namespace {

// In the order in which they come first.
class Color_Count {
public:
    // Neighbours of one colour are looked up once.
    void add(const Tile& picture) {
        Color_Use run;
        for (const Color pixel : picture.pixels()) {
            const Color color = as_seen(pixel);
            if (color != run.color) {
                add(run);
                run = {color, 0};
            }
            ++run.count;
        }
        add(run);
    }

    [[nodiscard]] std::vector<Color_Use> take() { return std::move(uses_); }

private:
    void add(const Color_Use& run) {
        if (run.count == 0) {
            return;
        }
        const auto found = places_.find(run.color.word());
        if (found != places_.end()) {
            uses_[found->second].count += run.count;
        } else if (uses_.size() < most_counted_colors) {
            places_.emplace(run.color.word(), uses_.size());
            uses_.push_back(run);
        }
    }

    std::unordered_map<std::uint32_t, std::size_t> places_;
    std::vector<Color_Use> uses_;
};

} // namespace

std::vector<Color_Use> colors_by_use(std::span<const Tile* const> pictures) {
    Color_Count count;
    for (const Tile* const picture : pictures) {
        count.add(*picture);
    }
    std::vector<Color_Use> uses = count.take();
    std::ranges::stable_sort(uses, std::ranges::greater(), &Color_Use::count);
    return uses;
}

} // namespace quadrelle
