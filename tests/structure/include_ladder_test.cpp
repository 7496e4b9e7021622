// The order in which the rooms of src/ stand on each other: a file includes its own level or a lower one, and
// no two files include each other, directly or through others.

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace quadrelle {
namespace {

enum class Level { values, pixels, screen, widgets, panes, documents, editor, application };

constexpr std::array<std::string_view, 8> level_names{"values", "pixels",    "screen", "widgets",
                                                      "panes",  "documents", "editor", "application"};

struct Place {
    std::string_view prefix;
    Level level;
};

// The longest prefix that fits a file gives its level. Pixels may refresh the texture they are shown by.
// clang-format off
constexpr std::array places{
    Place{"color/",                       Level::values},
    Place{"app/atomic_file",              Level::values},
    Place{"app/command",                  Level::values},
    Place{"app/files",                    Level::values},
    Place{"app/fatal",                    Level::values},
    Place{"app/float_rectangle",          Level::values},
    Place{"app/geometry",                 Level::values},
    Place{"app/input",                    Level::values},
    Place{"app/pixel_rows",               Level::values},
    Place{"app/table",                    Level::values},
    Place{"app/version",                  Level::values},
    Place{"tileset/block_file",           Level::values},
    Place{"tileset/sprite_table",         Level::values},
    Place{"tileset/font_table",           Level::values},

    Place{"app/brush_feedback",           Level::pixels},
    Place{"app/canvas_painter",           Level::pixels},
    Place{"app/renderer",                 Level::pixels},
    Place{"app/streaming_texture",        Level::pixels},
    Place{"color/palette_store",          Level::pixels},
    Place{"tileset/",                     Level::pixels},
    Place{"selection/",                   Level::pixels},
    Place{"tools/",                       Level::pixels},

    Place{"app/data_directory",           Level::screen},
    Place{"app/cursor",                   Level::screen},
    Place{"app/events",                   Level::screen},
    Place{"app/screen",                   Level::screen},
    Place{"app/surface",                  Level::screen},
    Place{"app/text_input",               Level::screen},
    Place{"app/texture",                  Level::screen},
    Place{"app/opaque_texture",           Level::screen},
    Place{"app/edge_pictures",            Level::screen},
    Place{"app/pixel_image",              Level::screen},
    Place{"tileset/sprite_sheet",         Level::screen},

    Place{"ui/",                          Level::widgets},

    Place{"app/canvas_stroke",            Level::panes},
    Place{"app/canvas_view",              Level::panes},
    Place{"app/menu",                     Level::panes},
    Place{"app/options",                  Level::panes},
    Place{"color/color_handles",          Level::panes},
    Place{"color/hsv_selector",           Level::panes},
    Place{"color/palette_area",           Level::panes},
    Place{"color/variations",             Level::panes},
    Place{"selection/copy_panes",         Level::panes},
    Place{"tools/brush_pad_panes",        Level::panes},
    Place{"tools/brush_selector",         Level::panes},
    Place{"tools/tool_color",             Level::panes},
    Place{"tools/icon_bar",               Level::panes},
    Place{"tools/tool_options",           Level::panes},
    Place{"tileset/history_pane",         Level::panes},
    Place{"tileset/tile_navigation_pane", Level::panes},
    Place{"tileset/tile_strip_picture",   Level::panes},
    Place{"tools/toolbox",                Level::panes},
    Place{"app/strokes",                  Level::panes},
    Place{"app/selection_strokes",        Level::panes},
    Place{"views/",                       Level::panes},

    Place{"tileset/document",             Level::documents},
    Place{"tileset/file_dialog",          Level::documents},

    Place{"app/editor",                   Level::editor},

    Place{"app/application",              Level::application},
    Place{"main",                         Level::application},
};
// clang-format on

std::optional<Level> level_of(std::string_view file) {
    const Place* best = nullptr;
    for (const Place& place : places) {
        if (file.starts_with(place.prefix) && (!best || place.prefix.size() > best->prefix.size()))
            best = &place;
    }
    return best ? std::optional(best->level) : std::nullopt;
}

std::string_view name_of(Level level) {
    return level_names[static_cast<std::size_t>(level)];
}

// Files are named from src/ on.
struct Include {
    std::string from;
    std::string to;
    std::string where;
};

using Findings = std::vector<std::string>;

Findings files_without_place(const std::set<std::string>& files) {
    Findings findings;
    for (const std::string& file : files) {
        if (!level_of(file))
            findings.push_back("give " + file + " a place on the ladder");
    }
    return findings;
}

Findings upward_includes(const std::vector<Include>& includes) {
    Findings findings;
    for (const Include& include : includes) {
        const std::optional<Level> from = level_of(include.from);
        const std::optional<Level> to = level_of(include.to);
        if (from && to && *to > *from) {
            findings.push_back(include.where + ": " + std::string(name_of(*from)) + " includes " +
                               include.to + " of " + std::string(name_of(*to)));
        }
    }
    return findings;
}

class Cycle_Search {
public:
    explicit Cycle_Search(const std::vector<Include>& includes) {
        for (const Include& include : includes)
            targets_[include.from].push_back(&include);
    }

    Findings cycles() {
        for (const auto& [file, ignored] : targets_)
            visit(file);
        return findings_;
    }

private:
    void visit(const std::string& file) {
        if (!visited_.insert(file).second)
            return;
        open_.push_back(file);
        const auto found = targets_.find(file);
        if (found != targets_.end()) {
            for (const Include* include : found->second)
                follow(*include);
        }
        open_.pop_back();
    }

    void follow(const Include& include) {
        const auto start = std::find(open_.begin(), open_.end(), include.to);
        if (start == open_.end()) {
            visit(include.to);
            return;
        }
        std::string finding = include.where + ": closes a cycle: ";
        for (auto file = start; file != open_.end(); ++file)
            finding += *file + " -> ";
        findings_.push_back(finding + include.to);
    }

    std::map<std::string, std::vector<const Include*>> targets_;
    std::set<std::string> visited_;
    std::vector<std::string> open_;
    Findings findings_;
};

struct Source_Tree {
    std::set<std::string> files;
    std::vector<Include> includes;
};

std::optional<std::string> included_name(const std::string& line) {
    constexpr std::string_view start = "#include \"";
    if (!line.starts_with(start))
        return std::nullopt;
    return line.substr(start.size(), line.find('"', start.size()) - start.size());
}

void read_includes(const std::filesystem::path& root, const std::filesystem::path& file, Source_Tree& tree) {
    std::ifstream lines(root / file);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (const std::optional<std::string> name = included_name(line)) {
            const std::string where = "src/" + file.generic_string() + ":" + std::to_string(number);
            EXPECT_TRUE(std::filesystem::exists(root / *name)) << where << ": src/ has no " << *name;
            tree.includes.push_back({file.generic_string(), *name, where});
        }
    }
}

Source_Tree read_sources() {
    const std::filesystem::path root = std::filesystem::path(QUADRELLE_SOURCE_DIR) / "src";
    Source_Tree tree;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        const std::filesystem::path file = std::filesystem::relative(entry.path(), root);
        tree.files.insert(file.generic_string());
        read_includes(root, file, tree);
    }
    return tree;
}

