// compose_sheet [--allow-missing] ART_FOLDER OUTPUT
//
// Writes the sheet of the art folder: OUTPUT.bmp is the sheet itself, OUTPUT.png an enlarged picture of it.

#include "compose.h"
#include "picture_files.h"

#include <fstream>
#include <iostream>
#include <string>

namespace {

int fail(const std::string& message) {
    std::cerr << message << '\n';
    return 1;
}

bool write_file(const std::filesystem::path& path, const quadrelle::Bytes& bytes) {
    std::ofstream stream(path, std::ios::binary);
    for (const std::uint8_t byte : bytes)
        stream.put(static_cast<char>(byte));
    stream.close();
    return stream.good();
}

} // namespace

int main(int argument_count, char** arguments) {
    std::vector<std::string> words(arguments + 1, arguments + argument_count);
    auto missing = quadrelle::Missing_Sprites::refused;
    if (!words.empty() && words[0] == "--allow-missing") {
        missing = quadrelle::Missing_Sprites::allowed;
        words.erase(words.begin());
    }
    if (words.size() != 2)
        return fail("usage: compose_sheet [--allow-missing] ART_FOLDER OUTPUT.bmp|OUTPUT.png");

    quadrelle::Problems problems;
    const quadrelle::Sheet_Picture sheet = quadrelle::compose(words[0], missing, problems);
    for (const std::string& line : problems.lines())
        fail(line);
    if (!problems.empty())
        return 1;

    const std::filesystem::path output = words[1];
    const bool is_png = output.extension() == ".png";
    const auto bytes = is_png ? quadrelle::encode_enlarged_png(sheet) : quadrelle::encode_bmp(sheet);
    return write_file(output, bytes) ? 0 : fail(words[1] + ": cannot be written");
}
