#pragma once

// What can be done with the selection, with copies, and with the picture that floats over the tile. Tells the
// user nothing: it answers, and whoever asked tells.
//
// A copy is floated over the tile; there it can be nudged and transformed. To plot it is to draw it into the
// tile; to settle it is to plot it if that is still due.

#include "commands/outcome.h"
#include "selection/clipboard_picture.h"
#include "selection/copy_buffer.h"
#include "selection/floating_paste.h"

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
    // Something floats in view.
    [[nodiscard]] bool shows_paste() const;
    // That, or something is selected.
    [[nodiscard]] bool has_something() const;

    // These four are refused where they change nothing. A selection goes first, then what floats, which
    // settles.
    Outcome deselect();
    Outcome invert();
    Outcome fill(Color color);
    Outcome clear();

    // What is selected, or the paste that is to be seen, or else the whole tile; refused without a pixel.
    Outcome copy();
    Outcome cut();
    // A new picture on the system's clipboard becomes the current copy.
    Picture_Fault take_clipboard();
    // Refused without a copy. What is selected is copied before it is cloned.
    Outcome paste();
    Outcome clone(Clone_Style style);

    // In place of the selection and of what floated, which settles. The tool that moves it is taken.
    void float_picture(const Floating_Paste& picture);
    // Where the wand was pressed, as its quick modes say; false when nothing was selected there, or the wand
    // only selects.
    [[nodiscard]] bool float_wand_area(Tile_Point pressed);
    // False when nothing floats in view. Nudges that follow each other are one step.
    bool nudge(int dx, int dy);
    // Turns, mirrors or scrolls what floats or is selected. Unknown where neither is there.
    Outcome transform(Command command);
    // Refused when that changed nothing.
    Outcome plot();
    // Before another tool is taken or the tile is saved; a step of its own. What is fixed floats on.
    void settle_before_leaving();

private:
    Outcome change(const std::function<void()>& work);
    void fill_selected(Color color);
    void clear_selected();
    [[nodiscard]] std::optional<Floating_Paste> what_to_copy() const;
    void plot_paste();
    [[nodiscard]] bool is_to_settle() const;
    void settle();

    Canvas_View& canvas_;
    Recorder& recorder_;
    Toolbox& toolbox_;
    Copy_Buffer copies_;
    System_Clipboard clipboard_;
};

} // namespace quadrelle