std::string lines_of(const Findings& findings) {
    std::string text;
    for (const std::string& finding : findings)
        text += "\n  " + finding;
    return text;
}

TEST(include_ladder, sources_include_downwards_only) {
    const Source_Tree tree = read_sources();
    ASSERT_FALSE(tree.files.empty());
    ASSERT_FALSE(tree.includes.empty());
    const Findings homeless = files_without_place(tree.files);
    EXPECT_TRUE(homeless.empty()) << lines_of(homeless);
    const Findings upward = upward_includes(tree.includes);
    EXPECT_TRUE(upward.empty()) << lines_of(upward);
    const Findings cycles = Cycle_Search(tree.includes).cycles();
    EXPECT_TRUE(cycles.empty()) << lines_of(cycles);
}

TEST(include_ladder, finds_what_breaks_it) {
    EXPECT_EQ(files_without_place({"app/screen.h", "attic/box.h", "main.cpp"}),
              Findings{"give attic/box.h a place on the ladder"});
    EXPECT_EQ(upward_includes({{"ui/pane.h", "app/screen.h", "src/ui/pane.h:3"},
                               {"ui/pane.h", "ui/element.h", "src/ui/pane.h:4"},
                               {"tools/pen.cpp", "app/editor.h", "src/tools/pen.cpp:5"}}),
              Findings{"src/tools/pen.cpp:5: pixels includes app/editor.h of editor"});
    EXPECT_EQ(Cycle_Search({{"a.cpp", "a.h", "a.cpp:1"},
                            {"a.h", "b.h", "a.h:2"},
                            {"b.h", "c.h", "b.h:3"},
                            {"c.h", "b.h", "c.h:4"},
                            {"d.h", "a.h", "d.h:5"}})
                  .cycles(),
              Findings{"c.h:4: closes a cycle: b.h -> c.h -> b.h"});
}

} // namespace
} // namespace quadrelle
