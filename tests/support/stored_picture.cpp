#include "tests/support/stored_picture.h"

#include "base/platform_files.h"
#include "pixels/picture_formats.h"
#include "screen/screen.h"
#include "tests/support/files.h"

#include <SDL3/SDL_stdinc.h>

#include <algorithm>

namespace quadrelle::testing {

namespace {

constexpr Picture_Format format = picture_formats.front();

void write_picture(const std::string& path, const Tile& picture) {
    const std::vector<std::uint8_t> bytes = format.encode(picture);
    const File_Handle file = open_file(path, File_Mode::write);
    EXPECT_TRUE(file && !bytes.empty() && write_bytes(file.get(), bytes)) << path;
}

// Without pixels where there is no such picture.
Tile read_picture(const std::string& path) {
    const File_Handle file = open_file(path, File_Mode::read);
    std::vector<std::uint8_t> bytes(file ? static_cast<std::size_t>(file_size(file.get())) : 0);
    const bool is_read = file && read_bytes(file.get(), bytes) == bytes.size();
    return is_read ? format.decode(bytes).picture.value_or(Tile(0, 0)) : Tile(0, 0);
}

std::string differences(const Tile& shown, const Tile& stored) {
    std::vector<int> differing;
    for (int i = 0; i < shown.pixel_count(); ++i) {
        if (shown.get_pixel_at(i) != stored.get_pixel_at(i)) {
            differing.push_back(i);
        }
    }
    return std::to_string(differing.size()) + " pixels differ, the first at " +
           std::to_string(differing.front() % shown.width()) + ", " +
           std::to_string(differing.front() / shown.width());
}

} // namespace

void expect_stored_picture(const std::string& name, std::span<const std::uint32_t> window) {
    Tile shown(screen->size().width, screen->size().height);
    ASSERT_EQ(window.size(), shown.pixels().size());
    shown.map_colours([word = window.begin()](Color) mutable { return Color::from_word(*word++); });
    const std::string path = (source_folder() / "docs" / "pictures" / "expected" / (name + ".png")).string();
    if (SDL_getenv("QUADRELLE_WRITE_PICTURES") != nullptr) {
        write_picture(path, shown);
        GTEST_SKIP() << "written anew, and not compared: " << path;
    }
    const Tile stored = read_picture(path);
    ASSERT_EQ(stored.size(), shown.size()) << "no such picture: " << path;
    if (!std::ranges::equal(shown.pixels(), stored.pixels())) {
        const std::string copy = ::testing::TempDir() + name + ".png";
        write_picture(copy, shown);
        ADD_FAILURE() << differences(shown, stored) << "; stored: " << path << "; shown: " << copy;
    }
}

} // namespace quadrelle::testing
