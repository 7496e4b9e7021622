// Whole sessions of random work, compared with a simple model after every step.

#include "commands/command_table.h"
#include "panes/tool_colors.h"
#include "tests/whole/program_test.h"
#include "tileset/tileset_file.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace quadrelle::testing {
namespace {

// Half of it is odd: a seam shift is not its own inverse.
constexpr int edge = 26;
constexpr int seam_shift = 12;

class Model_Picture {
public:
    [[nodiscard]] static bool contains(Tile_Point at) {
        return at.x >= 0 && at.y >= 0 && at.x < edge && at.y < edge;
    }
    [[nodiscard]] Color get(Tile_Point at) const { return pixels_.at(index(at)); }
    void set(Tile_Point at, Color color) {
        if (contains(at)) {
            pixels_.at(index(at)) = color;
        }
    }
    // Every pixel from where `source` says.
    template <typename Source>
    [[nodiscard]] Model_Picture moved(Source source) const {
        Model_Picture result;
        for (int y = 0; y < edge; ++y) {
            for (int x = 0; x < edge; ++x) {
                result.set({x, y}, get(source(Tile_Point{x, y})));
            }
        }
        return result;
    }
    [[nodiscard]] Model_Picture scrolled(int dx, int dy) const {
        return moved([dx, dy](Tile_Point to) {
            return Tile_Point{(to.x - dx + edge) % edge, (to.y - dy + edge) % edge};
        });
    }
    [[nodiscard]] bool is_shown_by(const Tile& tile) const {
        return std::ranges::equal(pixels_, tile.pixels());
    }
    bool operator==(const Model_Picture&) const = default;

private:
    [[nodiscard]] static std::size_t index(Tile_Point at) {
        return static_cast<std::size_t>(at.y * edge + at.x);
    }
    std::array<Color, edge * edge> pixels_{};
};

// Of one pixel's width; straight where the tool is a pen or a line.
struct Model_Stroke {
    Command tool;
    Tile_Point from;
    Tile_Point to;
    Color color;
};

void fill_area(Model_Picture& picture, Tile_Point seed, Color color) {
    if (!Model_Picture::contains(seed) || picture.get(seed) == color) {
        return;
    }
    const Color old = picture.get(seed);
    std::vector<Tile_Point> waiting{seed};
    while (!waiting.empty()) {
        const Tile_Point at = waiting.back();
        waiting.pop_back();
        if (Model_Picture::contains(at) && picture.get(at) == old) {
            picture.set(at, color);
            waiting.insert(waiting.end(),
                           {{at.x + 1, at.y}, {at.x - 1, at.y}, {at.x, at.y + 1}, {at.x, at.y - 1}});
        }
    }
}

void draw(Model_Picture& picture, const Model_Stroke& stroke) {
    if (stroke.tool == Command::flood_fill) {
        fill_area(picture, stroke.from, stroke.color);
        return;
    }
    const auto [left, right] = std::minmax(stroke.from.x, stroke.to.x);
    const auto [top, bottom] = std::minmax(stroke.from.y, stroke.to.y);
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const bool is_edge = x == left || x == right || y == top || y == bottom;
            if (is_edge || stroke.tool == Command::filled_rectangle) {
                picture.set({x, y}, stroke.color);
            }
        }
    }
}

Model_Picture transformed(const Model_Picture& picture, Command command) {
    constexpr int last = edge - 1;
    switch (command) {
    case Command::rotate: return picture.moved([](Tile_Point to) { return Tile_Point{to.y, last - to.x}; });
    case Command::rotate_back:
        return picture.moved([](Tile_Point to) { return Tile_Point{last - to.y, to.x}; });
    case Command::mirror: return picture.moved([](Tile_Point to) { return Tile_Point{last - to.x, to.y}; });
    case Command::flip: return picture.moved([](Tile_Point to) { return Tile_Point{to.x, last - to.y}; });
    case Command::scroll_left: return picture.scrolled(-1, 0);
    case Command::scroll_up: return picture.scrolled(0, -1);
    default: return picture;
    }
}

// What a user expects, with every tile and every state kept as a full picture, none of them shifted.
class Model {
public:
    Model() { record(); }

