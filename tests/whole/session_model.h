#pragma once

// What a user expects of a session: sets, tiles, selecting, copying, pasting, shifting and undo, with every
// state kept as a whole. What is on view is kept as it is shown, what is recorded without a shift.

#include "panes/toolbox.h"
#include "selection/copy_buffer.h"
#include "tests/support/tiles.h"
#include "tileset/tile_strip.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quadrelle::testing {

// Pictures, selections and pastes are values that are shared, and replaced by changed copies.
using Picture = std::shared_ptr<const Tile>;
using Area = std::shared_ptr<const Selection>;
using Paste = std::shared_ptr<const Floating_Paste>;
// Where each pixel comes from.
using Source = std::function<Tile_Point(Tile_Point)>;

inline bool same(const Tile& one, const Tile& other) {
    return one.size() == other.size() && std::ranges::equal(one.pixels(), other.pixels());
}

inline Picture changed(const Tile& before, const std::function<void(Tile&)>& change) {
    const auto tile = std::make_shared<Tile>(before);
    change(*tile);
    return tile;
}

inline Picture moved(const Tile& before, const Source& source) {
    return changed(before, [&](Tile& tile) {
        for (int i = 0; i < tile.pixel_count(); ++i) {
            const Tile_Point from = source({i % tile.width(), i / tile.width()});
            tile.set_pixel_at(i, before.get_pixel(from.x, from.y));
        }
    });
}

// Back again.
inline Picture moved_back(const Tile& after, const Source& source) {
    return changed(after, [&](Tile& tile) {
        for (int i = 0; i < tile.pixel_count(); ++i) {
            const Tile_Point from = source({i % tile.width(), i / tile.width()});
            tile.set_pixel(from.x, from.y, after.get_pixel_at(i));
        }
    });
}

inline Picture scrolled(const Tile& before, int dx, int dy) {
    return moved(before, [&](Tile_Point to) {
        return Tile_Point{(to.x - dx + before.width()) % before.width(),
                          (to.y - dy + before.height()) % before.height()};
    });
}

inline Area area_of(Size size, const std::function<void(Drawing_Target&)>& draw) {
    const auto area = std::make_shared<Selection>(size);
    area->draw(draw);
    return area;
}

struct Work {
    Area area;
    Paste paste;
    Paste_Source source = Paste_Source::copy;

    [[nodiscard]] Work scrolled(int dx, int dy) const {
        const auto mask = std::make_shared<Selection>(*area);
        mask->change([&](Tile& tile) { tile.copy_from(*testing::scrolled(Tile(tile), dx, dy)); });
        return {mask, moved_paste(dx, dy), source};
    }
    [[nodiscard]] Paste moved_paste(int dx, int dy) const {
        return paste ? std::make_shared<Floating_Paste>(
                           Floating_Paste{paste->picture, {paste->position.x + dx, paste->position.y + dy}})
                     : nullptr;
    }
    bool operator==(const Work& other) const {
        const bool has_same_paste = paste && other.paste && paste->position == other.paste->position &&
                                    same(paste->picture, other.paste->picture);
        return *area == *other.area && ((!paste && !other.paste) || has_same_paste) &&
               is_lifted() == other.is_lifted();
    }
    [[nodiscard]] bool is_lifted() const { return source == Paste_Source::tile; }
};

struct State {
    int tile; // its number, whatever its place
    Picture picture;
    Work work;
    Tool tool = Tool::pen;
    int nudge = 0;
    Tile_Point shift = {};
    Source transform = {}; // of the whole tile from the state before, if that is what was done
};

struct Set_Model {
    struct Numbered {
        int number;
        Picture picture;
    };
    std::string name;
    bool is_modified = false;
    std::vector<Numbered> tiles;
    std::size_t current = 0;
    int first = 0; // in the strip
    std::vector<State> states;
    std::size_t position = 0;

