#pragma once

// Reads a text of grids: heads that begin with "= " or "@ ", rows below them, palette lines ": X rrggbb".
// Knows the shape of the text, not what the grids are for.

#include "palette.h"
#include "problems.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace quadrelle {

struct Row {
    Place place;
    std::string text;
};

// "= icon pen selected from icon pen on lit plate": the name, and the words behind each keyword.
struct Block {
    char sign = '=';
    std::string name;
    std::map<std::string, std::string> clauses;
    Place place;
    std::vector<Row> rows;
};

struct Source_File {
    Palette palette;
    std::vector<Block> blocks;
};

// A file that cannot be read is a problem and gives an empty palette.
Palette read_palette(const std::filesystem::path& path, Problems& problems);

// The file's own palette lines add to the shared ones or replace them.
Source_File read_source(const std::filesystem::path& path, const Palette& shared, Problems& problems);

// The .txt files of a folder in the order of their names, without the licences.
std::vector<std::filesystem::path> text_files(const std::filesystem::path& folder, Problems& problems);

std::vector<std::string> split_words(const std::string& text);

} // namespace quadrelle
