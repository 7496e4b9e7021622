#include "panes/hint_lines.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/window_layout.h"
#include "ui/wrapped_text.h"

#include <algorithm>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr Font title_font = Font::pane_header;
constexpr Font font = Font::pane;
// A little less than the letters' cells, whose lowest rows are empty.
constexpr int line_step = 17;
constexpr Rectangle area = window_layout::hint_lines;
constexpr Size size{area.width, area.height};
constexpr std::size_t most_lines = area.height / line_step;

} // namespace

Hint_Lines::Hint_Lines() : picture_(size), texture_(size) {
    compose_picture();
}

void Hint_Lines::set_hint(const Hint& hint) {
    if (hint == hint_) {
        return;
    }
    hint_ = hint;
    lines_ = first_lines(title_font, wrapped_text(title_font, hint.title, area.width), 1, area.width);
    const std::vector<std::string> text =
        first_lines(font, wrapped_text(font, hint.text, area.width), most_lines - 1, area.width);
    lines_.insert(lines_.end(), text.begin(), text.end());
    compose_picture();
}

void Hint_Lines::compose_picture() {
    picture_.fill(to_rgba(standard_color(Standard_Color::frame)));
    Point position{0, 0};
    for (const std::string& line : lines_) {
        screen->sprites().draw_text(position.y == 0 ? title_font : font, line, position, picture_);
        position.y += line_step;
    }
    texture_.update([this](const Pixel_Rows& rows) {
        for (int y = 0; y < rows.size.height; ++y) {
            std::copy_n(picture_.row(y), rows.size.width, rows.row(y));
        }
    });
}

void Hint_Lines::draw() const {
    texture_.draw_at({area.x, area.y});
}

} // namespace quadrelle