    [[nodiscard]] Numbered& tile() { return tiles[current]; }
    [[nodiscard]] int count() const { return static_cast<int>(tiles.size()); }
    void scroll_to(int cell) { first = std::max(std::min(cell, count() - Tile_Strip::visible_cells), 0); }
    void show(std::size_t tile) {
        current = tile;
        scroll_to(std::clamp(first, static_cast<int>(current) - Tile_Strip::visible_cells + 1,
                             static_cast<int>(current)));
    }
};

class Session_Model {
public:
    void add_set(Size size, const std::string& name) {
        sets.push_back({name, false, {blank(size)}, 0, 0, {}, 0});
        show_set(sets.size() - 1);
        start_history();
    }
    void show_set(std::size_t index) {
        leave();
        shown = index;
        if (set().current != 0) {
            set().show(0);
        }
        look();
        if (!work.area || size() != work.area->size()) {
            deselect();
            work.paste =
                work.paste ? std::make_shared<Floating_Paste>(in_view(*work.paste, size())) : nullptr;
        }
    }
    void close_set() {
        leave();
        sets.erase(sets.begin() + static_cast<std::ptrdiff_t>(shown));
        show_set(std::min(shown, sets.size() - 1));
        deselect();
    }

    [[nodiscard]] Set_Model& set() { return sets[shown]; }
    [[nodiscard]] Picture& picture() { return set().tile().picture; }
    [[nodiscard]] Size size() { return picture()->size(); }
    [[nodiscard]] bool is_selected(Tile_Point pixel) const { return work.area->contains(pixel); }
    [[nodiscard]] bool has_selection() const { return !work.area->is_empty(); }
    [[nodiscard]] bool shows_paste() const {
        return work.paste && !has_selection() && (tool == Tool::selection || mode == Selection_Mode::fixed);
    }

