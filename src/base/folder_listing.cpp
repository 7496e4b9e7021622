#include "base/folder_listing.h"

#include "base/file_names.h"
#include "base/platform_files.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

bool is_before(const Listed_Row& one, const Listed_Row& other) {
    return one.kind == other.kind ? is_listed_before(one.name, other.name) : one.kind < other.kind;
}

bool is_listed(const Folder_Entry& entry, std::string_view pattern) {
    if (entry.name.starts_with('.')) {
        return false;
    }
    const bool is_wanted_file =
        entry.kind == Path_Kind::file && (pattern == "*" || has_extension(entry.name, pattern));
    return is_wanted_file || entry.kind == Path_Kind::folder;
}

} // namespace

bool Folder_Listing::open(const std::string& folder) {
    std::optional<std::vector<Folder_Entry>> entries = folder_entries(folder);
    if (!entries) {
        return false;
    }
    folder_ = folder;
    rows_.clear();
    if (!parent_folder(folder).empty()) {
        rows_.push_back({Listed_Kind::parent, ".."});
    }
    for (Folder_Entry& entry : *entries) {
        if (is_listed(entry, pattern_)) {
            rows_.push_back({entry.kind == Path_Kind::folder ? Listed_Kind::folder : Listed_Kind::file,
                             std::move(entry.name)});
        }
    }
    std::ranges::sort(rows_, is_before);
    return true;
}

bool Folder_Listing::open_nearest(std::string folder) {
    while (!open(folder)) {
        folder = parent_folder(folder);
        if (folder.empty()) {
            return false;
        }
    }
    return true;
}

std::optional<std::size_t> Folder_Listing::find(std::string_view name) const {
    const auto found = std::ranges::find(rows_, name, &Listed_Row::name);
    return found == rows_.end() ? std::nullopt
                                : std::optional(static_cast<std::size_t>(found - rows_.begin()));
}

std::string Folder_Listing::path_of(std::size_t row) const {
    const Listed_Row& chosen = rows_.at(row);
    return chosen.kind == Listed_Kind::parent ? parent_folder(folder_) : joined_path(folder_, chosen.name);
}

} // namespace quadrelle
