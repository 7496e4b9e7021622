#pragma once

// A folder in which something is kept for other files, one file for each, and not more than it may take: the
// oldest ones go.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace quadrelle {

struct Kept_Limits {
    std::size_t files;
    std::int64_t bytes;
};
// Removes the oldest of those files of a folder that are meant until the others are within the limits; the
// newest one stays in any case.
void keep_newest_files(const std::string& folder, const std::function<bool(std::string_view name)>& is_meant,
                       Kept_Limits limits);

class Kept_Files {
public:
    // Neither has to be there.
    Kept_Files(std::string folder, std::string extension, Kept_Limits limits);

    [[nodiscard]] const std::string& folder() const { return folder_; }
    // Returns the path of what is kept for that file. It has the file's name in it, and the same for all
    // names of one file.
    [[nodiscard]] std::string path_for(const std::string& file) const;
    // Whether a file of that path is one of those that are kept.
    [[nodiscard]] bool holds(const std::string& path) const;
    // Returns what the file is called that such a path was made for, without its folder.
    [[nodiscard]] std::string original_name(const std::string& path) const;
    [[nodiscard]] bool make_folder() const;
    // Removes what is too much, but never the newest. What has another name than `path_for` gives is left
    // alone.
    void keep_to_limits() const;

private:
    std::string folder_;
    std::string extension_;
    Kept_Limits limits_;
};

} // namespace quadrelle