    // One step of the history, where nothing changed only when told so.
    void edit(const std::function<void()>& change, bool is_always_recorded = false) {
        const State before = state();
        change();
        if (is_always_recorded || !same(*before.picture, *state().picture) || before.work != state().work) {
            const State& last = set().states[set().position];
            if (last.tile != before.tile || last.work != before.work) {
                push(before);
            }
            push(state());
        }
    }
    // Steps of the same nudging are one.
    void nudge(Tile_Point step) {
        const State& last = set().states[set().position];
        const auto move = [&] { move_paste(step.x, step.y); };
        if (last.nudge != 0 && last.nudge == last_nudge_ && last.tile == set().tile().number &&
            last.work == state().work && set().position > 0) {
            --set().position;
            move();
            push(state());
        } else {
            edit(move);
        }
        set().states[set().position].nudge = ++last_nudge_;
    }
    // A paste that persists is in the tile already where its tool was left.
    void settle() {
        const bool was_left = mode == Selection_Mode::persistent && tool != Tool::selection;
        if (!has_selection() && !was_left) {
            plot();
        }
    }
    void settle_to_leave() {
        if (work.paste && mode != Selection_Mode::fixed) {
            edit([this] { settle(); });
        }
    }
    void select_tool(Tool chosen) {
        if (chosen != tool && chosen != Tool::selection) {
            settle_to_leave();
        }
        tool = chosen;
    }
    void draw(const std::function<void(Drawing_Target&)>& draw_on) {
        picture() = changed(*picture(), [&](Tile& tile) {
            Drawing_Target target =
                has_selection() ? Drawing_Target(tile, work.area->mask()) : Drawing_Target(tile);
            draw_on(target);
        });
    }
    void select(const Area& area, Mouse_Button button) {
        const auto after = std::make_shared<Selection>(*work.area);
        after->combine(*area,
                       button == Mouse_Button::left ? Selection_Change::add : Selection_Change::remove);
        work.area = after;
    }
    void deselect() { work.area = std::make_shared<Selection>(size()); }
    void plot() {
        if (work.paste && work.source != Paste_Source::plotted) {
            draw([this](Drawing_Target& target) { work.paste->plot(target); });
        }
        work.source = Paste_Source::plotted;
        if (mode == Selection_Mode::standard) {
            drop_paste();
        }
    }
    void drop_paste() {
        work.paste.reset();
        work.source = Paste_Source::copy;
    }
    // Wherever a selection lies.
    void plot_lifted() {
        if (work.is_lifted()) {
            edit([this] {
                const Area area = std::exchange(work.area, std::make_shared<Selection>(size()));
                plot();
                work.area = area;
            });
        }
    }
    // It does not float on in any mode.
    void drop_lifted() {
        const Selection_Mode chosen = std::exchange(mode, Selection_Mode::standard);
        plot_lifted();
        mode = chosen;
    }
    void leave() {
        drop_lifted();
        end_shifts();
    }
    void settle_to_save() {
        plot_lifted();
        settle_to_leave();
        end_shifts();
    }
    void fill(Color color) {
        if (!shows_paste()) {
            fill_tile(color);
        } else if (color.a == 0) {
            drop_paste();
        } else {
            change_paste(changed(work.paste->picture, [color](Tile& tile) {
                tile.map_colours([color](Color pixel) { return pixel.a == 0 ? pixel : color; });
            }));
        }
    }
    void fill_tile(Color color) {
        draw([&](Drawing_Target& target) {
            for (int i = 0; i < picture()->pixel_count(); ++i) {
                target.plot({i % size().width, i / size().width}, color);
            }
        });
    }
    void clear() {
        if (shows_paste()) {
            drop_paste();
        } else {
            fill_tile(testing::clear);
        }
    }
    void move_paste(int dx, int dy) {
        work.paste = work.moved_paste(dx, dy);
        if (!work.is_lifted() && (dx != 0 || dy != 0)) {
            work.source = Paste_Source::copy;
        }
    }
    // The middle stays, or nearly so.
    void change_paste(const Picture& picture) {
        if (!work.is_lifted() && !same(work.paste->picture, *picture)) {
            work.source = Paste_Source::copy;
        }
        const Floating_Paste& before = *work.paste;
        work.paste = std::make_shared<Floating_Paste>(
            Floating_Paste{*picture,
                           {before.position.x + (before.picture->width() - picture->width()) / 2,
                            before.position.y + (before.picture->height() - picture->height()) / 2}});
    }
    void transform_paste(bool turns, Tile_Point (*source)(Tile_Point to, Size size)) {
        const Tile& before = work.paste->picture;
        const auto after = std::make_shared<Tile>(turns ? before.height() : before.width(),
                                                  turns ? before.width() : before.height());
        for (int i = 0; i < after->pixel_count(); ++i) {
            const Tile_Point from = source({i % after->width(), i / after->width()}, after->size());
            after->set_pixel_at(i, before.get_pixel(from.x, from.y));
        }
        change_paste(after);
    }
    [[nodiscard]] Paste to_copy() {
        return has_selection() ? lifted_area() : shows_paste() ? work.paste : whole_tile();
    }
    // What is transparent is no copy.
    [[nodiscard]] bool has_visible() {
        const Paste seen = to_copy();
        return std::ranges::any_of(seen->picture->pixels(), [](Color color) { return color.a != 0; });
    }
    void copy() {
        if (has_visible()) {
            add_copy(to_copy());
        }
    }
    void floats(const Floating_Paste& paste) {
        deselect();
        settle();
        tool = Tool::selection;
        work.paste = std::make_shared<Floating_Paste>(paste);
        work.source = Paste_Source::copy;
    }
    // What floated before and is in no tile yet is plotted wherever it is.
    void lift() {
        const Area area = work.area;
        deselect();
        if (work.source != Paste_Source::plotted_elsewhere) {
            plot();
        }
        work.area = area;
        work.paste = lifted_area();
        work.source = Paste_Source::tile;
        fill_tile(testing::clear);
        deselect();
    }

