#include "color/palette_list.h"

#include "base/block_file.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "color/palette_names.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <utility>

namespace quadrelle {

std::unique_ptr<Palette_List> palette_list;

namespace {

constexpr std::string_view extension = "gpl";
constexpr const char* first_shown_file = "shown.txt";
constexpr std::size_t most_files = 1000;
constexpr std::size_t most_steps = 100;

// 0 for a file that cannot be read, or that nobody wrote here.
std::size_t fingerprint_of(const std::string& path) {
    const File_Handle file = open_file(path, File_Mode::read);
    const std::int64_t size = file ? file_size(file.get()) : -1;
    constexpr std::int64_t largest = 4 << 20;
    if (size < 0 || size > largest) {
        return 0;
    }
    std::string content(static_cast<std::size_t>(size), ' ');
    content.resize(read_bytes(file.get(), {reinterpret_cast<std::uint8_t*>(content.data()), content.size()}));
    return std::hash<std::string>()(content);
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
        if (entry.kind == Path_Kind::file && has_extension(entry.name, extension)) {
            names.push_back(entry.name);
        }
    }
    std::ranges::sort(names, is_listed_before);
    if (names.size() > most_files) {
        note("Of " + std::to_string(names.size()) + " palettes only " + std::to_string(most_files) +
             " are read.");
        names.resize(most_files);
    }
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
    insert({std::move(*reading.palette), name, fingerprint_of(path_of(name))});
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
    if (palette.colors.size() > most_palette_colors) {
        note("Only " + std::to_string(most_palette_colors) + " of its " +
             std::to_string(palette.colors.size()) + " colors have room in the copy.");
        palette.colors.resize(most_palette_colors);
    }
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
    if (!is_kept(index) && colors.size() > most_palette_colors) {
        note("Nothing is changed: a copy has room for " + std::to_string(most_palette_colors) +
             " colors only.");
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
    if (clean_name(name) == palette(index).name) {
        return index;
    }
    const int renamed = is_kept(index) ? index : add(palette(index));
    Kept_Palette taken = kept(renamed);
    taken.palette.name = free_name(clean_name(name), renamed);
    const bool may_remove = !taken.file_name.empty() && !was_changed_by_others(taken);
    const std::string old_file = taken.file_name;
    if (!try_to_write(taken, free_file_name(taken.palette.name))) {
        note("The new name cannot be written: it is called " + kept(renamed).palette.name + " as before.");
        return renamed;
    }
    if (may_remove) {
        remove_file(path_of(old_file));
    }
    kept_.erase(kept_.begin() + (renamed - store_.size()));
    return insert(std::move(taken));
}

void Palette_List::remove(int index) {
    const std::string file_name = kept(index).file_name;
    if (was_changed_by_others(kept(index))) {
        note(file_name + " was changed by another program and stays.");
    } else if (!file_name.empty() && !remove_file(path_of(file_name)) &&
               path_kind(path_of(file_name)) != Path_Kind::nothing) {
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
    if (was_changed_by_others(kept)) {
        leave_changed_file(kept);
    }
    const std::string name = kept.file_name.empty() ? free_file_name(kept.palette.name) : kept.file_name;
    if (!try_to_write(kept, name)) {
        note(name + " cannot be written: the palette lasts until the program ends.");
    }
}

bool Palette_List::try_to_write(Kept_Palette& kept, const std::string& name) {
    const std::string text = gpl_text(kept.palette);
    if (!make_folder(folder_) || write_file(path_of(name), bytes_of(text)) < 0) {
        return false;
    }
    kept.file_name = name;
    kept.fingerprint = std::hash<std::string>()(text);
    return true;
}

// The other program's file keeps the name.
void Palette_List::leave_changed_file(Kept_Palette& kept) {
    const std::string file_name = std::exchange(kept.file_name, {});
    kept.palette.name = free_name(kept.palette.name, -1);
    note(file_name + " was changed by another program and stays as it is: the palette is called " +
         kept.palette.name + " now.");
}

bool Palette_List::was_changed_by_others(const Kept_Palette& kept) const {
    return !kept.file_name.empty() && path_kind(path_of(kept.file_name)) == Path_Kind::file &&
           fingerprint_of(path_of(kept.file_name)) != kept.fingerprint;
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
    const std::string stem = palette_stem(palette_name);
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
    const std::string path = path_of(first_shown_file);
    const bool is_wanted = !kept_.empty() || path_kind(path) == Path_Kind::file;
    if (is_wanted && palette(index).name != first_shown_name_) {
        first_shown_name_ = palette(index).name;
        static_cast<void>(write_file(path, bytes_of(first_shown_name_)));
    }
}

void Palette_List::read_first_shown() {
    std::string name(longest_palette_name, ' ');
    if (const File_Handle file = open_file(path_of(first_shown_file), File_Mode::read)) {
        name.resize(read_bytes(file.get(), {reinterpret_cast<std::uint8_t*>(name.data()), name.size()}));
        first_shown_ = find(name).value_or(0);
        first_shown_name_ = name;
    }
}

void Palette_List::note(const std::string& what) {
    note_ += note_.empty() ? what : " " + what;
}

std::string Palette_List::take_note() {
    return std::exchange(note_, {});
}

} // namespace quadrelle
