#pragma once

// What a file held before it was saved over is kept in the data folder, one copy for each file.

#include "base/kept_files.h"

#include <string>

namespace quadrelle {

// Where these copies are. The names do not depend on where the process stands.
[[nodiscard]] Kept_Files previous_copies();

// Made before a file is replaced. The copy is kept only when that was done: until then the older one stays.
class Previous_Copy {
public:
    // What a file held that is more than its tiles gets a place of its own, which no usual copy takes.
    enum class Place { usual, apart };
    Previous_Copy(const std::string& file, Place place);
    Previous_Copy(const Previous_Copy&) = delete;
    Previous_Copy& operator=(const Previous_Copy&) = delete;
    ~Previous_Copy();

    // Whether there was nothing to copy, or it is copied.
    [[nodiscard]] bool is_safe() const { return is_safe_; }
    // To be called when the file was replaced. Answers whether what it held before is kept.
    bool keep();

private:
    Kept_Files copies_;
    std::string path_;
    std::string temporary_; // empty without a copy
    bool is_safe_ = true;
};

} // namespace quadrelle
