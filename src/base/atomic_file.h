#pragma once

// A file that replaces an older one of the same name whole or not at all.

#include "base/file_handle.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace quadrelle {

// The file is written under another name in the same folder. Until `commit` succeeds the old file is
// untouched, and without it nothing is left behind.
class Atomic_File {
public:
    explicit Atomic_File(const std::string& path);
    Atomic_File(const Atomic_File&) = delete;
    Atomic_File& operator=(const Atomic_File&) = delete;
    ~Atomic_File();

    [[nodiscard]] bool is_open() const { return file_ != nullptr; }
    // A failure is remembered: after it `commit` fails too.
    bool write(std::span<const std::uint8_t> bytes);
    // Is given the name of what was written, while that is not yet in the place of the old file, and answers
    // whether it is right.
    using Check = std::function<bool(const std::string& written)>;
    // Answers whether the new file is on the disk under its name; nothing may be written after it.
    [[nodiscard]] bool commit(const Check& is_right = {});

private:
    std::string target_;
    std::string temporary_;
    File_Handle file_;
    bool failed_ = false;
};

} // namespace quadrelle
