#include "color/palette_list.h"

#include "base/block_file.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "base/text_lines.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace quadrelle {

std::unique_ptr<Palette_List> palette_list;

namespace {

constexpr std::string_view extension = "gpl";
constexpr const char* first_shown_file = "shown.txt";
constexpr std::size_t longest_name = 1000;
constexpr std::size_t most_files = 1000;
constexpr std::size_t most_steps = 100;
constexpr std::size_t longest_stem = 80; // in bytes

// Without what no line or no name can have.
std::string clean_name(std::string name) {
    std::ranges::replace_if(
        name, [](char letter) { return static_cast<unsigned char>(letter) < ' '; }, ' ');
    name = trimmed(name);
    return name.empty() ? "Palette" : name;
}

// "Sea" of "Sea 2".
std::string without_number(const std::string& name) {
    const std::size_t end = name.find_last_not_of("0123456789");
    const bool has_number = end != std::string::npos && end > 0 && end + 1 < name.size() && name[end] == ' ';
    return has_number ? name.substr(0, end) : name;
}

// Returns at most so many bytes of it, and no part of a character.
std::string cut_at_character(const std::string& text, std::size_t most) {
    std::size_t end = std::min(text.size(), most);
    while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80U) {
        --end;
    }
    return text.substr(0, end);
}

// Whether a file system takes it for a device, whatever extension follows.
bool is_device(const std::string& stem) {
    constexpr std::array<std::string_view, 4> plain{"con", "prn", "aux", "nul"};
    constexpr std::array<std::string_view, 2> numbered{"com", "lpt"};
    std::string name = stem.substr(0, stem.find('.'));
    std::ranges::transform(name, name.begin(),
                           [](char letter) { return letter >= 'A' && letter <= 'Z' ? letter + 32 : letter; });
    const bool has_number = name.size() == 4 && name[3] >= '1' && name[3] <= '9';
    return std::ranges::count(plain, name) > 0 ||
           (has_number && std::ranges::count(numbered, name.substr(0, 3)) > 0);
}

// What some file system takes for something else becomes "_".
std::string stem_of(const std::string& palette_name) {
    constexpr std::string_view unfit = "/\\:*?\"<>|";
    std::string stem = cut_at_character(palette_name, longest_stem);
    if (stem.empty()) {
        return "palette";
    }
    std::ranges::replace_if(
        stem, [unfit](char letter) { return unfit.find(letter) != std::string_view::npos; }, '_');
    for (char* const end : {&stem.front(), &stem.back()}) {
        *end = *end == '.' || *end == ' ' ? '_' : *end;
    }
    return is_device(stem) ? "_" + stem : stem;
}

std::span<const std::uint8_t> bytes_of(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

} // namespace

Palette_List::Palette_List(const Palette_Store& store, std::string folder)
    : store_(store), folder_(std::move(folder)) {
    read_folder();
    read_first_shown();
}

void Palette_List::read_folder() {
    std::vector<std::string> names;
    for (const Folder_Entry& entry : folder_entries(folder_).value_or(std::vector<Folder_Entry>())) {
        if (entry.kind == Path_Kind::file && has_extension(entry.name, extension) &&
            names.size() < most_files) {
            names.push_back(entry.name);
        }
    }
    std::ranges::sort(names, is_listed_before);
    std::ranges::for_each(names, [this](const std::string& name) { read_file(name); });
}

void Palette_List::read_file(const std::string& name) {
    Palette_Reading reading = read_palette_file(path_of(name));
    if (reading.left_out > 0) {
        reading = {std::nullopt, "It has more than " + std::to_string(most_palette_colors) + " colors."};
    }
    if (!reading.palette) {
        note(name + " was left alone. " + reading.refusal);
        return;
    }
    reading.palette->name = free_name(clean_name(reading.palette->name), -1);
    insert({std::move(*reading.palette), name});
}

const Palette& Palette_List::palette(int index) const {
    return is_kept(index) ? kept(index).palette : store_.palette(index);
}

Palette_List::Kept_Palette& Palette_List::kept(int index) {
    return kept_.at(static_cast<std::size_t>(index - store_.size()));
}

const Palette_List::Kept_Palette& Palette_List::kept(int index) const {
    return kept_.at(static_cast<std::size_t>(index - store_.size()));
}

std::optional<int> Palette_List::find(std::string_view name) const {
    for (int i = 0; i < size(); ++i) {
        if (palette(i).name == name) {
            return i;
        }
    }
    return std::nullopt;
}

int Palette_List::add(Palette palette) {
    palette.name = free_name(clean_name(palette.name), -1);
    palette.colors.resize(std::min(palette.colors.size(), most_palette_colors));
    Kept_Palette kept{std::move(palette), {}};
    write(kept);
    return insert(std::move(kept));
}

