#include "ui/wrapped_text.h"

#include "screen/screen.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr char line_break = '\r';
constexpr std::string_view dots = "...";

// How many characters fit; at least one, so that every text comes to an end.
std::size_t fitting_length(Font font, std::string_view text, int width) {
    std::size_t length = 1;
    int used = screen->text_width(font, text.substr(0, 1));
    while (length < text.size()) {
        used += screen->text_width(font, text.substr(length, 1));
        if (used > width) {
            break;
        }
        ++length;
    }
    return length;
}

// Takes a line off the text, and the blank where it was broken.
std::string take_line(Font font, std::string_view& text, int width) {
    std::size_t length = fitting_length(font, text, width);
    if (length < text.size()) {
        const std::size_t blank = text.substr(0, length + 1).rfind(' ');
        length = blank == std::string_view::npos || blank == 0 ? length : blank;
    }
    std::string line(text.substr(0, length));
    text.remove_prefix(std::min(length + (text.substr(length, 1) == " " ? 1 : 0), text.size()));
    return line;
}

void append_wrapped(std::vector<std::string>& lines, Font font, std::string_view paragraph, int width) {
    do {
        lines.push_back(paragraph.empty() ? "" : take_line(font, paragraph, width));
    } while (!paragraph.empty());
}

// Without the word that has no room, or a part of it where it is the only one, and no comma or colon behind
// it.
std::string cut_at_word(Font font, const std::string& line, int room) {
    std::string cut = line;
    while (!cut.empty() && screen->text_width(font, cut) > room) {
        cut.pop_back();
    }
    if (cut.size() < line.size() && line[cut.size()] != ' ' && cut.find(' ') != std::string::npos) {
        cut.resize(cut.rfind(' '));
    }
    cut.resize(cut.find_last_not_of(" ,:;.") + 1);
    return cut;
}

} // namespace

std::vector<std::string> wrapped_text(Font font, std::string_view text, int width) {
    std::vector<std::string> lines;
    for (;;) {
        const std::size_t end = text.find(line_break);
        append_wrapped(lines, font, text.substr(0, end), width);
        if (end == std::string_view::npos) {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

std::vector<std::string> first_lines(Font font, std::vector<std::string> lines, std::size_t count,
                                     int width) {
    if (lines.size() <= count) {
        return lines;
    }
    lines.resize(count);
    std::string& last = lines.back();
    last = cut_at_word(font, last, width - screen->text_width(font, dots)).append(dots);
    return lines;
}

std::string joined_lines(const std::vector<std::string>& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        text += (i == 0 ? "" : "\r") + lines[i];
    }
    return text;
}

} // namespace quadrelle
