// The folders of src/ are a ladder: a file includes its own folder or one before it in the order below, and
// no two units, each a header with its source, include each other, directly or through others.

#include "tests/support/files.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <set>
#include <string_view>

namespace quadrelle::testing {
namespace {

constexpr std::array<std::string_view, 13> ladder{"base",      "color",   "commands", "pixels", "tools",
                                                  "selection", "tileset", "screen",   "ui",     "canvas",
                                                  "panes",     "views",   "app"};

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

class Circle_Search {
public:
    explicit Circle_Search(const std::vector<Include>& includes) {
        for (const Include& include : includes) {
            if (unit_of(include.from) != unit_of(include.to)) {
                targets_[unit_of(include.from)].insert(unit_of(include.to));
            }
        }
    }

    Findings circles() {
        for (const auto& [unit, ignored] : targets_) {
            visit(unit);
        }
        return findings_;
    }

private:
    void visit(const std::string& unit) {
        const auto start = std::ranges::find(open_, unit);
        if (start != open_.end()) {
            std::string finding = "circle: ";
            std::for_each(start, open_.end(), [&](const std::string& step) { finding += step + " -> "; });
            findings_.push_back(finding + unit);
        } else if (visited_.insert(unit).second) {
            open_.push_back(unit);
            for (const std::string& target : targets_[unit]) {
                visit(target);
            }
            open_.pop_back();
        }
    }

    std::map<std::string, std::set<std::string>> targets_;
    std::set<std::string> visited_;
    std::vector<std::string> open_;
    Findings findings_;
};

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
    EXPECT_EQ(Circle_Search(includes).circles(), Findings());
}

TEST(Include_Ladder, finds_what_breaks_it) {
    EXPECT_EQ(upward_includes({{"ui/pane.h", "screen/screen.h"},
                               {"main.cpp", "app/start_up.h"},
                               {"tools/pens.cpp", "ui/pane.h"}}),
              Findings{"tools/pens.cpp includes ui/pane.h, which stands above it"});
    EXPECT_EQ(Circle_Search({{"a.cpp", "a.h"}, {"a.h", "b.h"}, {"b.cpp", "c.h"}, {"c.h", "b.h"}}).circles(),
              Findings{"circle: b -> c -> b"});
}

} // namespace
} // namespace quadrelle::testing
