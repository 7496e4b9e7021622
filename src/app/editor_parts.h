#pragma once

// What the editor consists of, and what commands, keys and the mouse work on.

#include "app/documents.h"
#include "app/journal_keeper.h"
#include "app/recorder.h"
#include "app/redraw.h"
#include "app/selection_desk.h"
#include "app/surroundings.h"
#include "app/window_panes.h"
#include "base/input.h"
#include "canvas/canvas_view.h"
#include "commands/outcome.h"

#include <string>
#include <string_view>

namespace quadrelle {

struct Editor_Parts {
    explicit Editor_Parts(const Redraw& redraw_window);
    // The parts refer to each other.
    Editor_Parts(const Editor_Parts&) = delete;
    Editor_Parts& operator=(const Editor_Parts&) = delete;

    // To be called after another tile, or a set of another size, became the current one.
    void show_current_tile();
    // What was lifted off the current tile drops into it, before another one comes into view.
    void leave_tile();
    // The tile is as it really is. What was lifted off it drops where it is seen, before it would come to lie
    // across the edge.
    void undo_seam_shifts();
    // Another tile comes into view: nothing is selected on it, where the options say so.
    void leave_selection();
    // Brings into view what a command did that was carried out.
    void follow_up(Command done);

    // Tell in the hint lines what a command did where nothing else shows it, or why it did nothing.
    void report(Command command, std::string_view what_it_did) {
        panes.hint_lines().report(command, what_it_did);
    }
    Outcome refuse(Command command, std::string_view why);

    Redraw redraw;
    Pointer_State pointer = pointer_nowhere;
    int clicks = 0; // of the press that is answered: 2 for that of a double click
    // The second of two clicks brought a tile into view: one more was none that was meant to draw on it.
    bool has_come_by_click = false;
    bool is_quit_requested = false;
    std::string file_to_load; // which nobody has to be asked about
    Size shown_tile_size;
    Canvas_View canvas;
    Documents documents;
    Recorder recorder;
    Selection_Desk desk;
    Surroundings surroundings;
    Window_Panes panes;
    Journal_Keeper journal;
};

} // namespace quadrelle
