#include "selection/work_area.h"

#include "selection/copy_buffer.h"

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

void Work_Area::resize(Size tile) {
    candidate_.reset();
    selection_.emplace(tile);
    if (paste_) {
        paste_.emplace(in_view(*paste_, tile));
    }
    update_paste_area();
}

void Work_Area::float_paste(const Floating_Paste& paste) {
    deselect();
    paste_.emplace(paste);
    update_paste_area();
}

void Work_Area::move_paste_to(Tile_Point position) {
    paste_->position = position;
    update_paste_area();
}

void Work_Area::lift_selection(Tile& tile) {
    if (paste_) {
        Drawing_Target target(tile);
        paste_->plot(target);
    }
    const Floating_Paste paste = lifted(tile, *selection_);
    clear_selected(tile, *selection_);
    float_paste(paste);
}

void Work_Area::update_paste_area() {
    if (paste_) {
        paste_area_.emplace(paste_->area(selection_->size()));
    }
}

Command Work_Area::transform_paste(Command command) {
    if (command < Command::rotate || command > Command::flip) {
        return Command::none;
    }
    const Tile& before = paste_->picture;
    const bool turns = command == Command::rotate || command == Command::rotate_back;
    Floating_Paste after{turns ? Tile(before.height(), before.width()) : Tile(before), paste_->position};
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            const int from_right = before.width() - 1 - x;
            const int from_bottom = before.height() - 1 - y;
            const Color pixel = before.get_pixel(x, y);
            switch (command) {
            case Command::mirror: after.picture.set_pixel(from_right, y, pixel); break;
            case Command::flip: after.picture.set_pixel(x, from_bottom, pixel); break;
            case Command::rotate: after.picture.set_pixel(from_bottom, x, pixel); break;
            case Command::rotate_back: after.picture.set_pixel(y, from_right, pixel); break;
            default: return Command::none;
            }
        }
    }
    after.position.x += (before.width() - after.picture.width()) / 2;
    after.position.y += (before.height() - after.picture.height()) / 2;
    float_paste(after);
    return command;
}

Drawing_Target Work_Area::target(Tile& tile) const {
    return has_selection() ? Drawing_Target(tile, selection_->mask()) : Drawing_Target(tile);
}

Work_State Work_Area::state() const {
    Work_State state;
    if (has_selection()) {
        state.selection = std::make_shared<const Selection>(*selection_);
    }
    if (paste_) {
        state.paste = std::make_shared<const Floating_Paste>(*paste_);
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
    update_paste_area();
}

bool Work_Area::operator==(const Work_State& state) const {
    const bool same_selection = has_selection() == (state.selection != nullptr) &&
                                (!has_selection() || *selection_ == *state.selection);
    const bool same_floating =
        paste_.has_value() == (state.paste != nullptr) && (!paste_ || same_paste(*paste_, *state.paste));
    return same_selection && same_floating;
}

} // namespace quadrelle
