#include "app/recorder.h"

#include "app/documents.h"
#include "canvas/canvas_view.h"
#include "commands/command_table.h"
#include "panes/toolbox.h"
#include "selection/transform_table.h"
#include "selection/transforms.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

// After another tile came into view, that is where the next state comes from.
bool is_edit(Command kind) {
    return row_of(kind).category != Command_Category::tile_switch;
}

bool has_same_paste(const Work_State& one, const Work_State& other) {
    return one.paste == other.paste || (one.paste && other.paste && *one.paste == *other.paste);
}

// The command that turned, mirrored or scrolled the whole tile between two states, or none: it may have been
// only what was selected, or floated. One step may hold several scrolls.
Tile_Transform transform_between(const Undo_Entry& before, const Undo_Entry& after) {
    const bool is_of_tile = before.tile_index == after.tile_index && before.work.selection == nullptr &&
                            has_same_paste(before.work, after.work);
    const Transform_Row* const row = find_transform(after.kind);
    if (!is_of_tile || row == nullptr) {
        return {};
    }
    Tile transformed(before.snapshot->tile);
    const int most = row->placement == nullptr ? std::max(transformed.width(), transformed.height()) : 1;
    for (int times = 1; times <= most; ++times) {
        static_cast<void>(transform_tile(&transformed, after.kind));
        if (transformed.same_pixels(after.snapshot->tile)) {
            return {after.kind, times};
        }
    }
    return {};
}

} // namespace

void Recorder::step(const Edit& edit, Merge merge) {
    std::optional<Undo_Entry> floor = missing_floor();
    const Command kind = edit();
    if (kind == Command::none) {
        return;
    }
    Undo_History& history = documents_.current().history();
    if (floor && is_edit(kind)) {
        history.add(std::move(*floor));
    } else if (!floor && is_merged(merge, kind)) {
        history.give_up_current();
    }
    record(kind);
    documents_.mark_changed();
    if (merge == Merge::with_last && history.current() != nullptr) {
        merged_ = history.current()->work.paste;
    }
}

void Recorder::record(Command kind) {
    canvas_.with_tile_in_place(
        [&] { documents_.current().record(kind, toolbox_.state().in_hand(), work()); });
}

Work_State Recorder::work() const {
    Work_State state = canvas_.work_area().state();
    state.seam_shift = canvas_.seam_shifts();
    return state;
}

bool Recorder::undo() {
    Undo_History& history = documents_.current().history();
    const Undo_Entry* const left = history.current();
    const Undo_Entry* const entry = history.undo();
    Tile_Transform transform = entry == nullptr ? Tile_Transform{} : transform_between(*entry, *left);
    if (transform.times > 0) {
        transform.command = row_of(transform.command).inverse;
    }
    return restore(entry, transform);
}

bool Recorder::redo() {
    Undo_History& history = documents_.current().history();
    const Undo_Entry* const left = history.current();
    const Undo_Entry* const entry = history.redo();
    return restore(entry, entry == nullptr ? Tile_Transform{} : transform_between(*left, *entry));
}

// The current state, when the history stands on another tile, on nothing, or on another work area: adding
// tiles, for example, records none of them, and what floats may come from another document.
std::optional<Undo_Entry> Recorder::missing_floor() {
    Tileset_Document& document = documents_.current();
    std::optional<Undo_Entry> floor;
    if (!document.tileset().has_tiles()) {
        return floor;
    }
    canvas_.with_tile_in_place([&] {
        const Undo_Entry* const entry = document.history().current();
        const bool is_known = entry != nullptr && entry->tile_index == document.tileset().current_index() &&
                              canvas_.work_area() == entry->work;
        if (!is_known) {
            floor =
                undo_entry_of(document.tileset(), Command::change_tile, toolbox_.state().in_hand(), work());
        }
    });
    return floor;
}

bool Recorder::stands_on_merged_step() {
    const Undo_Entry* const last = documents_.current().history().current();
    return last != nullptr && last->work.paste && last->work.paste == merged_.lock();
}

bool Recorder::is_merged(Merge merge, Command kind) {
    const Undo_Entry* const last = documents_.current().history().current();
    switch (merge) {
    case Merge::with_last: return stands_on_merged_step();
    case Merge::with_same_kind: return last != nullptr && last->kind == kind;
    case Merge::no: break;
    }
    return false;
}

bool Recorder::restore(const Undo_Entry* entry, const Tile_Transform& transform) {
    if (entry == nullptr) {
        return false;
    }
    Tileset& tileset = documents_.current().tileset();
    if (entry->tile_index != tileset.current_index()) {
        documents_.show_tile(entry->tile_index);
    }
    canvas_.with_tile_in_place([&] {
        entry->snapshot->tile.copy_to(*tileset.current_tile());
        canvas_.work_area().restore(entry->work);
        for (int i = 0; i < transform.times; ++i) {
            canvas_.transform_history(transform.command);
        }
    });
    // What was lifted is seen, and drops, as it was: whole. What else floats comes into reach.
    const Tile_Point seen = entry->work.seam_shift;
    if (canvas_.work_area().has_lifted()) {
        canvas_.restore_seam_shifts(seen);
    }
    const Tile_Point now = canvas_.seam_shifts();
    canvas_.work_area().bring_paste_back({now.x - seen.x, now.y - seen.y});
    if (entry->tool.tool != toolbox_.current_tool()) {
        toolbox_.select(row_of(entry->tool.tool).command);
        toolbox_.state().is_erasing = entry->tool.is_erasing;
    }
    documents_.mark_changed();
    return true;
}

} // namespace quadrelle