int Palette_List::insert(Kept_Palette kept) {
    const auto place = std::ranges::find_if(kept_, [&kept](const Kept_Palette& other) {
        return is_listed_before(kept.palette.name, other.palette.name);
    });
    const auto inserted = kept_.insert(place, std::move(kept));
    return store_.size() + static_cast<int>(inserted - kept_.begin());
}

int Palette_List::change(int index, std::vector<Color> colors) {
    if (colors == palette(index).colors) {
        return index;
    }
    colors.resize(std::min(colors.size(), most_palette_colors));
    const int changed = is_kept(index) ? index : add(palette(index));
    Kept_Palette& kept_one = kept(changed);
    kept_one.before.push_back(std::exchange(kept_one.palette.colors, std::move(colors)));
    kept_one.after.clear();
    if (kept_one.before.size() > most_steps) {
        kept_one.before.erase(kept_one.before.begin());
    }
    write(kept_one);
    return changed;
}

// The old file goes when the new one is there.
int Palette_List::rename(int index, const std::string& name) {
    const int renamed = is_kept(index) ? index : add(palette(index));
    Kept_Palette taken = kept(renamed);
    taken.palette.name = free_name(clean_name(name), renamed);
    const std::string old_file = std::exchange(taken.file_name, {});
    write(taken);
    if (taken.file_name.empty()) {
        taken.file_name = old_file;
    } else if (!old_file.empty()) {
        remove_file(path_of(old_file));
    }
    kept_.erase(kept_.begin() + (renamed - store_.size()));
    return insert(std::move(taken));
}

void Palette_List::remove(int index) {
    const std::string file_name = kept(index).file_name;
    if (!file_name.empty() && !remove_file(path_of(file_name))) {
        note(file_name + " cannot be removed.");
        return;
    }
    kept_.erase(kept_.begin() + (index - store_.size()));
}

bool Palette_List::can_undo(int index) const {
    return is_kept(index) && !kept(index).before.empty();
}

bool Palette_List::can_redo(int index) const {
    return is_kept(index) && !kept(index).after.empty();
}

void Palette_List::undo(int index) {
    step(index, kept(index).before, kept(index).after);
}

void Palette_List::redo(int index) {
    step(index, kept(index).after, kept(index).before);
}

void Palette_List::step(int index, std::vector<std::vector<Color>>& from,
                        std::vector<std::vector<Color>>& to) {
    to.push_back(std::exchange(kept(index).palette.colors, std::move(from.back())));
    from.pop_back();
    write(kept(index));
}

// What cannot be written is tried again with the next change.
void Palette_List::write(Kept_Palette& kept) {
    const std::string name = kept.file_name.empty() ? free_file_name(kept.palette.name) : kept.file_name;
    if (make_folder(folder_) && write_file(path_of(name), bytes_of(gpl_text(kept.palette))) >= 0) {
        kept.file_name = name;
    } else {
        note(name + " cannot be written: the palette lasts until the program ends.");
    }
}

std::string Palette_List::free_name(const std::string& wanted, int own) const {
    const auto is_free = [&](const std::string& name) {
        const std::optional<int> found = find(name);
        return !found || *found == own;
    };
    std::string name = wanted;
    for (int number = 2; !is_free(name); ++number) {
        name = without_number(wanted) + " " + std::to_string(number);
    }
    return name;
}

std::string Palette_List::free_file_name(const std::string& palette_name) const {
    const std::string stem = stem_of(palette_name);
    std::string name = stem + "." + std::string(extension);
    for (int number = 2; path_kind(path_of(name)) != Path_Kind::nothing; ++number) {
        name = stem + " " + std::to_string(number) + "." + std::string(extension);
    }
    return name;
}

std::string Palette_List::path_of(const std::string& file_name) const {
    return joined_path(folder_, file_name);
}

// It is no loss when it cannot be written.
void Palette_List::set_first_shown(int index) {
    first_shown_ = index;
    if (!kept_.empty()) {
        static_cast<void>(write_file(path_of(first_shown_file), bytes_of(palette(index).name)));
    }
}

void Palette_List::read_first_shown() {
    std::string name(longest_name, ' ');
    if (const File_Handle file = open_file(path_of(first_shown_file), File_Mode::read)) {
        name.resize(read_bytes(file.get(), {reinterpret_cast<std::uint8_t*>(name.data()), name.size()}));
        first_shown_ = find(name).value_or(0);
    }
}

void Palette_List::note(const std::string& what) {
    note_ += note_.empty() ? what : " " + what;
}

std::string Palette_List::take_note() {
    return std::exchange(note_, {});
}

} // namespace quadrelle
