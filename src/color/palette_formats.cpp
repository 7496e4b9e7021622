#include "color/palette_formats.h"

#include "base/file_names.h"
#include "base/platform_files.h"
#include "base/text_lines.h"
#include "color/hex_color.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quadrelle {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::string_view gpl_start = "GIMP Palette";
constexpr std::string_view jasc_start = "JASC-PAL";
constexpr std::string_view riff_start = "RIFF";
constexpr std::string_view riff_kind = "PAL ";
constexpr std::int64_t largest_file = 1 << 20;
constexpr std::size_t riff_header = 12; // the start, a size and the kind
constexpr std::size_t chunk_header = 8; // a name and a size

Palette_Reading refused(std::string why) {
    return {std::nullopt, std::move(why)};
}

std::string quoted(std::string_view text) {
    constexpr std::size_t most = 20;
    return "\"" + std::string(text.substr(0, most)) + (text.size() > most ? "...\"" : "\"");
}

Palette_Reading palette_of(std::string name, std::vector<Color> colors) {
    if (colors.empty()) {
        return refused("It holds no color.");
    }
    const std::size_t all = colors.size();
    colors.resize(std::min(all, most_palette_colors));
    const std::size_t left_out = all - colors.size();
    return {Palette(std::move(name), std::move(colors)), {}, left_out};
}

// Three or four numbers, and what follows them.
struct Color_Line {
    Color color;
    std::string_view rest;
};

std::optional<Color_Line> color_in_numbers(std::string_view line, int channels) {
    std::array<int, 4> numbers{0, 0, 0, 255};
    for (int i = 0; i < channels; ++i) {
        const std::optional<int> number = take_number(line, 255);
        if (!number) {
            return std::nullopt;
        }
        numbers.at(static_cast<std::size_t>(i)) = *number;
    }
    return Color_Line{{numbers[0], numbers[1], numbers[2], numbers[3]}, trimmed(line)};
}

Palette_Reading refused_line(const Text_Lines& lines, std::string_view line) {
    return refused("Line " + std::to_string(lines.number()) + " is no color: " + quoted(line));
}

// A name that is the colour in hexadecimal digits says its alpha too; one that was meant for another colour
// says nothing.
Color with_named_alpha(Color color, std::string_view name) {
    const std::optional<Color> named = name.starts_with('#') ? read_hex(name).color : std::nullopt;
    return named && named->same_rgb(color) ? *named : color;
}

Palette_Reading read_gpl(Text_Lines lines, std::string name) {
    std::vector<Color> colors;
    int channels = 3;
    static_cast<void>(lines.next());
    while (const std::optional<std::string_view> line = lines.next()) {
        if (line->empty() || line->starts_with('#')) {
            continue;
        }
        if (line->starts_with("Name:")) {
            const std::string_view own = trimmed(line->substr(5));
            name = own.empty() ? name : std::string(own);
        } else if (line->starts_with("Channels:")) {
            channels = trimmed(line->substr(9)) == "RGBA" ? 4 : 3;
        } else if (!line->starts_with("Columns:")) {
            const std::optional<Color_Line> found = color_in_numbers(*line, channels);
            if (!found) {
                return refused_line(lines, *line);
            }
            colors.push_back(with_named_alpha(found->color, found->rest));
        }
    }
    return palette_of(std::move(name), std::move(colors));
}

