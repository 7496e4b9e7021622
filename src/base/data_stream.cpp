#include "base/data_stream.h"

#include "base/block_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <utility>

namespace quadrelle {

namespace {

constexpr std::size_t longest_number = 16;
constexpr std::size_t length_size = 4;

std::span<std::uint8_t> bytes_of(std::string& text) {
    return {reinterpret_cast<std::uint8_t*>(text.data()), text.size()};
}

bool is_separator(char byte) {
    return byte == ',' || byte == ':';
}

// Without the blanks and the plus sign that the standard conversion does not take.
std::string_view number_part(std::string_view token) {
    token.remove_prefix(std::min(token.find_first_not_of(" \t\n\v\f\r"), token.size()));
    const bool has_plus = token.size() > 1 && token[0] == '+' && token[1] != '-';
    return has_plus ? token.substr(1) : token;
}

template <typename Number>
std::string formatted(Number number, auto... format) {
    std::array<char, 64> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number, format...);
    return {digits.data(), result.ptr};
}

} // namespace

bool Data_Stream::is_at_end() const {
    return position_ >= text_.size() || (position_ + 1 == text_.size() && text_.back() == ':');
}

void Data_Stream::begin_token() {
    if (!text_.empty()) {
        text_ += ',';
    }
}

void Data_Stream::write_int(std::int32_t number) {
    begin_token();
    text_ += formatted(number);
}

void Data_Stream::write_bool(bool is_true) {
    write_int(is_true ? 1 : 0);
}

void Data_Stream::write_real(float number) {
    begin_token();
    text_ += formatted(number, std::chars_format::fixed, 6);
}

void Data_Stream::write_text(std::string& text) {
    if (text.empty()) {
        text = "Rolololo";
    }
    text_ += text;
    text_ += ',';
}

void Data_Stream::write_bytes(std::span<const std::uint8_t> bytes) {
    begin_token();
    text_.append(bytes.begin(), bytes.end());
}

void Data_Stream::write_quad(const std::array<std::int32_t, 4>& numbers) {
    for (const std::int32_t number : numbers) {
        write_int(number);
    }
}

void Data_Stream::write_pair(const std::array<std::int32_t, 2>& numbers) {
    for (const std::int32_t number : numbers) {
        write_int(number);
    }
}

// A token of 16 bytes and more leaves its separator for the next read.
std::string_view Data_Stream::number_token() {
    const std::string_view rest = std::string_view(text_).substr(std::min(position_, text_.size()));
    const std::string_view window = rest.substr(0, longest_number);
    const auto separator = std::ranges::find_if(window, is_separator);
    const auto length = static_cast<std::size_t>(separator - window.begin());
    position_ += length + (separator == window.end() ? 0 : 1);
    return number_part(window.substr(0, length));
}

std::int32_t Data_Stream::read_int() {
    const std::string_view token = number_token();
    std::int32_t number = 0;
    const auto result = std::from_chars(token.data(), token.data() + token.size(), number);
    if (result.ec == std::errc::result_out_of_range) {
        using Limits = std::numeric_limits<std::int32_t>;
        return token.front() == '-' ? Limits::min() : Limits::max();
    }
    return number;
}

float Data_Stream::read_real() {
    const std::string_view token = number_token();
    double number = 0.0;
    std::from_chars(token.data(), token.data() + token.size(), number);
    if (!std::isfinite(number)) {
        return 0.0F;
    }
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(number, -largest, largest));
}

std::string Data_Stream::read_text() {
    const auto begin = text_.begin() + static_cast<std::ptrdiff_t>(std::min(position_, text_.size()));
    const auto end = std::find_if(begin, text_.end(), is_separator);
    position_ = static_cast<std::size_t>(end - text_.begin()) + (end == text_.end() ? 0 : 1);
    return {begin, end};
}

void Data_Stream::read_bytes(std::span<std::uint8_t> bytes) {
    for (std::uint8_t& byte : bytes) {
        byte = read_byte();
    }
    static_cast<void>(read_byte());
}

std::uint8_t Data_Stream::read_byte() {
    return position_ < text_.size() ? static_cast<std::uint8_t>(text_[position_++]) : std::uint8_t{0};
}

std::array<std::int32_t, 4> Data_Stream::read_quad() {
    std::array<std::int32_t, 4> numbers{};
    std::ranges::generate(numbers, [this] { return read_int(); });
    return numbers;
}

std::array<std::int32_t, 2> Data_Stream::read_pair() {
    std::array<std::int32_t, 2> numbers{};
    std::ranges::generate(numbers, [this] { return read_int(); });
    return numbers;
}

std::string Data_Stream::take_file_form() {
    const auto length = static_cast<std::uint32_t>(text_.size() + 1);
    std::string form;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        form += static_cast<char>(length >> shift & 255U);
    }
    form += std::exchange(text_, {});
    form += ':';
    return form;
}

void Data_Stream::save_to(Block_File& file) {
    std::string form = take_file_form();
    file.write_block(bytes_of(form));
}

bool Data_Stream::save_to(const std::string& path) {
    std::string form = take_file_form();
    return write_file(path, bytes_of(form)) >= 0;
}

void Data_Stream::load_from(Block_File& file) {
    position_ = 0;
    std::array<std::uint8_t, length_size> prefix{};
    file.read_block(prefix, Remedy::remove);
    std::int64_t length = 0;
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        length |= std::int64_t{prefix[i]} << (8 * i);
    }
    if (length > 0) {
        // A length beyond the end of the file asks for one byte more than there is: enough to be found short.
        const std::int64_t enough = std::max<std::int64_t>(file.remaining(), 0) + 1;
        text_.resize(static_cast<std::size_t>(std::min(length, enough)));
        file.read_block(bytes_of(text_), Remedy::remove);
    }
}

} // namespace quadrelle
