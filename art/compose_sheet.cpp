// compose_sheet [--allow-missing] ART_FOLDER OUTPUT
//
// Writes the sheet of the art folder: OUTPUT.bmp is the sheet itself, OUTPUT.png an enlarged picture of it.

#include "compose.h"
#include "picture_files.h"

#include <iostream>
#include <string>
#include <vector>

namespace {

int fail(const std::string& message) {
    std::cerr << message << '\n';
    return 1;
}

} // namespace

int main(int argument_count, char** arguments) {
    std::vector<std::string> words(arguments + 1, arguments + argument_count);
    auto missing = quadrelle::Missing_Sprites::refused;
    if (!words.empty() && words[0] == "--allow-missing") {
        missing = quadrelle::Missing_Sprites::allowed;
        words.erase(words.begin());
    }
    if (words.size() != 2) {
        return fail("usage: compose_sheet [--allow-missing] ART_FOLDER OUTPUT.bmp|OUTPUT.png");
    }

    quadrelle::Problems problems;
    const quadrelle::Sheet_Picture sheet = quadrelle::compose(words[0], missing, problems);
    for (const std::string& line : problems.lines()) {
        fail(line);
    }
    if (!problems.empty()) {
        return 1;
    }

    const std::filesystem::path output = words[1];
    const auto write = output.extension() == ".png" ? quadrelle::write_enlarged_png : quadrelle::write_bmp;
    return write(sheet, output) ? 0 : fail(words[1] + ": cannot be written");
}
