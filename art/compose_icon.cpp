// compose_icon ART_FOLDER OUTPUT_FOLDER
//
// Writes the program's icon in all its sizes: quadrelle-16.png to quadrelle-256.png, and quadrelle.ico.

#include "icon_files.h"
#include "source_file.h"

#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace quadrelle {

namespace {

constexpr int largest_ico_of_its_own = 64;

struct Icon_Size {
    int size;
    int drawn; // the size of the grid that it is a multiple of
};
constexpr Icon_Size sizes[] = {{16, 16}, {24, 24}, {32, 32},  {48, 48},
                               {64, 32}, {96, 48}, {128, 32}, {256, 32}};

std::map<int, Cells> read_icon(const std::filesystem::path& folder, Problems& problems) {
    const Palette shared = read_palette(folder / "palette.txt", problems);
    const Source_File file = read_source(folder / "program_icon.txt", shared, problems);
    std::map<int, Cells> grids;
    for (const Block& block : file.blocks) {
        Cells cells = read_cells(block, file.palette, problems);
        const int size = cells.width();
        if (size != cells.height() || block.name != std::to_string(size)) {
            problems.add(block.place, "the grid is " + std::to_string(size) + " x " +
                                          std::to_string(cells.height()) + ", not " + block.name +
                                          " each way");
        }
        grids.insert_or_assign(size, std::move(cells));
    }
    for (const Icon_Size& icon : sizes) {
        if (!grids.contains(icon.drawn)) {
            problems.add("no grid for the icon of " + std::to_string(icon.drawn));
        }
    }
    return grids;
}

bool write_all(const std::map<int, Cells>& grids, const std::filesystem::path& folder) {
    std::vector<Scaled_Icon> for_windows;
    for (const Icon_Size& icon : sizes) {
        const Cells& cells = grids.at(icon.drawn);
        const int times = icon.size / icon.drawn;
        if (!write_icon_png(cells, times, folder / ("quadrelle-" + std::to_string(icon.size) + ".png"))) {
            return false;
        }
        if (icon.size <= largest_ico_of_its_own || icon.size == 256) {
            for_windows.push_back({&cells, times});
        }
    }
    return write_ico(for_windows, folder / "quadrelle.ico");
}

} // namespace

} // namespace quadrelle

int main(int argument_count, char** arguments) {
    const std::vector<std::string> words(arguments + 1, arguments + argument_count);
    if (words.size() != 2) {
        std::cerr << "usage: compose_icon ART_FOLDER OUTPUT_FOLDER\n";
        return 1;
    }
    quadrelle::Problems problems;
    const std::map<int, quadrelle::Cells> grids = quadrelle::read_icon(words[0], problems);
    for (const std::string& line : problems.lines()) {
        std::cerr << line << '\n';
    }
    if (!problems.empty()) {
        return 1;
    }
    if (!quadrelle::write_all(grids, words[1])) {
        std::cerr << words[1] << ": the icon cannot be written there\n";
        return 1;
    }
    return 0;
}
