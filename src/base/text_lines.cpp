#include "base/text_lines.h"

#include <algorithm>
#include <charconv>

namespace quadrelle {

namespace {

constexpr std::string_view blanks = " \t\f\v\r\n";
constexpr std::string_view between_words = " \t\f\v\r\n,;";
constexpr std::string_view utf8_mark = "\xef\xbb\xbf";

} // namespace

std::string plain_text(std::span<const std::uint8_t> content) {
    const std::string text(content.begin(), content.end());
    return text.starts_with(utf8_mark) ? text.substr(utf8_mark.size()) : text;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

std::optional<int> take_number(std::string_view& text, int most) {
    std::string_view rest = trimmed(text);
    int number = 0;
    const auto [end, fault] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    if (fault != std::errc() || number < 0 || number > most) {
        return std::nullopt;
    }
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    if (!rest.empty() && blanks.find(rest.front()) == std::string_view::npos) {
        return std::nullopt;
    }
    text = rest;
    return number;
}

std::string_view take_word(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(between_words), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(between_words));
    text.remove_prefix(word.size());
    return word;
}

std::optional<std::string_view> Text_Lines::next() {
    if (rest_.empty()) {
        return std::nullopt;
    }
    const std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
    const std::string_view line = rest_.substr(0, end);
    const bool is_pair = rest_.substr(end).starts_with("\r\n");
    rest_.remove_prefix(std::min(end + (is_pair ? 2 : 1), rest_.size()));
    ++number_;
    return trimmed(line);
}

} // namespace quadrelle
