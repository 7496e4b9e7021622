#pragma once

// What can be done with the selection, with copies, and with the picture that floats over the tile. Tells the
// user nothing: it answers, and whoever asked tells.
//
// A copy is floated over the tile; there it can be nudged and transformed. To plot it is to draw it into the
// tile; to settle it is to plot it if that is still due.

#include "commands/outcome.h"
#include "selection/clipboard_picture.h"
#include "selection/copy_buffer.h"
#include "selection/work_area.h"
#include "tools/recolor.h"

#include <functional>
#include <optional>

namespace quadrelle {

class Canvas_View;
class Recorder;
class Toolbox;

class Selection_Desk {
public:
    // Borrows all three.
    Selection_Desk(Canvas_View& canvas, Recorder& recorder, Toolbox& tools)
        : canvas_(canvas), recorder_(recorder), toolbox_(tools) {}

    [[nodiscard]] Copy_Buffer& copies() { return copies_; }
    [[nodiscard]] const Copy_Buffer& copies() const { return copies_; }
    // Returns whether something floats in view.
    [[nodiscard]] bool shows_paste() const;
    // Returns whether something floats in view or is selected.
    [[nodiscard]] bool has_something() const;

    // These are refused where they change nothing. To deselect gives up the selection, or else what floats,
    // which settles. The others change what floats in view, or what is selected, or else the whole tile.
    Outcome deselect();
    Outcome invert();
    Outcome select_all();
    Outcome fill(Color color);
    Outcome clear();
    Outcome recolor(const Color_Map& map);
    // Changes all of the tile, whatever is selected; what floats stays.
    Outcome recolor_tile(const Color_Map& map);
    // Counts the pixels that `recolor` would change.
    [[nodiscard]] int count_changes(const Color_Map& map) const;
    // Selects the pixels of the tile that have such colours.
    Outcome select_colors(const std::function<bool(Color)>& is_wanted);

    // Returns what floats in view, or what is selected, or else the whole tile; none without a pixel.
    [[nodiscard]] std::optional<Floating_Paste> what_to_copy() const;
    // Take that. Refused where nothing of it is visible: the copies before would make room for nothing.
    Outcome copy();
    Outcome cut();
    // Makes a picture that the user loses the current copy, without offering it to other programs. What one
    // of them put on the clipboard comes after it. The canvas shows a tile.
    void keep(const Tile& picture);
    // Makes a picture that another program put on the clipboard the current copy. The canvas shows a tile.
    Picture_Fault take_clipboard();
    // Float the current copy; refused without one. What is selected is copied before it is cloned.
    Outcome paste();
    Outcome clone(Clone_Style style);

    // Floats the picture in place of the selection and of what floated, which settles. Takes the tool that
    // moves it.
    void float_picture(const Floating_Paste& picture, Paste_Source source = Paste_Source::copy);
    // Floats what was selected where the wand was pressed, as its quick modes say. Returns false when nothing
    // visible was selected there, or the wand only selects.
    [[nodiscard]] bool float_wand_area(Tile_Point pressed);
    // Moves what floats by that many pixels; nudges that follow each other are one step. Returns false when
    // nothing floats in view.
    bool nudge(int dx, int dy);
    // Turns, mirrors, scrolls or softens what floats, which is moved instead of scrolled, or what is
    // selected, which floats from then on if it cannot be turned in its place. All else is unknown.
    Outcome transform(Command command);
    // Draws what floats into the tile. Refused when that changed nothing.
    Outcome plot();
    // Settles what floats, as a step of its own, before another tool is taken. What is fixed floats on.
    void settle_before_leaving();
    // The same before the tile is written; but what was lifted off the tile is plotted in every mode.
    void settle_to_save();
    // Returns whether that would change something.
    [[nodiscard]] bool has_to_settle() const;
    // Returns the tile with what would be plotted then; none if that is nothing.
    [[nodiscard]] std::optional<Tile> settled_tile() const;
    // Returns the tile as it is when what was lifted off it drops; none if nothing was.
    [[nodiscard]] std::optional<Tile> tile_with_lifted() const;
    // Plots what was lifted off the tile, as a step of its own, before another tile comes into view or this
    // one is shifted. It floats no longer, whatever the mode; copies float on.
    void drop_lifted();

private:
    Outcome change(const std::function<void()>& work);
    void fill_selected(Color color);
    void fill_paste(Color color);
    void clear_selected();
    void lift_and_transform(Command command);
    void plot_paste();
    void plot_lifted(Selection_Mode mode);
    [[nodiscard]] bool is_to_settle() const;
    [[nodiscard]] bool settles_before_leaving() const;
    void settle();
    [[nodiscard]] std::optional<Tile> tile_with_paste() const;

    Canvas_View& canvas_;
    Recorder& recorder_;
    Toolbox& toolbox_;
    Copy_Buffer copies_;
    System_Clipboard clipboard_;
};

} // namespace quadrelle
