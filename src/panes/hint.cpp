#include "panes/hint.h"

#include "color/color_data.h"
#include "color/hex_color.h"
#include "commands/command_table.h"

#include <algorithm>

namespace quadrelle {

namespace {

// In one line: where it breaks depends on the room. A sentence that announces what comes after it is left
// out.
std::string first_paragraph(std::string_view text) {
    std::string paragraph(text.substr(0, text.find("\r\r")));
    std::ranges::replace(paragraph, '\r', ' ');
    if (const std::size_t end = paragraph.rfind(". "); paragraph.ends_with(':') && end != std::string::npos) {
        paragraph.resize(end + 1);
    }
    return paragraph;
}

Hint brief(Command command) {
    return {menu_text(command), first_paragraph(help_text(command).value_or(""))};
}

Hint brief(Place place) {
    return help_of(place);
}

Hint brief(const Pointed_Pixel& pixel) {
    const Color color = pixel.color;
    return {"Pixel " + std::to_string(pixel.position.x) + ", " + std::to_string(pixel.position.y),
            "Color: " + color_numbers(color) + "   " + hex_text(color) +
                "\rName: " + std::string(color_data->shown_name(color))};
}

} // namespace

Hint hint_of(const Pointed& pointed) {
    return std::visit([](const auto& thing) { return brief(thing); }, pointed);
}

Hint help_of(Command command) {
    return {menu_text(command), std::string(description(command))};
}

Hint help_of(Place place) {
    const Place_Row& row = place_table.at(static_cast<std::size_t>(place));
    return {std::string(row.title), std::string(row.text)};
}

} // namespace quadrelle
