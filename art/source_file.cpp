#include "source_file.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <string_view>

namespace quadrelle {

namespace {

constexpr std::array<std::string_view, 6> keywords{"from", "on", "shift", "recolour", "top", "shadow"};

bool is_keyword(std::string_view word) {
    return std::find(keywords.begin(), keywords.end(), word) != keywords.end();
}

void append_word(std::string& text, const std::string& word) {
    if (!text.empty()) {
        text += ' ';
    }
    text += word;
}

void read_head(Block& block, const std::string& text, Problems& problems) {
    std::string* part = &block.name;
    for (const std::string& word : split_words(text)) {
        if (!is_keyword(word)) {
            append_word(*part, word);
            continue;
        }
        if (block.clauses.contains(word)) {
            problems.add(block.place, "\"" + word + "\" stands twice");
        }
        part = &block.clauses[word];
    }
    if (block.name.empty()) {
        problems.add(block.place, "a head without a name");
    }
}

std::string trimmed(std::string line) {
    line.erase(line.find_last_not_of(" \t\r") + 1);
    return line;
}

// Colours are never named by a blank, so only a row has none.
bool is_row(const std::string& line) {
    return !line.empty() && line.find(' ') == std::string::npos;
}

class Source_Reader {
public:
    Source_Reader(Source_File& file, Problems& problems) : file_(file), problems_(problems) {}

    void read_line(const Place& place, const std::string& line) {
        if (inside_block_ && is_row(line)) {
            file_.blocks.back().rows.push_back({place, line});
            return;
        }
        inside_block_ = false;
        if (line.empty() || line[0] == '#') {
            return;
        }
        const std::string_view start = std::string_view(line).substr(0, 2);
        if (start == ": ") {
            read_colour(place, line);
        } else if (start == "= " || start == "@ ") {
            start_block(place, line);
        } else {
            problems_.add(place, "a line that belongs to no grid: " + line);
        }
    }

private:
    void read_colour(const Place& place, const std::string& line) {
        if (!file_.palette.define(std::string_view(line).substr(2))) {
            problems_.add(place, "a colour line reads \": X rrggbb\": " + line);
        }
    }

    void start_block(const Place& place, const std::string& line) {
        Block& block = file_.blocks.emplace_back();
        block.sign = line[0];
        block.place = place;
        read_head(block, line.substr(2), problems_);
        inside_block_ = true;
    }

    Source_File& file_;
    Problems& problems_;
    bool inside_block_ = false;
};

bool is_licence(const std::filesystem::path& path) {
    return path.stem().string().starts_with("LICENSE");
}

template <typename Take_Line>
void read_lines(const std::filesystem::path& path, Problems& problems, Take_Line take_line) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        problems.add(path.generic_string() + ": cannot be read");
    }
    Place place{path.generic_string(), 0};
    for (std::string line; std::getline(stream, line);) {
        ++place.line;
        take_line(place, trimmed(line));
    }
}

} // namespace

std::vector<std::string> split_words(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

Palette read_palette(const std::filesystem::path& path, Problems& problems) {
    Palette palette;
    read_lines(path, problems, [&](const Place& place, const std::string& line) {
        const bool is_comment = line.empty() || line[0] == '#';
        if (!is_comment && !palette.define(line)) {
            problems.add(place, "a colour line reads \"X rrggbb\": " + line);
        }
    });
    return palette;
}

Source_File read_source(const std::filesystem::path& path, const Palette& shared, Problems& problems) {
    Source_File file{shared, {}};
    Source_Reader reader(file, problems);
    read_lines(path, problems,
               [&](const Place& place, const std::string& line) { reader.read_line(place, line); });
    return file;
}

std::vector<std::filesystem::path> text_files(const std::filesystem::path& folder, Problems& problems) {
    std::vector<std::filesystem::path> paths;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.path().extension() == ".txt" && !is_licence(entry.path())) {
            paths.push_back(entry.path());
        }
    }
    if (error) {
        problems.add(folder.generic_string() + ": " + error.message());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

} // namespace quadrelle
