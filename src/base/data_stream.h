#pragma once

// The record of the small data files: tokens of text between commas, read in the order of writing.
// It knows nothing about what its users keep in it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace quadrelle {

class Block_File;

// Numbers and bytes put their comma in front, texts behind: a text is joined to the number before it
// ("3abc,") and followed by an empty token when a number comes next ("abc,,3"). Files depend on this, so it
// stays. Past the end numbers and bytes read as 0 and texts as empty.
class Data_Stream {
public:
    Data_Stream() = default;
    explicit Data_Stream(std::string text) : text_(std::move(text)) {}

    [[nodiscard]] const std::string& text() const { return text_; }
    // Whether nothing is left but perhaps the colon that ends a record.
    [[nodiscard]] bool is_at_end() const;

    void write_int(std::int32_t number);
    void write_bool(bool is_true);
    // Writes six decimals.
    void write_real(float number);
    // An empty text is replaced by "Rolololo", in the caller's string too.
    void write_text(std::string& text);
    void write_bytes(std::span<const std::uint8_t> bytes);
    void write_quad(const std::array<std::int32_t, 4>& numbers);
    void write_pair(const std::array<std::int32_t, 2>& numbers);

    // Numbers are taken from at most 16 bytes; a longer token goes on in the next read. What follows the
    // leading number in a token is dropped, no number is 0, too large ones become the nearest.
    [[nodiscard]] std::int32_t read_int();
    [[nodiscard]] bool read_bool() { return read_int() == 1; }
    // The number is always finite.
    [[nodiscard]] float read_real();
    // Reads up to the next comma or colon.
    [[nodiscard]] std::string read_text();
    // Fills the buffer and skips the separator behind its bytes.
    void read_bytes(std::span<std::uint8_t> bytes);
    [[nodiscard]] std::uint8_t read_byte();
    [[nodiscard]] std::array<std::int32_t, 4> read_quad();
    [[nodiscard]] std::array<std::int32_t, 2> read_pair();

    // Writes the record to a file open for writing: its length in four bytes, the text and a colon. Clears
    // the record.
    void save_to(Block_File& file);
    // Does the same to a path and replaces the file whole or not at all; answers false when it cannot.
    [[nodiscard]] bool save_to(const std::string& path);
    // Reads from a file open for reading and starts at the beginning. A length of 0 keeps the text;
    // a file that is shorter than its length is fatal.
    void load_from(Block_File& file);

private:
    void begin_token();
    std::string_view number_token();
    std::string take_file_form();

    std::string text_;
    std::size_t position_ = 0;
};

} // namespace quadrelle
