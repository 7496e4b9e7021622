// Palettes and small pictures of colours that a script and another program wrote.

#include "color/palette_formats.h"
#include "pixels/color_use.h"
#include "pixels/picture_formats.h"
#include "tests/support/files.h"

#include <cstdlib>
#include <sstream>

namespace quadrelle::testing {
namespace {

// As the palette pane takes them in.
std::vector<Color> colors_in(const std::string& path) {
    const Decoded_Picture decoded =
        is_color_table(path) ? Decoded_Picture{{}, Picture_Fault::unknown} : read_picture(path);
    std::vector<Color> colors;
    if (decoded.picture) {
        for (const Color_Use& use : colors_by_use(std::array{&*decoded.picture})) {
            colors.push_back(use.color);
        }
    } else if (decoded.fault == Picture_Fault::unknown) {
        const Palette_Reading reading = read_palette_file(path);
        EXPECT_NE(reading.palette.has_value(), !reading.refusal.empty());
        colors = reading.palette ? reading.palette->colors : colors;
    }
    return colors;
}

TEST(Foreign_Palettes, are_taken_whole_or_refused) {
    const Temporary_Folder folder;
    const std::string script = (source_folder() / "tests/pixels/foreign_palettes.py").string();
    ASSERT_EQ(std::system(("python3 '" + script + "' '" + folder.native_path().string() + "'").c_str()), 0);
    std::istringstream expected(stored_text(folder.path("expected")));
    int files = 0;
    for (std::string name; std::getline(expected, name, '\t'); ++files) {
        SCOPED_TRACE(name);
        std::string digits;
        std::getline(expected, digits);
        EXPECT_EQ(colors_in(folder.path(name)),
                  read_hex_colors(digits).palette.value_or(Palette("", 0)).colors);
    }
    EXPECT_GT(files, 100);
}

} // namespace
} // namespace quadrelle::testing
