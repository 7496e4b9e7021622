#pragma once

// What the user chose in the options: everyone reads the values, nobody but the dialog sets one.

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace quadrelle {

enum class Option : std::int32_t {
    precise_brush,
    blocky_precise_brush,
    show_shadow_brush,
    hide_or_show_cursor,
    confirm_quick_save,
    editor_pixel_size,
    grid_intensity,
    clear_selection,
    repeat_x_tiles,
    repeat_y_tiles,
    alpha_grid_width,
    alpha_grid_height,
    clone_style,
    count
};

constexpr auto option_count = static_cast<std::size_t>(Option::count);

// Offers the options to the user and keeps them between runs.
class Option_Source {
public:
    Option_Source() = default;
    Option_Source(const Option_Source&) = delete;
    Option_Source& operator=(const Option_Source&) = delete;
    virtual ~Option_Source() = default;

    // What the user sees chosen now.
    [[nodiscard]] virtual int shown(Option option) const = 0;
    // Lets the user choose; true when that was accepted.
    virtual bool run() = 0;
};

class Options {
public:
    // The values are 0 until `load`.
    explicit Options(std::unique_ptr<Option_Source> dialog);

    // Takes what the dialog shows.
    void load();
    // Runs the dialog and takes what was accepted; true when it was.
    bool edit();
    [[nodiscard]] int value(Option option) const { return values_.at(static_cast<std::size_t>(option)); }
    [[nodiscard]] bool is_ticked(Option option) const { return value(option) == 1; }
    // The values of the enum stand for the texts of the option, in their order.
    template <typename Choice>
    [[nodiscard]] Choice choice(Option option) const {
        return static_cast<Choice>(value(option));
    }

private:
    std::unique_ptr<Option_Source> dialog_;
    std::array<std::int32_t, option_count> values_{};
};

// Built at start-up after the dialogs, destroyed first of all.
extern std::unique_ptr<Options> options;

} // namespace quadrelle