// After the version comes the count, then a line for each colour, some with alpha.
Palette_Reading read_jasc(Text_Lines lines, std::string name) {
    static_cast<void>(lines.next());
    static_cast<void>(lines.next());
    std::string_view count_line = lines.next().value_or("");
    constexpr int most_counted = 1'000'000;
    const std::optional<int> count = take_number(count_line, most_counted);
    if (!count) {
        return refused("Line 3 does not say how many colors there are.");
    }
    std::vector<Color> colors;
    while (static_cast<int>(colors.size()) < *count) {
        const std::optional<std::string_view> line = lines.next();
        if (!line) {
            return refused("It says " + std::to_string(*count) + " colors and ends after " +
                           std::to_string(colors.size()) + ".");
        }
        if (trimmed(*line).empty()) {
            continue;
        }
        const std::optional<Color_Line> four = color_in_numbers(*line, 4);
        const std::optional<Color_Line> found = four ? four : color_in_numbers(*line, 3);
        if (!found || !found->rest.empty()) {
            return refused_line(lines, *line);
        }
        colors.push_back(found->color);
    }
    return palette_of(std::move(name), std::move(colors));
}

bool has_text_at(Bytes content, std::size_t offset, std::string_view text) {
    return offset + text.size() <= content.size() &&
           std::ranges::equal(content.subspan(offset, text.size()), text, {},
                              [](std::uint8_t byte) { return static_cast<char>(byte); });
}

std::size_t low_first(Bytes content, std::size_t offset, std::size_t count) {
    std::size_t number = 0;
    for (std::size_t i = count; i > 0; --i) {
        number = number << 8U | content[offset + i - 1];
    }
    return number;
}

std::vector<Color> colors_of_bytes(Bytes content, std::size_t step) {
    std::vector<Color> colors;
    for (std::size_t i = 0; i + step <= content.size(); i += step) {
        colors.emplace_back(content[i], content[i + 1], content[i + 2]);
    }
    return colors;
}

// Chunks stand behind each other, each a name, a size and so many bytes, made even. That of the colours
// begins with a version and the count; the fourth byte of a colour is no alpha.
Palette_Reading read_riff(Bytes content, std::string name) {
    constexpr std::size_t before_colors = 4;
    std::size_t start = riff_header;
    while (start + chunk_header <= content.size()) {
        const std::size_t size = low_first(content, start + 4, 4);
        const Bytes chunk = content.subspan(start + chunk_header);
        if (!has_text_at(content, start, "data")) {
            start += chunk_header + std::min(size + size % 2, content.size());
            continue;
        }
        const std::size_t count = chunk.size() < before_colors ? 0 : low_first(chunk, 2, 2);
        if (chunk.size() < before_colors + 4 * count) {
            return refused("It ends before its " + std::to_string(count) + " colors do.");
        }
        return count == 0
                   ? refused("It holds no color.")
                   : palette_of(std::move(name), colors_of_bytes(chunk.subspan(before_colors, 4 * count), 4));
    }
    return refused("It holds no color.");
}

// 256 colours; newer files say behind them how many count, and which one is transparent.
Palette_Reading read_act(Bytes content, std::string name) {
    constexpr std::size_t color_bytes = 768;
    constexpr std::size_t with_count = color_bytes + 4;
    if (content.size() != color_bytes && content.size() != with_count) {
        return refused("A color table has 768 or 772 bytes, this one has " + std::to_string(content.size()) +
                       ".");
    }
    std::vector<Color> colors = colors_of_bytes(content.first(color_bytes), 3);
    if (content.size() == with_count) {
        const std::size_t count = std::size_t{content[768]} << 8U | content[769];
        const std::size_t transparent = std::size_t{content[770]} << 8U | content[771];
        // Nothing but zeros only fills the file up.
        const bool says_something = count > 0 || transparent > 0;
        colors.resize(count == 0 ? colors.size() : std::min(count, colors.size()));
        if (says_something && transparent < colors.size()) {
            colors[transparent].a = 0;
        }
    }
    return palette_of(std::move(name), std::move(colors));
}

enum class Alpha_Place { last, first };

Color alpha_moved(Color color) {
    // It was read as red, green, blue, alpha and is alpha, red, green, blue.
    return {color.g, color.b, color.a, color.r};
}

