#include "base/kept_files.h"

#include "base/file_names.h"
#include "base/fingerprint.h"
#include "base/platform_files.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace quadrelle {

namespace {

constexpr std::size_t longest_stem = 100; // in bytes
constexpr std::size_t digits = 16;
constexpr std::string_view all_digits = "0123456789abcdef";

std::string hexadecimal(std::uint64_t number) {
    std::string text(digits, '0');
    for (char& digit : text) {
        digit = all_digits[number >> 60U];
        number <<= 4U;
    }
    return text;
}

// "hero-0123456789abcdef.qdl".
bool is_kept_name(std::string_view name, std::string_view extension) {
    if (!has_extension(name, extension)) {
        return false;
    }
    const std::string_view stem = name.substr(0, name.size() - extension.size() - 1);
    return stem.size() > digits && stem[stem.size() - digits - 1] == '-' &&
           stem.substr(stem.size() - digits).find_first_not_of(all_digits) == std::string_view::npos;
}

struct Kept {
    std::string path;
    File_State state;
};

} // namespace

Kept_Files::Kept_Files(std::string folder, std::string extension, Kept_Limits limits)
    : folder_(std::move(folder)), extension_(std::move(extension)), limits_(limits) {}

std::string Kept_Files::path_for(const std::string& file) const {
    const std::string whole = resolved_path(current_directory(), resolve_links(file));
    std::string stem = file_part(whole);
    stem.resize(std::min(stem.rfind('.'), stem.size()));
    stem.resize(std::min(stem.size(), longest_stem));
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(whole.data());
    return joined_path(folder_,
                       stem + "-" + hexadecimal(fingerprint_of({bytes, whole.size()})) + "." + extension_);
}

bool Kept_Files::holds(const std::string& path) const {
    const std::string whole = resolved_path(current_directory(), path);
    return parent_folder(whole) == resolved_path(current_directory(), folder_) &&
           is_kept_name(file_part(whole), extension_);
}

std::string Kept_Files::original_name(const std::string& path) const {
    const std::string name = file_part(path);
    return name.substr(0, name.size() - extension_.size() - digits - 2) + "." + extension_;
}

bool Kept_Files::make_folder() const {
    return quadrelle::make_folder(folder_);
}

void Kept_Files::keep_to_limits() const {
    keep_newest_files(
        folder_, [this](std::string_view name) { return is_kept_name(name, extension_); }, limits_);
}

void keep_newest_files(const std::string& folder, const std::function<bool(std::string_view name)>& is_meant,
                       Kept_Limits limits) {
    std::vector<Kept> kept;
    for (const std::string& name : folder_names(folder)) {
        const std::string path = joined_path(folder, name);
        if (const auto state = is_meant(name) ? file_state(path) : std::nullopt) {
            kept.push_back({path, *state});
        }
    }
    std::ranges::sort(kept, std::ranges::greater(), [](const Kept& one) { return one.state.modified; });
    std::int64_t bytes = 0;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        bytes += kept[i].state.size;
        if (i > 0 && (i >= limits.files || bytes > limits.bytes)) {
            remove_file(kept[i].path);
        }
    }
}

} // namespace quadrelle
