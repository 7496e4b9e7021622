#pragma once

// A binary file that is read and written in whole blocks.

#include "base/fatal.h"
#include "base/file_handle.h"

#include <cstdint>
#include <span>
#include <string>

namespace quadrelle {

// The file closes itself. A path is UTF-8.
class Block_File {
public:
    explicit Block_File(std::string path);

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] bool is_open() const { return file_ != nullptr; }
    // Both answer true for a file that is open already. Only regular files can be opened; `open_write`
    // empties the file.
    [[nodiscard]] bool open_read();
    [[nodiscard]] bool open_write();
    // Fills the buffer, or answers false when the file holds less.
    [[nodiscard]] bool try_read_block(std::span<std::uint8_t> buffer);
    // Fills the buffer; fatal when the file holds less, with what a person can do about that.
    void read_block(std::span<std::uint8_t> buffer, Remedy remedy = Remedy::put_copy);
    // Answers whether the block was taken; a full disk may show only at `close`.
    bool write_block(std::span<const std::uint8_t> block);
    // Counts the bytes from the current position to the end, 0 when closed. Whoever takes memory for a length
    // that was read from a file asks this first.
    [[nodiscard]] std::int64_t remaining() const;
    // Answers false when a written block could not be stored after all.
    bool close();

private:
    std::string path_;
    File_Handle file_;
};

// Replaces the file whole or not at all. Returns its size, or -1 with the old file unchanged.
[[nodiscard]] std::int64_t write_file(const std::string& path, std::span<const std::uint8_t> bytes);
// Returns false when the file cannot be opened; one that is shorter than the buffer is fatal.
[[nodiscard]] bool read_file(const std::string& path, std::span<std::uint8_t> buffer);
// Does the same, but a file that cannot be opened is fatal too.
void read_file_or_die(const std::string& path, std::span<std::uint8_t> buffer);

} // namespace quadrelle