Palette_Reading read_hex_text(Text_Lines lines, std::string name, Alpha_Place alpha) {
    constexpr std::string_view name_comment = ";Palette Name:";
    std::vector<Color> colors;
    while (std::optional<std::string_view> line = lines.next()) {
        if (line->starts_with(';')) {
            const bool says_name = line->starts_with(name_comment);
            const std::string_view own = says_name ? trimmed(line->substr(name_comment.size())) : "";
            name = own.empty() ? name : std::string(own);
            continue;
        }
        for (std::string_view word = take_word(*line); !word.empty(); word = take_word(*line)) {
            // Three digits alone may as well be a number up to 255.
            const bool may_be_number = word.size() == 3;
            const std::optional<Color> color = may_be_number ? std::nullopt : read_hex(word).color;
            if (!color) {
                return refused_line(lines, word);
            }
            const bool is_moved = alpha == Alpha_Place::first && word.size() == 8;
            colors.push_back(is_moved ? alpha_moved(*color) : *color);
        }
    }
    return palette_of(std::move(name), std::move(colors));
}

// A text that begins with such a comment is of the kind that has alpha in front.
Alpha_Place alpha_place(std::string_view text, const std::string& file_name) {
    const bool has_comment = trimmed(text).starts_with(';');
    return has_comment || has_extension(file_part(file_name), "txt") ? Alpha_Place::first : Alpha_Place::last;
}

} // namespace

std::string name_of_file(const std::string& path) {
    const std::string name = file_part(path);
    const std::size_t dot = name.rfind('.');
    return dot == 0 ? name : name.substr(0, dot);
}

bool is_color_table(const std::string& path) {
    return has_extension(file_part(path), "act");
}

bool is_named_as_palette(const std::string& path) {
    constexpr std::array extensions{"gpl", "hex", "pal", "act"};
    return std::ranges::any_of(extensions, [name = file_part(path)](const char* extension) {
        return has_extension(name, extension);
    });
}

Palette_Reading read_palette(std::span<const std::uint8_t> content, const std::string& file_name) {
    std::string name = name_of_file(file_name);
    if (has_text_at(content, 0, riff_start) && has_text_at(content, 8, riff_kind)) {
        return read_riff(content, std::move(name));
    }
    if (is_color_table(file_name)) {
        return read_act(content, std::move(name));
    }
    const std::string text = plain_text(content);
    if (text.starts_with(gpl_start)) {
        return read_gpl(Text_Lines(text), std::move(name));
    }
    if (text.starts_with(jasc_start)) {
        return read_jasc(Text_Lines(text), std::move(name));
    }
    return read_hex_text(Text_Lines(text), std::move(name), alpha_place(text, file_name));
}

Palette_Reading read_palette_file(const std::string& path) {
    const File_Handle file = open_file(path, File_Mode::read);
    const std::int64_t size = file ? file_size(file.get()) : -1;
    if (size < 0) {
        return refused("It cannot be opened.");
    }
    if (size > largest_file) {
        return refused("It is too large for a palette.");
    }
    std::vector<std::uint8_t> content(static_cast<std::size_t>(size));
    content.resize(read_bytes(file.get(), content));
    return read_palette(content, path);
}

Palette_Reading read_hex_colors(std::string_view text) {
    return read_hex_text(Text_Lines(text), {}, alpha_place(text, {}));
}

std::string gpl_text(const Palette& palette) {
    std::string text(gpl_start);
    text.append("\nName: ").append(palette.name).append("\nColumns: 8\n#\n");
    for (const Color color : palette.colors) {
        for (const int channel : {color.r, color.g, color.b}) {
            const std::string number = std::to_string(channel);
            text.append(3 - number.size(), ' ').append(number) += ' ';
        }
        text.back() = '\t';
        text += hex_text(color) + "\n";
    }
    return text;
}

std::string hex_lines(const std::vector<Color>& colors) {
    std::string text;
    for (const Color color : colors) {
        text += hex_text(color).substr(1) + "\n";
    }
    return text;
}

} // namespace quadrelle