    void stroke(const Model_Stroke& stroke) {
        Model_Picture shown = shifted(current().picture);
        draw(shown, stroke);
        change_to(shifted_back(shown), Record::changes_only);
    }
    void transform(Command command) { change_to(transformed(current().picture, command), Record::always); }
    void next() {
        end_shifts();
        if (current_ + 1 < tiles_.size()) {
            ++current_;
            record();
        }
    }
    void previous() {
        end_shifts();
        if (current_ > 0) {
            --current_;
            record();
        }
    }
    void add() {
        end_shifts();
        tiles_.push_back(blank());
        current_ = tiles_.size() - 1;
    }
    void insert() {
        end_shifts();
        tiles_.insert(tiles_.begin() + static_cast<std::ptrdiff_t>(current_), blank());
    }
    void erase() {
        end_shifts();
        const int id = current().id;
        tiles_.erase(tiles_.begin() + static_cast<std::ptrdiff_t>(current_));
        if (tiles_.empty()) {
            tiles_.push_back(blank());
        }
        current_ = std::min(current_, tiles_.size() - 1);
        forget(id);
    }
    void undo() {
        if (position_ > 0) {
            --position_;
            restore();
        }
    }
    void redo() {
        if (position_ + 1 < states_.size()) {
            ++position_;
            restore();
        }
    }
    void toggle_horizontal() { horizontal_ = seam_shift - horizontal_; }
    void toggle_vertical() { vertical_ = seam_shift - vertical_; }
    void end_shifts() { horizontal_ = vertical_ = 0; }

    void expect_shown_by(const Tileset& tileset) const {
        ASSERT_EQ(tileset.count(), static_cast<int>(tiles_.size()));
        EXPECT_EQ(tileset.current_index(), static_cast<int>(current_));
        for (std::size_t i = 0; i < tiles_.size(); ++i) {
            const Model_Picture& picture = tiles_[i].picture;
            const Model_Picture shown = i == current_ ? shifted(picture) : picture;
            EXPECT_TRUE(shown.is_shown_by(tileset.tile_at(static_cast<int>(i)))) << "tile " << i;
        }
    }

private:
    enum class Record { changes_only, always };
    struct State {
        int id; // of the tile, whatever its place
        Model_Picture picture;
    };

    State blank() { return {next_id_++, {}}; }
    State& current() { return tiles_[current_]; }
    [[nodiscard]] Model_Picture shifted(const Model_Picture& picture) const {
        return picture.scrolled(horizontal_, vertical_);
    }
    [[nodiscard]] Model_Picture shifted_back(const Model_Picture& picture) const {
        return picture.scrolled(-horizontal_, -vertical_);
    }
    void change_to(const Model_Picture& picture, Record what) {
        if (what == Record::changes_only && picture == current().picture) {
            return;
        }
        if (states_[position_].id != current().id) {
            record();
        }
        current().picture = picture;
        record();
    }
    void record() {
        if (!states_.empty()) {
            states_.resize(position_ + 1, {});
        }
        states_.push_back(tiles_[current_]);
        if (states_.size() > 18) {
            states_.erase(states_.begin());
        }
        position_ = states_.size() - 1;
    }
    void restore() {
        const State& state = states_[position_];
        const auto tile = std::ranges::find(tiles_, state.id, &State::id);
        ASSERT_NE(tile, tiles_.end());
        tile->picture = state.picture;
        if (tile != tiles_.begin() + static_cast<std::ptrdiff_t>(current_)) {
            end_shifts();
            current_ = static_cast<std::size_t>(tile - tiles_.begin());
        }
    }
    void forget(int id) {
        std::vector<State> undoable(states_.begin(),
                                    states_.begin() + static_cast<std::ptrdiff_t>(position_) + 1);
        std::erase_if(undoable, [id](const State& state) { return state.id == id; });
        if (undoable.empty()) {
            states_.clear();
            record();
            return;
        }
        position_ = undoable.size() - 1;
        std::erase_if(states_, [id](const State& state) { return state.id == id; });
    }

    int next_id_ = 0;
    std::vector<State> tiles_{blank()};
    std::size_t current_ = 0;
    std::vector<State> states_;
    std::size_t position_ = 0;
    int horizontal_ = 0;
    int vertical_ = 0;
};

