#include "views/self_check.h"

#include "base/atomic_file.h"
#include "base/block_file.h"
#include "base/data_directory.h"
#include "base/debug_monitor.h"
#include "base/file_names.h"
#include "base/platform_files.h"
#include "base/version.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "tileset/tileset_file.h"

#include <SDL3/SDL.h>

#include <array>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace quadrelle {

namespace {

struct Finding {
    bool is_good;
    std::string words;
};

struct Check {
    std::string_view subject;
    Finding (*find)();
};

// One text of several; a chain of "+" makes the compiler warn of what is not there.
std::string joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) {
        text.append(part);
    }
    return text;
}

std::string version_text(int version) {
    return joined({std::to_string(SDL_VERSIONNUM_MAJOR(version)), ".",
                   std::to_string(SDL_VERSIONNUM_MINOR(version)), ".",
                   std::to_string(SDL_VERSIONNUM_MICRO(version))});
}

Finding check_program() {
    const int present = SDL_GetVersion();
    const std::string words = joined(
        {product_name, " ", product_version, " on ", SDL_GetPlatform(), ", SDL ", version_text(present)});
    if (present < SDL_VERSION) {
        return {false,
                joined({words, ", older than ", version_text(SDL_VERSION), " that it was built with."})};
    }
    return {true, joined({words, "."})};
}

Finding check_window() {
    const char* const driver = SDL_GetCurrentVideoDriver();
    const Size size = screen->size();
    return {driver != nullptr, joined({std::to_string(size.width), " x ", std::to_string(size.height),
                                       " pixels by ", driver != nullptr ? driver : "no video driver",
                                       ", drawn by the ", screen->renderer_name(), " renderer."})};
}

bool shows_something(const Surface& sheet, const Rectangle& area) {
    for (int y = area.y; y < area.bottom(); ++y) {
        for (int x = area.x; x < area.right(); ++x) {
            if (sheet.get_pixel(x, y).a != 0) {
                return true;
            }
        }
    }
    return false;
}

Finding check_sprites() {
    for (const Sprite_Row& row : sprite_table) {
        if (!shows_something(screen->sprites().surface(), sprite_rect(row.id))) {
            return {false, "\"pool.bmp\" shows nothing where \"" + std::string(row.name) + "\" should be."};
        }
    }
    return {true, "\"pool.bmp\" has all " + std::to_string(sprite_table.size()) + " pictures."};
}

Finding check_fonts() {
    for (const Font_Row& font : font_table) {
        for (char letter = '0'; letter <= 'z'; ++letter) {
            if (screen->sprites().glyph_index(font.id, letter) < 0) {
                return {false, "The " + std::string(font.name) + " has no \"" + letter + "\"."};
            }
        }
    }
    return {true, "all " + std::to_string(font_count) + " have their letters."};
}

// A file that is gone again after the check.
class Scratch_File {
public:
    explicit Scratch_File(const std::string& folder)
        : path_(joined_path(folder, "quadrelle-test-" + std::to_string(process_number()) + ".qdl")) {}
    Scratch_File(const Scratch_File&) = delete;
    Scratch_File& operator=(const Scratch_File&) = delete;
    ~Scratch_File() { remove_file(path_); }
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_;
};

Finding check_data_folder() {
    const std::string folder = data_directory().path("");
    const Scratch_File scratch(folder);
    const std::array<std::uint8_t, 4> bytes{1, 2, 3, 4};
    if (write_file(scratch.path(), bytes) < 0) {
        return {false, folder + " cannot be written: options, palettes and brushes will not be kept."};
    }
    return {true, folder + " can be written."};
}

Tileset patterned_set() {
    Tileset tileset({24, 17});
    while (tileset.count() < 3) {
        tileset.add_tile();
        Tile& tile = *tileset.current_tile();
        for (int i = 0; i < tile.pixel_count(); ++i) {
            tile.set_pixel_at(i, {i % 256, i * 7 % 256, tileset.count() * 50, i * 3 % 256});
        }
    }
    return tileset;
}

bool is_equal(const Tileset& left, const Tileset& right) {
    if (left.count() != right.count()) {
        return false;
    }
    for (int i = 0; i < left.count(); ++i) {
        if (!left.tile_at(i).same_pixels(right.tile_at(i))) {
            return false;
        }
    }
    return true;
}

// The size is looked at first: a file that is too short ends the program.
bool comes_back(const Tileset& tileset, const std::string& path) {
    const std::int64_t size = save_tileset(tileset, path);
    Block_File file(path);
    if (size < 0 || !file.open_read() || file.remaining() != size) {
        return false;
    }
    file.close();
    const Loaded_Tileset loaded = load_tileset(path);
    return loaded.outcome == Load_Outcome::loaded && is_equal(tileset, *loaded.tileset);
}

// Not in the data folder: that it cannot be written is another fault, which was told.
Finding check_saving() {
    const Scratch_File scratch(temporary_folder());
    if (!comes_back(patterned_set(), scratch.path())) {
        return {false, "a set that was saved did not come back as it was."};
    }
    return {true, "a set that was saved came back as it was."};
}

// What lies there belongs to the user, so it is only looked at.
Finding check_clipboard() {
    std::size_t count = 0;
    char** const types = SDL_GetClipboardMimeTypes(&count);
    const bool answers = types != nullptr;
    SDL_free(types);
    if (!answers) {
        return {false, std::string("the system does not answer: ") + SDL_GetError()};
    }
    return {true, count == 0 ? "it answers and is empty."
                             : "it answers and holds something in " + std::to_string(count) + " formats."};
}

// clang-format off
constexpr std::array checks = std::to_array<Check>({
    {"Program",       check_program},
    {"Window",        check_window},
    {"Pictures",      check_sprites},
    {"Fonts",         check_fonts},
    {"Data folder",   check_data_folder},
    {"Save and load", check_saving},
    {"Clipboard",     check_clipboard},
});
// clang-format on

} // namespace

void check_installation() {
    trace("Test of the installation:");
    int faults = 0;
    for (const Check& check : checks) {
        const Finding finding = check.find();
        faults += finding.is_good ? 0 : 1;
        trace((finding.is_good ? "  ok     " : "  FAULT  ") + std::string(check.subject) + ": " +
              finding.words);
    }
    trace(faults == 0 ? "Everything works."
                      : std::to_string(faults) + " of " + std::to_string(checks.size()) + " did not work.");
}

} // namespace quadrelle
