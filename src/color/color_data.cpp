#include "color/color_data.h"

#include "base/fatal.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

namespace quadrelle {

std::unique_ptr<Color_Data> color_data;

namespace {

constexpr std::span<const Named_Color> up_to_the_end_row(std::span<const Named_Color> table) {
    const auto is_end = [](const Named_Color& row) { return row.name.starts_with('$'); };
    const auto end = std::ranges::find_if(table, is_end);
    return table.first(static_cast<std::size_t>(end - table.begin()));
}

constexpr bool is_named_twice(std::span<const Named_Color> rows, Color color) {
    return std::ranges::count(rows, color, &Named_Color::color) > 1;
}

constexpr bool names_differ_in_color(std::span<const Named_Color> rows) {
    return std::ranges::none_of(rows,
                                [rows](const Named_Color& row) { return is_named_twice(rows, row.color); });
}

static_assert(up_to_the_end_row(named_colors).size() == 24);
static_assert(names_differ_in_color(up_to_the_end_row(named_colors)));

} // namespace

Color_Data::Color_Data(std::span<const Named_Color> table) : rows_(up_to_the_end_row(table)) {
    if (!names_differ_in_color(rows_)) {
        fatal("Matching id found in color data.");
    }
}

std::optional<std::string_view> Color_Data::name_of(Color color) const {
    const auto found = std::ranges::find(rows_, color, &Named_Color::color);
    return found == rows_.end() ? std::nullopt : std::optional(found->name);
}

std::string_view Color_Data::shown_name(Color color) const {
    return name_of(color).value_or("---");
}

void Color_Data::all(std::vector<Named_Color>& list) const {
    list.insert(list.end(), rows_.begin(), rows_.end());
}

std::string color_numbers(Color color) {
    return std::to_string(color.r) + ", " + std::to_string(color.g) + ", " + std::to_string(color.b) + ", " +
           std::to_string(color.a);
}

std::string color_information(Color color) {
    std::array<char, 96> text{};
    std::snprintf(text.data(), text.size(), "R: %u, G: %u, B: %u\rAlpha: %u\rLuminance: %.1f",
                  unsigned{color.r}, unsigned{color.g}, unsigned{color.b}, unsigned{color.a},
                  color.luminance() * 100.0);
    return text.data();
}

} // namespace quadrelle