class Session_Test : public Program_Test {
protected:
    void SetUp() override {
        Program_Test::SetUp();
        editor->documents().new_document({edge, edge});
        path_ = folder().data_path("session.qdl");
        answer_files(File_Answer_State::chosen, path_);
    }

    [[nodiscard]] int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
    // Also a little beyond the right and the lower edge.
    [[nodiscard]] Tile_Point any_pixel() { return {below(edge + 3), below(edge + 3)}; }

    [[nodiscard]] Model_Stroke any_stroke() {
        static constexpr std::array tools{Command::pen, Command::line, Command::rectangle,
                                          Command::filled_rectangle, Command::flood_fill};
        Model_Stroke stroke{tools.at(static_cast<std::size_t>(below(5))), any_pixel(), any_pixel(), {}};
        const bool is_straight = stroke.tool == Command::pen || stroke.tool == Command::line;
        if (is_straight && below(2) == 0) {
            stroke.to.x = stroke.from.x;
        } else if (is_straight) {
            stroke.to.y = stroke.from.y;
        }
        stroke.color =
            std::array{white, black, Color(200, 30, 60, 128)}.at(static_cast<std::size_t>(below(3)));
        return stroke;
    }
    void draw(const Model_Stroke& stroke) {
        const auto at = [](Tile_Point pixel) {
            const Point origin = editor->canvas().origin();
            const int size = editor->canvas().pixel_size();
            return Point{origin.x + size * pixel.x + size / 2, origin.y + size * pixel.y + size / 2};
        };
        editor->execute(stroke.tool);
        tool_colors->set_color(Mouse_Button::left, stroke.color);
        script().drag({at(stroke.from), at(stroke.to)});
        play();
        model_.stroke(stroke);
    }
    void work(int choice);
    void save();

    std::mt19937 random_;
    Model model_;
    std::string path_;
};

void Session_Test::save() {
    editor->execute(Command::save_as);
    model_.end_shifts();
    const Loaded_Tileset loaded = load_tileset(path_);
    ASSERT_EQ(loaded.outcome, Load_Outcome::loaded);
    loaded.tileset->select(document().tileset().current_index());
    model_.expect_shown_by(*loaded.tileset);
}

void Session_Test::work(int choice) {
    static constexpr std::array transforms{Command::rotate, Command::rotate_back, Command::mirror,
                                           Command::flip,   Command::scroll_left, Command::scroll_up};
    struct Step {
        Command command;
        void (Model::*step)();
    };
    static constexpr std::array steps = std::to_array<Step>({
        {Command::undo, &Model::undo},
        {Command::undo, &Model::undo},
        {Command::undo, &Model::undo},
        {Command::redo, &Model::redo},
        {Command::redo, &Model::redo},
        {Command::next_tile, &Model::next},
        {Command::previous_tile, &Model::previous},
        {Command::add_new_tile, &Model::add},
        {Command::insert_new_tile, &Model::insert},
        {Command::delete_tile, &Model::erase},
        {Command::horizontal_seam_tool, &Model::toggle_horizontal},
        {Command::vertical_seam_tool, &Model::toggle_vertical},
    });
    if (choice < 8) {
        draw(any_stroke());
    } else if (choice < 11) {
        const Command command = transforms.at(static_cast<std::size_t>(below(6)));
        editor->execute(command);
        model_.transform(command);
    } else if (choice == 11) {
        save();
    } else {
        const Step& step = steps.at(static_cast<std::size_t>(choice - 12));
        const bool walks = step.command == Command::undo || step.command == Command::redo;
        for (int times = walks ? 1 + below(3) * below(9) : 1; times > 0; --times) {
            editor->execute(step.command);
            (model_.*step.step)();
        }
    }
}

// Enough steps that the oldest states fall off.
TEST_F(Session_Test, agrees_with_a_simple_model_whatever_is_done) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    random_.seed(seed);
    for (int step = 0; step < 600 && !HasFailure(); ++step) {
        const int choice = below(24);
        SCOPED_TRACE("step " + std::to_string(step) + ", choice " + std::to_string(choice));
        work(choice);
        model_.expect_shown_by(document().tileset());
    }
}

} // namespace
} // namespace quadrelle::testing
