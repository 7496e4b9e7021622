#include "panes/hint_lines.h"

#include "commands/command_table.h"
#include "screen/screen.h"
#include "ui/window_layout.h"
#include "ui/wrapped_text.h"

#include <cstddef>

namespace quadrelle {

namespace {

constexpr Font title_font = Font::pane_header;
constexpr Font font = Font::pane;
// A little less than the letters' cells, whose lowest rows are empty.
constexpr int line_step = 17;
constexpr Rectangle area = window_layout::hint_lines;
constexpr int room_for_size = 110;
constexpr std::size_t most_lines = area.height / line_step;

} // namespace

void Hint_Lines::report(Command command, std::string_view what_it_did) {
    report({menu_text(command), std::string(what_it_did)});
}

void Hint_Lines::set_hint(const Hint& hint, std::optional<Point> pointer) {
    if (report_ && !report_->is_lasting && report_->pointer && report_->pointer != pointer) {
        end_report();
    }
    if (report_) {
        report_->pointer = pointer;
    }
    show(report_ ? report_->hint : hint);
}

void Hint_Lines::show(const Hint& hint) {
    if (hint == hint_) {
        return;
    }
    hint_ = hint;
    constexpr int title_width = area.width - room_for_size;
    lines_ = first_lines(title_font, wrapped_text(title_font, hint.title, title_width), 1, title_width);
    const std::vector<std::string> text =
        first_lines(font, wrapped_text(font, hint.text, area.width), most_lines - 1, area.width);
    lines_.insert(lines_.end(), text.begin(), text.end());
}

void Hint_Lines::draw_size(Size tile) {
    const std::string text = "Tile " + std::to_string(tile.width) + " x " + std::to_string(tile.height);
    screen->draw_text(font, {area.right() - screen->text_width(font, text), area.y}, text);
}

void Hint_Lines::draw() const {
    Point position = corner_of(area);
    for (const std::string& line : lines_) {
        screen->draw_text(position.y == area.y ? title_font : font, position, line);
        position.y += line_step;
    }
}

} // namespace quadrelle
