#include "map/map_history.h"

#include <utility>

namespace quadrelle {

void Map_History::push(Map_Step step) {
    bytes_ += step.memory_size();
    steps_.push_back(std::move(step));
}

void Map_History::pop_back() {
    bytes_ -= steps_.back().memory_size();
    steps_.pop_back();
}

void Map_History::pop_front() {
    bytes_ -= steps_.front().memory_size();
    steps_.pop_front();
    --position_;
}

void Map_History::forget_what_newest_forgot() {
    for (const Map_Step& step : std::exchange(forgotten_, {})) {
        bytes_ -= step.memory_size();
    }
}

bool Map_History::add(const Tile_Map& before, const Tile_Map& after, const Map_Sides& sides) {
    if (before == after) {
        return false;
    }
    forget_what_newest_forgot();
    while (can_redo()) {
        forgotten_.push_front(std::move(steps_.back()));
        steps_.pop_back();
    }
    push(Map_Step(after, before, {-sides.left, -sides.top, -sides.right, -sides.bottom}));
    position_ = steps_.size();
    origin_ = {origin_.x + sides.left, origin_.y + sides.top};
    make_room();
    return true;
}

void Map_History::put_aside(Map_Step& step) {
    bytes_ -= step.memory_size();
    step.put_aside(scratch_);
    bytes_ += step.memory_size();
}

// First what the newest step made impossible, then what is farthest away.
void Map_History::make_room() {
    while (bytes_ > most_bytes && !forgotten_.empty()) {
        bytes_ -= forgotten_.back().memory_size();
        forgotten_.pop_back();
    }
    for (std::size_t i = steps_.size(); bytes_ > most_bytes && i > position_ + 1; --i) {
        put_aside(steps_[i - 1]);
    }
    for (std::size_t i = 0; bytes_ > most_bytes && i + 1 < position_; ++i) {
        put_aside(steps_[i]);
    }
    while (bytes_ > most_bytes && position_ + 1 < steps_.size()) {
        pop_back();
    }
    while (bytes_ > most_bytes && position_ > 1) {
        pop_front();
    }
}

// The step leads the other way from then on.
void Map_History::pass(std::size_t index, Tile_Map& map) {
    Map_Step& step = steps_[index];
    origin_ = {origin_.x + step.sides().left, origin_.y + step.sides().top};
    bytes_ -= step.memory_size();
    step = step.apply(map);
    bytes_ += step.memory_size();
}

bool Map_History::undo(Tile_Map& map) {
    if (!can_undo()) {
        return false;
    }
    forget_what_newest_forgot();
    pass(--position_, map);
    make_room();
    return true;
}

bool Map_History::redo(Tile_Map& map) {
    if (!can_redo()) {
        return false;
    }
    forget_what_newest_forgot();
    pass(position_++, map);
    make_room();
    return true;
}

bool Map_History::take_back(Tile_Map& map) {
    if (!can_undo()) {
        return false;
    }
    pass(--position_, map);
    pop_back();
    for (Map_Step& step : std::exchange(forgotten_, {})) {
        steps_.push_back(std::move(step));
    }
    return true;
}

} // namespace quadrelle
