#pragma once

// The program at work: takes events, routes them, carries out commands and draws the whole window.

#include "app/documents.h"
#include "base/input.h"
#include "canvas/canvas_view.h"
#include "commands/command.h"
#include "panes/copy_panes.h"
#include "panes/hint_lines.h"
#include "panes/history_pane.h"
#include "panes/icon_bar.h"
#include "panes/menu_bar.h"
#include "panes/palette_area.h"
#include "panes/preview_pane.h"
#include "panes/tile_navigation_pane.h"
#include "panes/tile_strip_picture.h"
#include "selection/clipboard_picture.h"
#include "selection/copy_buffer.h"
#include "ui/number_info.h"

#include <SDL3/SDL_events.h>

#include <memory>
#include <optional>

namespace quadrelle {

struct HSV_Change;

enum class Present { no, yes };

class Editor {
public:
    Editor();
    ~Editor();
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    // Returns when the user has confirmed quitting.
    void run();
    // The two halves of `run`: the first tileset in view, and one event answered.
    bool show_first_frame();
    void handle_one_event();
    // Carries the command out and records it.
    void execute(Command command);
    void redraw(Present present);

    [[nodiscard]] Documents& documents() { return documents_; }
    [[nodiscard]] Canvas_View& canvas() { return canvas_; }
    [[nodiscard]] const Hint_Lines& hint_lines() const { return hint_lines_; }
    [[nodiscard]] const Copy_Buffer& copies() const { return copy_buffer_; }
    [[nodiscard]] const Preview_Pane& preview() const { return preview_; }

private:
    struct Handler;
    struct Handlers;

    // Events.
    void handle(const SDL_Event& event);
    void handle_key(const SDL_KeyboardEvent& event);
    void handle_motion(const SDL_MouseMotionEvent& event);
    void handle_press(const SDL_MouseButtonEvent& event);
    void route_click();
    [[nodiscard]] bool click_pane();
    [[nodiscard]] bool click_copies();
    [[nodiscard]] bool click_strip();
    void draw_on_canvas();
    void show_what_is_under_the_pointer();
    void show_pointer();
    void hide_brush();
    [[nodiscard]] bool is_lit(Command icon) const;
    // The current tool where there is nothing else.
    [[nodiscard]] Pointed pointed();
    [[nodiscard]] std::optional<Place> pointed_place();

    // Commands. Each answers with the command to record, or none when it failed.
    [[nodiscard]] Command perform(Command command);
    [[nodiscard]] Command dispatch(Command command);
    void follow_up(Command done);
    Command do_nothing(Command command);
    Command select_tool(Command command);
    Command select_plain_shape(Command command);
    Command select_filled_shape(Command command);
    Command save_history(Command command);
    Command swap_tool_colors(Command command);
    Command select_brush_size(Command command);
    Command move_palette_selection(Command command);
    Command zoom(Command command);
    Command shift_to_seam(Command command);
    Command centre(Command command);
    Command close(Command command);
    Command make_new(Command command);
    Command load(Command command);
    Command save(Command command);
    Command quit(Command command);
    Command export_picture(Command command);
    Command edit_options(Command command);
    Command show_statistics(Command command);
    Command show_help(Command command);
    Command show_keyboard_commands(Command command);
    Command show_mouse_commands(Command command);
    Command show_about(Command command);
    Command show_debug_monitor(Command command);
    Command run_test(Command command);
    Command undo(Command command);
    Command redo(Command command);
    Command show_undo_history(Command command);
    Command show_versions(Command command);
    Command view_in_real_size(Command command);
    Command arrange(Command command);
    Command view_tile_array(Command command);

    Command edit_tool_color(Command command);
    Command adjust_hsv(Command command);
    [[nodiscard]] bool adjust_current_tile(const HSV_Change& change);
    [[nodiscard]] bool adjust_all_tiles(const HSV_Change& change);

    // Selection, copies and pastes.
    Command change_selection(Command command);
    Command copy(Command command);
    Command cut(Command command);
    Command paste(Command command);
    Command clone(Command command);
    Command plot(Command command);
    Command use_as_brush(Command command);
    Command move_brush_to_pad(Command command);
    Command delete_brush(Command command);
    void deselect();
    void fill_selected(Color color);
    void clear_selected();
    [[nodiscard]] std::optional<Floating_Paste> copied();
    // False after the user was told that such a picture cannot be taken.
    bool take_from_other_program();
    void float_paste(const Floating_Paste& paste);
    // True when that changed something.
    bool plot_paste();
    // Where no selection takes its place, and its pixels are not in the tile already.
    [[nodiscard]] bool is_paste_to_settle() const;
    void settle_paste();
    // Before another tool is taken or the tile is saved: what floats goes into the tile as a step of its own,
    // unless it is fixed.
    void plot_paste_to_leave();
    Command transform_work_area(Command command);
    bool nudge_paste(Key_Chord chord);
    // Nudges that follow each other are one step.
    void record_nudge(std::optional<Undo_Entry> floor);
    // Where the wand was pressed; false when nothing was selected there, or the wand only selects.
    [[nodiscard]] bool float_wand_area(Tile_Point pressed);

    // Adds the current tile to the history of the current document, and before it the state that an undo
    // gives back, where the history did not know it.
    void record(Command kind, std::optional<Undo_Entry> floor);
    // The current state, when the history stands on another tile, on nothing, or on another work area: adding
    // tiles, for example, records none of them, and what floats may come from another document.
    [[nodiscard]] std::optional<Undo_Entry> missing_floor();
    // False without an entry.
    bool restore(const Undo_Entry* entry);

    // After another tile, or a set of another size, came into view.
    void take_current_tile();
    void size_preview();

    Pointer_State pointer_{-1, -1, Mouse_Button::none};
    bool quit_requested_ = false;
    bool control_held_ = false;
    Size shown_tile_size_;
    Canvas_View canvas_;
    Copy_Buffer copy_buffer_;
    Copy_Panes copy_panes_;
    System_Clipboard clipboard_;
    std::weak_ptr<const Floating_Paste> nudged_; // as the history keeps it
    Documents documents_;
    Preview_Pane preview_;
    Number_Info magnification_; // shown as "21x"
    Palette_Area palette_;
    Selected_Color_Area selected_color_;
    History_Pane history_pane_;
    Tile_Navigation_Pane navigation_;
    Tile_Strip_Picture strip_picture_;
    std::unique_ptr<Menu_Bar> menu_bar_;
    Icon_Bar icon_bar_;
    Hint_Lines hint_lines_;
};

// Built at start-up, when everything it works with is there.
extern std::unique_ptr<Editor> editor;

} // namespace quadrelle
