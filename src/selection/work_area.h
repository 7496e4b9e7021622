#pragma once

// What is selected on the canvas, and what floats over it. Knows no view, no tool and no history.

#include "commands/outcome.h"
#include "selection/floating_paste.h"
#include "selection/selection.h"
#include "tools/tool_options.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

namespace quadrelle {

// Where what floats is from: a copy can be pasted once more, but what was lifted off the tile is nowhere else
// until it is plotted. What was plotted is in the tile too, or in another one that was left since, until it
// is moved or changed.
enum class Paste_Source { copy, tile, plotted, plotted_elsewhere };

// The tile before it was turned by so many degrees, and what it became.
struct Tile_Turn {
    Shared_Picture original;
    int degrees = 0;
    Shared_Picture result;
};

// What a step of the history keeps of the work area; null for nothing selected, and nothing floating.
struct Work_State {
    std::shared_ptr<const Selection> selection;
    std::shared_ptr<const Floating_Paste> paste;
    Paste_Source paste_source = Paste_Source::copy;
    std::shared_ptr<const Tile_Turn> turn = {};
    // How far the seam tools had shifted the tile. What was lifted then may lie across its edge without that.
    Tile_Point seam_shift = {};

    [[nodiscard]] std::size_t memory_size() const;
};

class Work_Area {
public:
    Work_Area() : selection_(Selection(Size{})) {}

    // Makes it fit a tile of that size: nothing is selected, and what floats stays and does not come to lie
    // beside the tile.
    void resize(Size tile);

    [[nodiscard]] const Selection& selection() const { return *selection_; }
    [[nodiscard]] bool has_selection() const { return !selection_->is_empty(); }
    [[nodiscard]] const std::optional<Floating_Paste>& paste() const { return paste_; }
    // What the stroke that is being made will add to the selection or take from it.
    [[nodiscard]] const std::optional<Selection>& candidate() const { return candidate_; }

    void select(const Selection& area, Selection_Change change) { selection_->combine(area, change); }
    void deselect() { selection_->clear(); }
    void invert_selection() { selection_->invert(); }
    [[nodiscard]] Selection& mutable_selection() { return *selection_; }
    void set_candidate(const Selection& candidate) { candidate_.emplace(candidate); }
    void drop_candidate() { candidate_.reset(); }

    // Drops the selection; one that is made later takes the place of what floats in view.
    void float_paste(const Floating_Paste& paste, Paste_Source source = Paste_Source::copy);
    // The paste is there, and looks like that or lies there from now on. It is to be plotted once more, if it
    // did not before.
    void change_paste(const Floating_Paste& paste);
    void move_paste_to(Tile_Point position);
    void drop_paste();
    // Draws the paste, which is there, into the target, where it was not plotted already. Unless the mode
    // lets it go, it floats on.
    void plot_paste(Drawing_Target& target, Selection_Mode mode);
    // Returns whether something floats that was lifted off the tile and is not plotted yet.
    [[nodiscard]] bool has_lifted() const { return paste_source_ == Paste_Source::tile; }
    // Returns whether what floats is a part of the tile already: plotted twice, what is translucent in it
    // would get denser.
    [[nodiscard]] bool is_plotted() const { return paste_source_ == Paste_Source::plotted; }
    // To be called when another tile comes into view, on which nothing is plotted yet.
    void leave_tile();
    // The tile's pixels were scrolled by that much, and all goes with them.
    void scroll(Tile_Point offset);
    // The tile was scrolled by that much, and what floats may lie beside it now. It comes to where it is seen
    // most, on the axes of the scroll: in a tile that goes round, that is the same place.
    void bring_paste_back(Tile_Point scrolled);
    // Returns where the paste lies in the tile; may be asked only while there is one.
    [[nodiscard]] const Selection& paste_area() const { return *paste_area_; }
    // The selected pixels leave the tile, transparent holes behind them, and float where they were. What
    // floated before becomes a part of the tile, if it is in none yet. The selection is not empty.
    void lift_selection(Tile& tile);
    // The same, but the pixels stay in the tile and a copy of them floats.
    void copy_selection(Tile& tile);

    // Changes the colours of the paste, which is there.
    void recolor_paste(const std::function<void(Tile& picture)>& change);
    // Turns or mirrors the paste about its middle, moves it by a pixel where a tile is scrolled, or softens
    // it; every other command is unknown.
    Outcome transform_paste(Command command);

    // Returns how far the tile was turned since it was something else: 0 to 359 degrees.
    [[nodiscard]] int degrees_turned(const Tile& tile) const;
    // Turns the whole tile to that many degrees, from what it was before it was turned first.
    void turn_tile(Tile& tile, int degrees);
    // From now on the tile as it is counts as not turned.
    void end_turn() { turn_.reset(); }

    [[nodiscard]] Drawing_Target target(Tile& tile) const;

    [[nodiscard]] Work_State state() const;
    // A selection of another tile size is dropped.
    void restore(const Work_State& state);
    // Whether it was plotted already and what it was before it was turned make no difference.
    [[nodiscard]] bool operator==(const Work_State& state) const;

private:
    void update_paste_area();
    // Draws what floats and is in no tile yet into this one, where something else will float.
    void make_room(Tile& tile) const;

    std::optional<Selection> selection_; // always there; replaced for another size
    std::optional<Selection> candidate_;
    std::optional<Floating_Paste> paste_;
    Paste_Source paste_source_ = Paste_Source::copy; // also without a paste
    std::optional<Selection> paste_area_;
    std::shared_ptr<const Tile_Turn> turn_; // also when something else changed the tile since
};

} // namespace quadrelle
