#pragma once

// What a user expects of selecting, copying and pasting, with every state kept as a full picture.

#include "panes/toolbox.h"
#include "selection/copy_buffer.h"
#include "tools/tool_catalogue.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <ostream>
#include <utility>
#include <vector>

namespace quadrelle::testing {

struct Image {
    Size size;
    std::vector<Color> pixels;

    explicit Image(Size of, Color color = {})
        : size(of), pixels(static_cast<std::size_t>(of.width * of.height), color) {}
    explicit Image(const Tile& tile)
        : size(tile.size()), pixels(tile.pixels().begin(), tile.pixels().end()) {}

    [[nodiscard]] bool contains(Tile_Point p) const {
        return p.x >= 0 && p.y >= 0 && p.x < size.width && p.y < size.height;
    }
    [[nodiscard]] Color& at(Tile_Point p) {
        return pixels.at(static_cast<std::size_t>(p.y * size.width + p.x));
    }
    [[nodiscard]] Color at(Tile_Point p) const {
        return pixels.at(static_cast<std::size_t>(p.y * size.width + p.x));
    }
    bool operator==(const Image&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Image& image) {
    for (std::size_t i = 0; i < image.pixels.size(); ++i) {
        out << (i % static_cast<std::size_t>(image.size.width) == 0 ? "\n" : " ") << std::hex
            << image.pixels[i].word() << std::dec;
    }
    return out;
}

struct Paste {
    Image picture;
    Tile_Point position;
    bool operator==(const Paste&) const = default;

    [[nodiscard]] bool is_in_picture(Tile_Point p) const {
        return picture.contains({p.x - position.x, p.y - position.y});
    }
};

inline std::optional<Paste> paste_of(const std::optional<Floating_Paste>& paste) {
    return paste ? std::optional(Paste{Image(paste->picture), paste->position}) : std::nullopt;
}

inline void for_each_pixel(Size size, const std::function<void(Tile_Point)>& visit) {
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            visit({x, y});
        }
    }
}

struct Work {
    std::vector<bool> mask; // as many as the tile has pixels
    std::optional<Paste> paste;
    bool operator==(const Work&) const = default;
};

struct State {
    std::size_t tile = 0;
    Image picture;
    Work work;
    Tool tool = Tool::pen;
    int nudge = 0;
};

struct Document_Model {
    std::vector<Image> tiles;
    std::size_t current = 0;
    std::vector<State> states;
    std::size_t position = 0;
};

class Model {
public:
    void add_document(Size tile, std::size_t tiles) {
        Document_Model document;
        document.tiles.assign(tiles, Image(tile));
        document.current = tiles - 1;
        document.states.push_back({0, document.tiles[0], {nothing(tile), {}}, Tool::pen, 0});
        documents.push_back(document);
        show_document(documents.size() - 1);
    }
    [[nodiscard]] bool is_beside(const Paste& paste) const {
        return paste.position.x >= size_.width || paste.position.y >= size_.height ||
               paste.position.x + paste.picture.size.width <= 0 ||
               paste.position.y + paste.picture.size.height <= 0;
    }
    void centre(Paste& paste) const {
        paste.position = {(size_.width - paste.picture.size.width) / 2,
                          (size_.height - paste.picture.size.height) / 2};
    }
    void show_document(std::size_t index) {
        const bool fits = documents[index].tiles[0].size == size_;
        shown = index;
        document().current = 0;
        size_ = document().tiles[0].size;
        if (!fits) {
            work.mask = nothing(size_);
            if (work.paste && is_beside(*work.paste)) {
                centre(*work.paste);
            }
        }
    }

    Document_Model& document() { return documents[shown]; }
    [[nodiscard]] const Document_Model& document() const { return documents[shown]; }
    Image& tile() { return document().tiles[document().current]; }
    [[nodiscard]] Size size() const { return size_; }
    [[nodiscard]] bool is_selected(Tile_Point p) const {
        return p.x >= 0 && p.y >= 0 && p.x < size_.width && p.y < size_.height && work.mask[index(p)];
    }
    [[nodiscard]] bool has_selection() const { return std::ranges::find(work.mask, true) != work.mask.end(); }

