#include "selection/work_area.h"

#include "selection/copy_buffer.h"
#include "selection/free_rotation.h"
#include "selection/paste_shape.h"
#include "selection/scroll.h"
#include "selection/transform_table.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quadrelle {

namespace {

// Along one axis.
int seen_extent(int position, int extent, int tile) {
    return std::min(position + extent, tile) - std::max(position, 0);
}

int nearest_in_reach(int position, int extent, int tile) {
    const std::array candidates{position, position - tile, position + tile};
    return *std::ranges::max_element(candidates, {},
                                     [=](int candidate) { return seen_extent(candidate, extent, tile); });
}

} // namespace

std::size_t Work_State::memory_size() const {
    std::size_t size = selection ? selection->mask().memory_size() : 0;
    if (paste) {
        size += paste->picture->memory_size() + (paste->shape ? paste->shape->taken->memory_size() : 0);
    }
    if (turn) {
        size += turn->original->memory_size() + turn->result->memory_size();
    }
    return size;
}

void Work_Area::resize(Size tile) {
    candidate_.reset();
    selection_.emplace(tile);
    if (paste_) {
        paste_ = in_view(*paste_, tile);
    }
    update_paste_area();
}

void Work_Area::float_paste(const Floating_Paste& paste, Paste_Source source) {
    deselect();
    change_paste(paste);
    paste_source_ = source;
}

void Work_Area::change_paste(const Floating_Paste& paste) {
    const bool is_in_a_tile = is_plotted() || paste_source_ == Paste_Source::plotted_elsewhere;
    if (is_in_a_tile && !(*paste_ == paste)) {
        paste_source_ = Paste_Source::copy;
    }
    paste_ = paste;
    update_paste_area();
}

void Work_Area::move_paste_to(Tile_Point position) {
    Floating_Paste moved = *paste_;
    moved.position = position;
    change_paste(moved);
}

void Work_Area::drop_paste() {
    paste_.reset();
    paste_source_ = Paste_Source::copy;
}

void Work_Area::plot_paste(Drawing_Target& target, Selection_Mode mode) {
    if (!is_plotted()) {
        paste_->plot(target);
    }
    paste_source_ = Paste_Source::plotted;
    if (mode == Selection_Mode::standard) {
        drop_paste();
    }
}

void Work_Area::make_room(Tile& tile) const {
    const bool is_in_none = paste_source_ == Paste_Source::copy || paste_source_ == Paste_Source::tile;
    if (paste_ && is_in_none) {
        Drawing_Target target(tile);
        paste_->plot(target);
    }
}

void Work_Area::lift_selection(Tile& tile) {
    make_room(tile);
    const Floating_Paste paste = lifted(tile, *selection_);
    clear_selected(tile, *selection_);
    float_paste(paste, Paste_Source::tile);
}

void Work_Area::leave_tile() {
    if (is_plotted()) {
        paste_source_ = Paste_Source::plotted_elsewhere;
    }
}

void Work_Area::scroll(Tile_Point offset) {
    selection_->change([offset](Tile& mask) { scroll_wrapped(mask, offset); });
    if (paste_) {
        paste_->position = {paste_->position.x + offset.x, paste_->position.y + offset.y};
        update_paste_area();
    }
}

void Work_Area::bring_paste_back(Tile_Point scrolled) {
    if (!paste_) {
        return;
    }
    const Size tile = selection_->size();
    const Size size = paste_->picture->size();
    Tile_Point& position = paste_->position;
    position.x = scrolled.x == 0 ? position.x : nearest_in_reach(position.x, size.width, tile.width);
    position.y = scrolled.y == 0 ? position.y : nearest_in_reach(position.y, size.height, tile.height);
    update_paste_area();
}

void Work_Area::copy_selection(Tile& tile) {
    make_room(tile);
    float_paste(lifted(tile, *selection_));
}

void Work_Area::update_paste_area() {
    if (paste_) {
        paste_area_.emplace(paste_->area(selection_->size()));
    }
}

void Work_Area::recolor_paste(const std::function<void(Tile& picture)>& change) {
    const auto changed = [&change](const Tile& before) {
        Tile picture(before);
        change(picture);
        return picture;
    };
    Floating_Paste paste{changed(paste_->picture), paste_->position, paste_->shape};
    if (paste.shape) {
        paste.shape->taken = changed(paste.shape->taken);
    }
    change_paste(paste);
}

Outcome Work_Area::transform_paste(Command command) {
    const Transform_Row* const row = find_transform(command);
    if (command == Command::anti_alias) {
        change_paste({softened(paste_->picture), paste_->position});
    } else if (row == nullptr) {
        return Outcome::unknown;
    } else if (row->placement == nullptr) {
        move_paste_to({paste_->position.x + row->step.x, paste_->position.y + row->step.y});
    } else {
        change_paste(placed(*paste_, *row->placement));
    }
    return Outcome::done;
}

int Work_Area::degrees_turned(const Tile& tile) const {
    const bool is_turned = turn_ && tile.same_pixels(turn_->result);
    return is_turned ? turn_->degrees : 0;
}

void Work_Area::turn_tile(Tile& tile, int degrees) {
    const bool is_turned = turn_ && tile.same_pixels(turn_->result);
    const Shared_Picture original = is_turned ? turn_->original : Shared_Picture(Tile(tile));
    const Shared_Picture result = turned(original, degrees, tile.size());
    result->copy_to(tile);
    turn_ = std::make_shared<const Tile_Turn>(Tile_Turn{original, normalized_degrees(degrees), result});
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
        state.paste_source = paste_source_;
    }
    state.turn = turn_;
    return state;
}

void Work_Area::restore(const Work_State& state) {
    candidate_.reset();
    deselect();
    if (state.selection && state.selection->size() == selection_->size()) {
        selection_->combine(*state.selection, Selection_Change::add);
    }
    drop_paste();
    if (state.paste) {
        change_paste(*state.paste);
        paste_source_ = state.paste_source;
    }
    turn_ = state.turn;
}

bool Work_Area::operator==(const Work_State& state) const {
    const bool same_selection = has_selection() == (state.selection != nullptr) &&
                                (!has_selection() || *selection_ == *state.selection);
    const bool same_floating =
        paste_.has_value() == (state.paste != nullptr) && (!paste_ || *paste_ == *state.paste);
    return same_selection && same_floating && has_lifted() == (state.paste_source == Paste_Source::tile);
}

} // namespace quadrelle