    void undo() {
        if (set().position > 0) {
            restore(set().position - 1, set().states[set().position].transform, moved_back);
        }
    }
    void redo() {
        if (set().position + 1 < set().states.size()) {
            const std::size_t next = set().position + 1;
            restore(next, set().states[next].transform, moved);
        }
    }
    void go_to(int index) {
        end_shifts();
        if (index >= 0 && index < set().count() && index != static_cast<int>(set().current)) {
            leave();
            set().show(static_cast<std::size_t>(index));
            look();
            deselect();
            push(state());
        }
    }
    void add_tile() {
        insert(set().tiles.size());
        deselect();
    }
    void insert_tile() { insert(set().current); }
    // The last one left is made black instead.
    void delete_tile() {
        leave();
        if (set().count() > 1) {
            take_tile_away();
        } else if (!same(*picture(), *blank(size()).picture)) {
            edit([this] {
                picture() = blank(size()).picture;
                deselect();
            });
        }
    }
    // The states of that tile go, and with the last one before it all others.
    void take_tile_away() {
        const Set_Model::Numbered gone = set().tile();
        if (!same(*gone.picture, *blank(size()).picture)) {
            add_copy(whole_tile());
        }
        set().tiles.erase(set().tiles.begin() + static_cast<std::ptrdiff_t>(set().current));
        set().show(std::min(set().current, set().tiles.size() - 1));
        look();
        deselect();
        const auto is_gone = [&](const State& state) { return state.tile == gone.number; };
        auto& states = set().states;
        const auto past = states.begin() + static_cast<std::ptrdiff_t>(set().position) + 1;
        const auto left = past - states.begin() - std::count_if(states.begin(), past, is_gone);
        std::erase_if(states, is_gone);
        set().position = static_cast<std::size_t>(std::max(left - 1, std::ptrdiff_t{0}));
        set().is_modified = true;
        if (left == 0) {
            start_history();
        }
    }
    // Both change places, and the second place is chosen when asked for.
    void arrange(std::size_t one, std::size_t other, bool chooses) {
        end_shifts();
        if (one != other || (chooses && set().current != other)) {
            leave();
        }
        std::swap(set().tiles[one], set().tiles[other]);
        if (chooses && set().current != other) {
            set().show(other);
            deselect();
        }
        look();
        if (one != other) {
            history = picture();
            leave_plotted();
            start_history();
            set().is_modified = true;
        }
    }
    void toggle_shift(int Tile_Point::*way) {
        const int half = (way == &Tile_Point::x ? size().width : size().height) / 2;
        drop_lifted();
        Tile_Point shift = shift_;
        shift.*way = shift.*way == 0 ? half - half % 2 : 0;
        shift_in_view(shift);
    }
    // What was lifted drops where it is seen.
    void end_shifts() {
        if (shift_ != Tile_Point{}) {
            drop_lifted();
            shift_in_view({});
        }
    }
    // Deliberately about the middle of the tile that is not shifted.
    void transform(const Source& source) {
        const Tile_Point shift = shift_;
        const auto change = [&] {
            shift_to({});
            picture() = moved(*picture(), source);
            history = moved(*history, source);
            shift_to(shift);
        };
        edit(change, true);
        set().states[set().position].transform = source;
    }

