#include "color/palette_store.h"

#include "base/block_file.h"
#include "base/data_stream.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace quadrelle {

std::unique_ptr<Palette_Store> palette_store;

namespace {

// What a file may ask for: beyond this it is no file of ours.
constexpr int most_palettes = 256;
constexpr int most_entries = 1024;

struct Built_In_Palette {
    std::string_view name;
    std::array<std::uint32_t, 32> entries; // 0xRRGGBB, black where none is given
};

// Entry 1 of "MSX" is not black on purpose: it stays distinct from entry 0.
constexpr std::array built_in_palettes = {
    Built_In_Palette{"Default",
                     {0xffffff, 0x000000, 0x61127c, 0x846eea, 0x2600dc, 0x2669e6, 0x7496d4, 0x14d2f2,
                      0xa3ced6, 0x0fc6ae, 0x30645d, 0x21149d, 0x12640f, 0x91cc2b, 0x4b6421, 0x7e7e11,
                      0xecec16, 0xc8aa4b, 0xf68d0f, 0x844c09, 0xf2503b, 0xea2c12, 0x881506, 0x8e4c43,
                      0x704f3a, 0x7c626f, 0x5d5566, 0x586472, 0x667c71, 0x67705e, 0xe6137a, 0xae0099}},
    Built_In_Palette{"EGA",
                     {0x000000, 0x0000aa, 0x00aa00, 0x00aaaa, 0xaa0000, 0xaa00aa, 0xaa5500, 0xaaaaaa,
                      0x555555, 0x5555ff, 0x55ff55, 0x55ffff, 0xff5555, 0xff55ff, 0xffff55, 0xffffff}},
    Built_In_Palette{"MSX",
                     {0x000000, 0x010101, 0x3eb849, 0x74d07d, 0x5955e0, 0x8076f1, 0xb95e51, 0x65dbef,
                      0xdb6559, 0xff897d, 0xccc35e, 0xded087, 0x3aa241, 0xb766b5, 0xcccccc, 0xffffff}},
};
static_assert(built_in_palettes.size() == 3);

std::vector<Palette> make_built_in_palettes() {
    constexpr std::uint32_t opaque = 0xff000000;
    std::vector<Palette> palettes;
    for (const Built_In_Palette& source : built_in_palettes) {
        Palette& palette =
            palettes.emplace_back(std::string(source.name), static_cast<int>(source.entries.size()));
        std::ranges::transform(source.entries, palette.colors.begin(),
                               [](std::uint32_t entry) { return Color::from_word(opaque | entry); });
    }
    return palettes;
}

// The entries are deliberately not read although they are written: a loaded palette is black, and the
// name is whatever token follows the count.
std::vector<Palette> read_palettes(Data_Stream& record) {
    const int announced = record.read_int();
    std::vector<Palette> palettes;
    for (int i = 0; i < std::min(announced, most_palettes) && !record.is_at_end(); ++i) {
        const int count = std::clamp(record.read_int(), 0, most_entries);
        palettes.emplace_back(record.read_text(), count);
    }
    return palettes;
}

void write_palette(Data_Stream& record, Palette& palette) {
    record.write_int(static_cast<std::int32_t>(palette.colors.size()));
    for (const Color color : palette.colors) {
        record.write_quad({color.r, color.g, color.b, color.a});
    }
    record.write_text(palette.name);
}

} // namespace

Palette_Store::Palette_Store(std::string file_name) : file_name_(std::move(file_name)) {
    load();
    if (palettes_.empty()) {
        palettes_ = make_built_in_palettes();
    }
}

Palette_Store::~Palette_Store() {
    if (changed_) {
        save();
    }
}

void Palette_Store::load() {
    Block_File file(file_name_);
    if (file.open_read()) {
        Data_Stream record;
        record.load_from(file);
        palettes_ = read_palettes(record);
    }
}

void Palette_Store::save() {
    Data_Stream record;
    record.write_int(size());
    for (Palette& palette : palettes_) {
        write_palette(record, palette);
    }
    static_cast<void>(record.save_to(file_name_));
}

const Palette* Palette_Store::find(int palette) const {
    return palette >= 0 && palette < size() ? &palettes_[static_cast<std::size_t>(palette)] : nullptr;
}

int Palette_Store::count(int palette) const {
    const Palette* found = find(palette);
    return found == nullptr ? 0 : static_cast<int>(found->colors.size());
}

std::string Palette_Store::name(int palette) const {
    const Palette* found = find(palette);
    return found == nullptr ? std::string() : found->name;
}

Color Palette_Store::color(int palette, int entry) const {
    const bool exists = entry >= 0 && entry < count(palette);
    return exists ? find(palette)->colors[static_cast<std::size_t>(entry)] : Color();
}

void Palette_Store::set_color(int palette, int entry, Color color) {
    if (entry >= 0 && entry < count(palette)) {
        palettes_[static_cast<std::size_t>(palette)].colors[static_cast<std::size_t>(entry)] = color;
        changed_ = true;
    }
}

} // namespace quadrelle
