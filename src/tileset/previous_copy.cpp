#include "tileset/previous_copy.h"

#include "base/atomic_file.h"
#include "base/data_directory.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "map/map_file.h"

#include <span>
#include <utility>
#include <vector>

namespace quadrelle {

namespace {

constexpr Kept_Limits limits{100, std::int64_t{256} << 20U};
constexpr std::size_t block_size = std::size_t{1} << 20U;

bool copy_file(const std::string& from, const std::string& to) {
    const File_Handle source = open_file(from, File_Mode::read);
    Atomic_File target(to);
    std::vector<std::uint8_t> block(source ? block_size : 0);
    std::int64_t copied = 0;
    while (const std::size_t size = source ? read_bytes(source.get(), block) : 0) {
        target.write(std::span(block).first(size));
        copied += static_cast<std::int64_t>(size);
    }
    return source && copied == file_size(source.get()) && target.commit();
}

} // namespace

Kept_Files previous_copies() {
    return {data_directory().path("previous"), "qdl", limits};
}

// A second name costs nothing, however large the file is: what is saved takes the place of the first one.
Previous_Copy::Copy::Copy(const std::string& file, std::string path) : path_(std::move(path)) {
    const std::string source = resolve_links(file);
    if (path_kind(source) == Path_Kind::nothing) {
        return;
    }
    const std::string temporary = path_ + ".new";
    remove_file(temporary);
    is_safe_ =
        make_folder(folder_part(path_)) && (link_file(source, temporary) || copy_file(source, temporary));
    temporary_ = is_safe_ ? temporary : std::string();
}

Previous_Copy::Copy::~Copy() {
    if (!temporary_.empty()) {
        remove_file(temporary_);
    }
}

bool Previous_Copy::Copy::keep() {
    if (temporary_.empty()) {
        return is_safe_;
    }
    if (!replace_file(temporary_, path_)) {
        return false;
    }
    temporary_.clear();
    // Its age is that of the copy, not that of what is in it.
    touch_file(path_);
    return true;
}

void Previous_Copy::Copy::drop_older() const {
    remove_file(path_);
}

Previous_Copy::Previous_Copy(const std::string& file, const std::string& map_file, Place place)
    : copies_(previous_copies()),
      path_(copies_.path_for(place == Place::usual ? file : with_extension(file, "whole.qdl"))),
      set_(file, path_), map_(map_file, map_path(path_)) {}

bool Previous_Copy::keep() {
    if (!set_.is_empty() && map_.is_empty()) {
        map_.drop_older();
    }
    const bool is_set_kept = set_.keep();
    const bool is_map_kept = map_.keep();
    copies_.keep_to_limits();
    Kept_Files(copies_.folder(), "map", limits).keep_to_limits();
    return is_set_kept && is_map_kept;
}

} // namespace quadrelle
