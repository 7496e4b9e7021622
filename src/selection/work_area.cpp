#include "selection/work_area.h"

#include <algorithm>

namespace quadrelle {

namespace {

bool same_paste(const Floating_Paste& paste, const Floating_Paste& other) {
    return paste.position == other.position && paste.picture.same_size(other.picture) &&
           std::ranges::equal(paste.picture.pixels(), other.picture.pixels());
}

} // namespace

std::size_t Work_State::memory_size() const {
    return (selection ? selection->mask().memory_size() : 0) + (paste ? paste->picture.memory_size() : 0);
}

void Work_Area::reset(Size tile) {
    candidate_.reset();
    paste_.reset();
    if (selection_->size() == tile) {
        selection_->clear();
    } else {
        selection_.emplace(tile);
    }
}

void Work_Area::float_paste(const Floating_Paste& paste) {
    deselect();
    paste_.emplace(paste);
}

void Work_Area::lift_selection(Tile& tile) {
    const Floating_Paste paste = lifted(tile, *selection_);
    clear_selected(tile, *selection_);
    float_paste(paste);
}

Drawing_Target Work_Area::target(Tile& tile) const {
    return has_selection() ? Drawing_Target(tile, selection_->mask()) : Drawing_Target(tile);
}

Work_State Work_Area::state() const {
    Work_State state;
    if (has_selection()) {
        state.selection.emplace(*selection_);
    }
    if (paste_) {
        state.paste.emplace(*paste_);
    }
    return state;
}

void Work_Area::restore(const Work_State& state) {
    candidate_.reset();
    deselect();
    if (state.selection && state.selection->size() == selection_->size()) {
        selection_->combine(*state.selection, Selection_Change::add);
    }
    paste_.reset();
    if (state.paste) {
        paste_.emplace(*state.paste);
    }
}

bool Work_Area::operator==(const Work_State& state) const {
    const bool same_selection = has_selection() == state.selection.has_value() &&
                                (!has_selection() || *selection_ == *state.selection);
    const bool same_floating =
        paste_.has_value() == state.paste.has_value() && (!paste_ || same_paste(*paste_, *state.paste));
    return same_selection && same_floating;
}

} // namespace quadrelle
