#include "compose.h"

#include "font_sources.h"
#include "source_file.h"

namespace quadrelle {

namespace {

std::vector<Source_File> read_sources(const std::filesystem::path& folder, const Palette& shared,
                                      Problems& problems) {
    std::vector<Source_File> files;
    for (const auto& path : text_files(folder, problems)) {
        files.push_back(read_source(path, shared, problems));
    }
    return files;
}

} // namespace

Sheet_Picture compose(const std::filesystem::path& art_folder, Missing_Sprites missing, Problems& problems) {
    const Palette palette = read_palette(art_folder / "palette.txt", problems);
    Sheet_Picture sheet;
    draw_sprites(sheet, read_sources(art_folder / "sprites", palette, problems), missing, problems);
    draw_fonts(sheet, read_sources(art_folder / "fonts", palette, problems), problems);
    return sheet;
}

} // namespace quadrelle
