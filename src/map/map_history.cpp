#include "map/map_history.h"

#include <algorithm>
#include <span>
#include <utility>

namespace quadrelle {

namespace {

Map_Bytes runs_of_changes(std::span<const Map_Cell> before, std::span<const Map_Cell> after) {
    Map_Bytes bytes;
    std::size_t written = 0;
    for (std::size_t start = 0; start < before.size();) {
        if (before[start] == after[start]) {
            ++start;
            continue;
        }
        std::size_t end = start + 1;
        while (end < before.size() && before[end] != after[end]) {
            ++end;
        }
        append_number(bytes, static_cast<std::uint32_t>(start - written));
        append_number(bytes, static_cast<std::uint32_t>(end - start));
        append_cells(bytes, before.subspan(start, end - start));
        append_cells(bytes, after.subspan(start, end - start));
        written = end;
        start = end;
    }
    bytes.shrink_to_fit();
    return bytes;
}

} // namespace

Map_History::Step Map_History::step_of(const Tile_Map& before, const Tile_Map& after) {
    Step step{before.size(), after.size(), {}};
    if (step.before == step.after) {
        step.changes = runs_of_changes(before.cells(), after.cells());
    } else {
        append_cells(step.changes, before.cells());
        append_cells(step.changes, after.cells());
    }
    return step;
}

bool Map_History::add(const Tile_Map& before, const Tile_Map& after) {
    Step step = step_of(before, after);
    if (step.changes.empty()) {
        return false;
    }
    forget_undone();
    bytes_ += step.changes.capacity() + sizeof(Step);
    steps_.push_back(std::move(step));
    position_ = steps_.size();
    while (bytes_ > most_bytes && steps_.size() > 1) {
        forget_oldest();
    }
    return true;
}

void Map_History::forget_undone() {
    while (can_redo()) {
        bytes_ -= steps_.back().changes.capacity() + sizeof(Step);
        steps_.pop_back();
    }
}

void Map_History::forget_oldest() {
    bytes_ -= steps_.front().changes.capacity() + sizeof(Step);
    steps_.pop_front();
    --position_;
}

bool Map_History::undo(Tile_Map& map) {
    if (!can_undo()) {
        return false;
    }
    --position_;
    restore(steps_[position_], Side::before, map);
    return true;
}

bool Map_History::redo(Tile_Map& map) {
    if (!can_redo()) {
        return false;
    }
    restore(steps_[position_], Side::after, map);
    ++position_;
    return true;
}

bool Map_History::take_back(Tile_Map& map) {
    const bool is_done = undo(map);
    forget_undone();
    return is_done;
}

void Map_History::restore(const Step& step, Side side, Tile_Map& map) {
    if (step.before == step.after) {
        restore_runs(step, side, map);
        return;
    }
    Map_Code_Reader reader(step.changes);
    Tile_Map before(step.before);
    reader.cells(before.cells());
    if (side == Side::after) {
        map = Tile_Map(step.after);
        reader.cells(map.cells());
    } else {
        map = std::move(before);
    }
}

void Map_History::restore_runs(const Step& step, Side side, Tile_Map& map) {
    Map_Code_Reader reader(step.changes);
    std::vector<Map_Cell> other;
    std::size_t start = 0;
    while (!reader.is_at_end()) {
        start += reader.number();
        const std::size_t count = reader.number();
        other.resize(count);
        const std::span<Map_Cell> cells = map.cells().subspan(start, count);
        reader.cells(side == Side::before ? cells : other);
        reader.cells(side == Side::before ? other : cells);
        start += count;
    }
}

} // namespace quadrelle
