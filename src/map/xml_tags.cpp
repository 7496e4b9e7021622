#include "map/xml_tags.h"

#include <algorithm>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view without_blanks_before(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text;
}

// The place of the tag's end: a ">" in a value is none.
std::size_t end_of_tag(std::string_view text) {
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char letter = text[i];
        if (quote != 0) {
            quote = letter == quote ? '\0' : quote;
        } else if (letter == '"' || letter == '\'') {
            quote = letter;
        } else if (letter == '>') {
            return i;
        }
    }
    return std::string_view::npos;
}

// No XML may have it, in whatever form.
constexpr bool has_no_place(char letter) {
    return letter >= 0 && letter < ' ';
}

} // namespace

int number_from(std::string_view digits) {
    constexpr std::size_t most_digits = 9;
    if (digits.empty() || digits.size() > most_digits) {
        return -1;
    }
    int number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') {
            return -1;
        }
        number = 10 * number + (digit - '0');
    }
    return number;
}

std::optional<std::string_view> Xml_Tag::attribute(std::string_view wanted) const {
    std::string_view rest = without_blanks_before(attributes);
    while (!rest.empty()) {
        const std::size_t equals = rest.find('=');
        const std::size_t quote =
            equals == std::string_view::npos ? equals : rest.find_first_of("\"'", equals);
        const std::size_t end = quote == std::string_view::npos ? quote : rest.find(rest[quote], quote + 1);
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string_view found = rest.substr(0, rest.find_first_of("= \t\r\n"));
        if (found == wanted) {
            return rest.substr(quote + 1, end - quote - 1);
        }
        rest = without_blanks_before(rest.substr(end + 1));
    }
    return std::nullopt;
}

int Xml_Tag::number(std::string_view wanted) const {
    return number_from(attribute(wanted).value_or(""));
}

bool Xml_Tags::skip(std::string_view start, std::string_view end) {
    if (!rest_.starts_with(start)) {
        return false;
    }
    const std::size_t found = rest_.find(end, start.size());
    rest_.remove_prefix(found == std::string_view::npos ? rest_.size() : found + end.size());
    return true;
}

std::optional<Xml_Tag> Xml_Tags::next() {
    while (true) {
        rest_.remove_prefix(std::min(rest_.find('<'), rest_.size()));
        if (skip("<!--", "-->") || skip("<?", "?>") || skip("<!", ">")) {
            continue;
        }
        const std::size_t end = end_of_tag(rest_);
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        std::string_view inside = rest_.substr(1, end - 1);
        rest_.remove_prefix(end + 1);
        Xml_Tag tag;
        tag.is_whole = inside.ends_with('/');
        inside.remove_suffix(tag.is_whole ? 1 : 0);
        const std::size_t name_end = std::min(inside.find_first_of(blanks), inside.size());
        tag.name = inside.substr(0, name_end);
        tag.attributes = inside.substr(name_end);
        return tag;
    }
}

std::string xml_attribute(std::string_view name, std::string_view value) {
    std::string text = " ";
    text.append(name).append("=\"");
    for (const char letter : value) {
        switch (letter) {
        case '&': text += "&amp;"; break;
        case '<': text += "&lt;"; break;
        case '>': text += "&gt;"; break;
        case '"': text += "&quot;"; break;
        case '\t': text += "&#9;"; break;
        case '\n': text += "&#10;"; break;
        case '\r': text += "&#13;"; break;
        default: text += has_no_place(letter) ? '_' : letter;
        }
    }
    return text + "\"";
}

std::string xml_attribute(std::string_view name, int value) {
    return xml_attribute(name, std::to_string(value));
}

} // namespace quadrelle
