#include "panes/copy_panes.h"

#include "base/fitting.h"
#include "color/standard_colors.h"
#include "commands/command_table.h"
#include "screen/screen.h"
#include "ui/checkerboard.h"
#include "ui/control.h"
#include "ui/swatch.h"
#include "ui/text_button.h"
#include "ui/window_layout.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr int client_width = window_layout::copies.width - 2 * pane_border;

constexpr int current_height = 91;
constexpr int cell_edge = 32;
constexpr std::size_t cells_in_row = client_width / cell_edge;
constexpr std::size_t cell_rows = (Copy_Buffer::capacity + cells_in_row - 1) / cells_in_row;
static_assert(cells_in_row * cell_edge == client_width);

constexpr int button_height = 18;
constexpr int label_drop = -1;
constexpr int button_gap = 2;
constexpr std::size_t buttons_in_row = 2;
constexpr int button_width =
    (client_width - (static_cast<int>(buttons_in_row) - 1) * button_gap) / static_cast<int>(buttons_in_row);
constexpr std::array button_commands{Command::copy,
                                     Command::cut,
                                     Command::paste,
                                     Command::clone,
                                     Command::clear,
                                     Command::fill,
                                     Command::invert_selection,
                                     Command::deselect};
constexpr int button_rows = static_cast<int>(button_commands.size() / buttons_in_row);

// Without a place as yet.
Rectangle pane_around(int client_height) {
    return below_title({0, 0, window_layout::copies.width, window_layout::pane_height(client_height)});
}

std::string_view label(Command command) {
    return command == Command::invert_selection ? "Invert" : row_of(command).name;
}

} // namespace

Copy_Panes::Copy_Panes()
    : current_(pane_around(current_height), "Copy buffer"),
      previous_(pane_around(static_cast<int>(cell_rows) * cell_edge), "Previous copies"),
      commands_(pane_around(button_rows * button_height + (button_rows - 1) * button_gap), "Selection"),
      checkerboard_(make_checkerboard({client_width, current_height})) {}

void Copy_Panes::place(int top) {
    const int height = current_.area.height + previous_.area.height + commands_.area.height + 2 * element_gap;
    int y = std::min(top, window_layout::copies.bottom() - height);
    for (Pane* const pane : {&current_, &previous_, &commands_}) {
        pane->move(window_layout::copies.x, y);
        y = pane->area.bottom() + element_gap;
    }
    place_buttons();
}

void Copy_Panes::place_buttons() {
    const Rectangle client = commands_.client_area();
    for (std::size_t i = 0; i < button_count; ++i) {
        const auto column = static_cast<int>(i % buttons_in_row);
        const auto row = static_cast<int>(i / buttons_in_row);
        buttons_.at(i) = {client.x + column * (button_width + button_gap),
                          client.y + row * (button_height + button_gap), button_width, button_height};
    }
}

Rectangle Copy_Panes::cell(std::size_t index) const {
    const Rectangle client = previous_.client_area();
    const auto column = static_cast<int>(index % cells_in_row);
    const auto row = static_cast<int>(index / cells_in_row);
    return {client.x + column * cell_edge, client.y + row * cell_edge, cell_edge, cell_edge};
}

void Copy_Panes::draw(const Copy_Buffer& copies, const std::function<bool(Command)>& can_do) {
    draw_current(copies);
    previous_.draw();
    previous_.clear(standard_color(Standard_Color::frame));
    for (std::size_t i = 0; i < copies.copies().size(); ++i) {
        draw_copy(copies, i);
    }
    commands_.draw();
    for (std::size_t i = 0; i < button_count; ++i) {
        const Command command = button_commands.at(i);
        draw_button(buttons_.at(i), {Font::pane, label(command), label_drop}, usable_if(can_do(command)));
    }
}

void Copy_Panes::draw_current(const Copy_Buffer& copies) {
    current_.draw();
    current_.clear(standard_color(Standard_Color::frame));
    if (copies.current() != nullptr) {
        draw_picture(copies.current()->picture, shown_current_, current_.client_area());
    }
}

void Copy_Panes::draw_copy(const Copy_Buffer& copies, std::size_t index) {
    const Rectangle picture = cell(index).inset(picture_mark_width);
    draw_picture(copies.copies()[index].picture, shown_copies_.at(index), picture);
    if (index == copies.current_index()) {
        draw_mark_around(picture);
    }
    draw_outlined_answer(picture);
}

void Copy_Panes::draw_picture(const Tile& picture, Shown_Tile& shown, const Rectangle& area) const {
    if (picture.pixel_count() > 0) {
        const Size size =
            fitted(picture.size(), {area.width, area.height}, {.shrinking = Shrinking::by_whole_steps});
        const Rectangle place = centred(size, area);
        checkerboard_->draw_part({0, 0, place.width, place.height}, place);
        shown.draw(picture, place);
    }
}

std::optional<std::size_t> Copy_Panes::cell_at(Point point) const {
    for (std::size_t i = 0; i < Copy_Buffer::capacity; ++i) {
        if (cell(i).contains(point)) {
            return i;
        }
    }
    return std::nullopt;
}

Command Copy_Panes::command_at(Point point) const {
    for (std::size_t i = 0; i < button_count; ++i) {
        if (buttons_.at(i).contains(point)) {
            return button_commands.at(i);
        }
    }
    return Command::none;
}

} // namespace quadrelle