    // One step of the history, where nothing changed only when told so.
    void edit(const std::function<void()>& change, bool is_always_recorded = false) {
        const State before = state();
        change();
        if (is_always_recorded || before.picture != tile() || before.work != work) {
            const State& last = document().states[document().position];
            if (last.tile != document().current || last.work != before.work) {
                push(before);
            }
            push(state());
        }
    }
    [[nodiscard]] bool shows_paste() const {
        return work.paste && !has_selection() && (tool == Tool::selection || mode == Selection_Mode::fixed);
    }
    // Steps of the same nudging are one.
    void nudge(Tile_Point step) {
        const Document_Model& shown_document = document();
        const State& last = shown_document.states[shown_document.position];
        if (last.nudge != 0 && last.nudge == last_nudge_ && last.tile == shown_document.current &&
            last.work == work && shown_document.position > 0) {
            --document().position;
            work.paste->position = {work.paste->position.x + step.x, work.paste->position.y + step.y};
            push(state());
        } else {
            edit([&] {
                work.paste->position = {work.paste->position.x + step.x, work.paste->position.y + step.y};
            });
        }
        document().states[document().position].nudge = ++last_nudge_;
    }
    // A paste that persists is in the tile already where its tool was left.
    void settle() {
        const bool was_left = mode == Selection_Mode::persistent && tool != Tool::selection;
        if (!has_selection() && !was_left) {
            plot();
        }
    }
    void select_tool(Tool chosen) {
        if (chosen != tool && chosen != Tool::selection && work.paste && mode != Selection_Mode::fixed) {
            edit([this] { settle(); });
        }
        tool = chosen;
    }
    void select(const std::vector<bool>& area, Mouse_Button button) {
        edit([&] {
            for (std::size_t i = 0; i < area.size(); ++i) {
                if (area[i]) {
                    work.mask[i] = button == Mouse_Button::left;
                }
            }
        });
    }
    void deselect() { work.mask = nothing(size_); }
    void plot() {
        if (!work.paste) {
            return;
        }
        for_each_pixel(work.paste->picture.size, [this](Tile_Point p) {
            const Tile_Point to{work.paste->position.x + p.x, work.paste->position.y + p.y};
            if (tile().contains(to) && (!has_selection() || is_selected(to))) {
                tile().at(to) = laid_over(work.paste->picture.at(p), tile().at(to));
            }
        });
        if (mode == Selection_Mode::standard) {
            work.paste.reset();
        }
    }
    void fill(Color color) {
        for_each_pixel(size_, [&](Tile_Point p) {
            if (!has_selection() || is_selected(p)) {
                tile().at(p) = color;
            }
        });
    }
    void clear() {
        if (shows_paste()) {
            work.paste.reset();
        } else {
            fill({0, 0, 0, 0});
        }
    }
    // What is selected, from the corner of its bounds.
    [[nodiscard]] Paste lifted() {
        Tile_Point low{size_.width, size_.height};
        Tile_Point high{-1, -1};
        for_each_pixel(size_, [&](Tile_Point p) {
            if (is_selected(p)) {
                low = {std::min(low.x, p.x), std::min(low.y, p.y)};
                high = {std::max(high.x, p.x), std::max(high.y, p.y)};
            }
        });
        Paste paste{Image({high.x - low.x + 1, high.y - low.y + 1}, {0, 0, 0, 0}), low};
        for_each_pixel(paste.picture.size, [&](Tile_Point p) {
            const Tile_Point from{low.x + p.x, low.y + p.y};
            if (is_selected(from)) {
                paste.picture.at(p) = tile().at(from);
            }
        });
        return paste;
    }
    void copy() {
        copies.push_front(has_selection() ? lifted() : shows_paste() ? *work.paste : Paste{tile(), {}});
        if (copies.size() > Copy_Buffer::capacity) {
            copies.pop_back();
        }
        current_copy = 0;
    }
    void floats(const Paste& paste) {
        deselect();
        settle();
        tool = Tool::selection;
        work.paste = paste;
    }
    void lift() {
        if (work.paste) {
            const std::vector<bool> mask = std::exchange(work.mask, nothing(size_));
            plot();
            work.mask = mask;
        }
        const Paste paste = lifted();
        fill({0, 0, 0, 0});
        deselect();
        work.paste = paste;
    }
    void undo() {
        if (document().position > 0) {
            --document().position;
            restore();
        }
    }
    void redo() {
        if (document().position + 1 < document().states.size()) {
            ++document().position;
            restore();
        }
    }
    void show_tile(std::size_t tile_index) {
        if (tile_index < document().tiles.size()) {
            document().current = tile_index;
            deselect();
            push(state());
        }
    }

    std::vector<Document_Model> documents;
    std::size_t shown = 0;
    Work work;
    Tool tool = Tool::pen;
    Selection_Mode mode = Selection_Mode::standard;
    std::deque<Paste> copies;
    std::size_t current_copy = 0;

private:
    static std::vector<bool> nothing(Size size) {
        return std::vector<bool>(static_cast<std::size_t>(size.width * size.height));
    }
    [[nodiscard]] std::size_t index(Tile_Point p) const {
        return static_cast<std::size_t>(p.y * size_.width + p.x);
    }
    [[nodiscard]] State state() { return {document().current, tile(), work, tool, 0}; }
    void push(const State& state) {
        auto& [tiles, current, states, position] = document();
        states.erase(states.begin() + static_cast<std::ptrdiff_t>(position) + 1, states.end());
        states.push_back(state);
        if (states.size() > 18) {
            states.erase(states.begin());
        }
        position = states.size() - 1;
    }
    void restore() {
        const State& state = document().states[document().position];
        document().current = state.tile;
        tile() = state.picture;
        work = state.work;
        tool = state.tool;
    }

    Size size_;
    int last_nudge_ = 0;
};

} // namespace quadrelle::testing
