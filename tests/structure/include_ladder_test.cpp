// The folders of src/ are a ladder: a file includes its own folder or one before it in the order below, and
// no two units, each a header with its source, include each other, directly or through others.

#include "tests/support/files.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

namespace quadrelle::testing {
namespace {

constexpr std::array<std::string_view, 14> ladder{"base",      "color", "commands", "pixels", "tools",
                                                  "selection", "map",   "tileset",  "screen", "ui",
                                                  "canvas",    "panes", "views",    "app"};

// Files are named from src/ on. What stands in no folder, main.cpp, is above all.
struct Include {
    std::string from;
    std::string to;
};

using Findings = std::vector<std::string>;

std::string folder_of(const std::string& file) {
    return std::filesystem::path(file).parent_path().generic_string();
}

std::size_t level_of(const std::string& file) {
    return static_cast<std::size_t>(std::ranges::find(ladder, folder_of(file)) - ladder.begin());
}

std::string unit_of(const std::string& file) {
    return std::filesystem::path(file).replace_extension().generic_string();
}

Findings upward_includes(const std::vector<Include>& includes) {
    Findings findings;
    for (const Include& include : includes) {
        if (level_of(include.to) > level_of(include.from)) {
            findings.push_back(include.from + " includes " + include.to + ", which stands above it");
        }
    }
    return findings;
}

// What is left when units that include none of the others, or that none of the others includes, go one after
// the other.
std::set<std::string> units_in_circles(const std::vector<Include>& includes) {
    std::set<std::pair<std::string, std::string>> edges;
    for (const Include& include : includes) {
        edges.insert({unit_of(include.from), unit_of(include.to)});
    }
    std::erase_if(edges, [](const auto& edge) { return edge.first == edge.second; });
    std::set<std::string> left;
    for (std::size_t before = edges.size() + 1; edges.size() < before;) {
        before = edges.size();
        std::set<std::string> including;
        std::set<std::string> included;
        for (const auto& [from, to] : edges) {
            including.insert(from);
            included.insert(to);
        }
        left.clear();
        std::ranges::set_intersection(including, included, std::inserter(left, left.begin()));
        std::erase_if(edges, [&](const auto& edge) {
            return !left.contains(edge.first) || !left.contains(edge.second);
        });
    }
    return left;
}

std::vector<Include> read_includes() {
    constexpr std::string_view start = "#include \"";
    const std::filesystem::path root = source_folder() / "src";
    std::vector<Include> includes;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string file = std::filesystem::relative(entry.path(), root).generic_string();
        const bool has_place = level_of(file) < ladder.size() || file == "main.cpp";
        EXPECT_TRUE(has_place || entry.is_directory()) << file << " is in no folder of the ladder";
        std::ifstream lines(entry.path());
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(start)) {
                includes.push_back({file, line.substr(start.size(), line.rfind('"') - start.size())});
            }
        }
    }
    return includes;
}

TEST(Include_Ladder, sources_include_downwards_only) {
    const std::vector<Include> includes = read_includes();
    EXPECT_FALSE(includes.empty());
    EXPECT_EQ(upward_includes(includes), Findings());
    EXPECT_EQ(units_in_circles(includes), std::set<std::string>());
}

TEST(Include_Ladder, finds_what_breaks_it) {
    EXPECT_EQ(upward_includes({{"ui/pane.h", "screen/screen.h"},
                               {"main.cpp", "app/start_up.h"},
                               {"tools/pens.cpp", "ui/pane.h"}}),
              Findings{"tools/pens.cpp includes ui/pane.h, which stands above it"});
    EXPECT_EQ(units_in_circles({{"a.cpp", "a.h"}, {"a.h", "b.h"}, {"b.cpp", "c.h"}, {"c.h", "b.h"}}),
              (std::set<std::string>{"b", "c"}));
}

} // namespace
} // namespace quadrelle::testing