    std::vector<Set_Model> sets;
    std::size_t shown = 0;
    Work work;
    Tool tool = Tool::pen;
    Selection_Mode mode = Selection_Mode::standard;
    std::deque<Paste> copies; // the first one is the current one
    Picture history;          // what the pen's history mode draws

private:
    // Another tile is in view, or this one is another since it was seen last.
    void look() {
        history = seen_ == set().tile().number ? history : picture();
        if (seen_ != set().tile().number) {
            leave_plotted();
        }
        seen_ = set().tile().number;
    }
    void leave_plotted() {
        if (work.source == Paste_Source::plotted) {
            work.source = Paste_Source::plotted_elsewhere;
        }
    }
    [[nodiscard]] Set_Model::Numbered blank(Size size) {
        return {next_number_++, std::make_shared<Tile>(size.width, size.height)};
    }
    [[nodiscard]] Paste lifted_area() {
        return std::make_shared<Floating_Paste>(lifted(*picture(), *work.area));
    }
    [[nodiscard]] Paste whole_tile() {
        return std::make_shared<Floating_Paste>(Floating_Paste{*picture(), {}});
    }
    void add_copy(const Paste& copy) {
        std::erase_if(copies, [&](const Paste& kept) { return same(kept->picture, copy->picture); });
        copies.push_front(copy);
        if (copies.size() > Copy_Buffer::capacity) {
            copies.pop_back();
        }
    }
    void insert(std::size_t index) {
        leave();
        set().tiles.insert(set().tiles.begin() + static_cast<std::ptrdiff_t>(index), blank(size()));
        set().show(index);
        look();
        set().is_modified = true;
    }
    // All that is on view goes with a shift.
    void shift_to(Tile_Point shift) {
        const Tile_Point step{shift.x - shift_.x, shift.y - shift_.y};
        shift_ = shift;
        if (step != Tile_Point{}) {
            picture() = scrolled(*picture(), step.x, step.y);
            history = scrolled(*history, step.x, step.y);
            work = work.scrolled(step.x, step.y);
        }
    }
    // What floats is seen in the same place, or where most of it is.
    void shift_in_view(Tile_Point shift) {
        const Tile_Point before = shift_;
        shift_to(shift);
        bring_back(before, shift);
    }
    void bring_back(Tile_Point from, Tile_Point to) {
        const auto seen = [](int position, int extent, int tile) {
            return std::min(position + extent, tile) - std::max(position, 0);
        };
        const auto turns = [&](int position, int extent, int tile) {
            const int here = seen(position, extent, tile);
            const int before = seen(position - tile, extent, tile);
            return seen(position + tile, extent, tile) > std::max(here, before) ? tile
                   : before > here                                              ? -tile
                                                                                : 0;
        };
        if (work.paste) {
            const Floating_Paste& paste = *work.paste;
            work.paste = work.moved_paste(
                from.x == to.x ? 0 : turns(paste.position.x, paste.picture->width(), size().width),
                from.y == to.y ? 0 : turns(paste.position.y, paste.picture->height(), size().height));
        }
    }
    [[nodiscard]] State state() {
        return {set().tile().number,
                scrolled(*picture(), -shift_.x, -shift_.y),
                work.scrolled(-shift_.x, -shift_.y),
                tool,
                0,
                shift_};
    }
    void start_history() {
        set().states = {{set().tile().number, picture(), {std::make_shared<Selection>(size()), {}}}};
        set().position = 0;
    }
    void push(const State& state) {
        auto& states = set().states;
        states.resize(set().position + 1, state);
        states.push_back(state);
        if (states.size() > 18) {
            states.erase(states.begin());
        }
        set().position = states.size() - 1;
        set().is_modified = true;
    }
    void restore(std::size_t position, const Source& transform,
                 Picture (*transformed)(const Tile&, const Source&)) {
        set().position = position;
        const State& state = set().states[position];
        const Tile_Point shift = state.tile == set().tile().number ? shift_ : Tile_Point{};
        shift_to({});
        if (state.tile != set().tile().number) {
            const auto tile = std::ranges::find(set().tiles, state.tile, &Set_Model::Numbered::number);
            set().show(static_cast<std::size_t>(tile - set().tiles.begin()));
        }
        look();
        picture() = state.picture;
        work = state.work;
        tool = state.tool;
        history = transform ? transformed(*history, transform) : history;
        shift_to(work.is_lifted() ? state.shift : shift);
        bring_back(state.shift, shift_);
        set().is_modified = true;
    }

    int next_number_ = 0;
    int last_nudge_ = 0;
    int seen_ = -1;
    Tile_Point shift_;
};

} // namespace quadrelle::testing
