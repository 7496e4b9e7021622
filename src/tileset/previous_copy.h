#pragma once

// What a file held before it was saved over is kept in the data folder, one copy for each file.

#include "base/kept_files.h"

#include <string>

namespace quadrelle {

// Where these copies are. The names do not depend on where the process stands.
[[nodiscard]] Kept_Files previous_copies();

// Made before the files of a set are replaced. The copies are kept only when that was done: until then the
// older ones stay.
class Previous_Copy {
public:
    // What a file held that is more than its tiles gets a place of its own, which no usual copy takes.
    enum class Place { usual, apart };
    // The map lies beside the set and is replaced with it; its name is empty where none is.
    Previous_Copy(const std::string& file, const std::string& map_file, Place place);

    // Whether there was nothing to copy, or it is copied.
    [[nodiscard]] bool is_safe() const { return set_.is_safe() && map_.is_safe(); }
    // To be called when the files were replaced. Answers whether what they held before is kept.
    bool keep();

private:
    class Copy {
    public:
        // Takes what the file holds, to be kept under that path.
        Copy(const std::string& file, std::string path);
        Copy(const Copy&) = delete;
        Copy& operator=(const Copy&) = delete;
        ~Copy();

        [[nodiscard]] bool is_safe() const { return is_safe_; }
        [[nodiscard]] bool is_empty() const { return temporary_.empty(); }
        bool keep();
        // What is there already belongs to nothing any more.
        void drop_older() const;

    private:
        std::string path_;
        std::string temporary_; // empty without a copy
        bool is_safe_ = true;
    };

    Kept_Files copies_;
    std::string path_;
    Copy set_;
    Copy map_; // beside that of the set, so that it is found with it
};

} // namespace quadrelle
