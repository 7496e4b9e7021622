#pragma once

// The program at work: takes events, lets commands be carried out, and draws the whole window. Whoever works
// with a part of it includes that part.

#include "app/redraw.h"
#include "commands/command.h"

#include <memory>
#include <string>

namespace quadrelle {

class Canvas_View;
class Copy_Buffer;
class Documents;
class Window_Panes;
struct Editor_Parts;
struct Input_Event;

class Editor {
public:
    Editor();
    ~Editor();
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    // Returns when the user has confirmed quitting.
    void run();
    // The parts of `run`: the first tileset in view, what an earlier run has left, and one event answered.
    bool show_first_frame();
    void offer_recovery();
    void handle_one_event();
    // Carries the command out and records it.
    void execute(Command command) { execute(command, Held::no); }
    // A file that was dropped on the window.
    void open_file(const std::string& path);
    void redraw(Present present);

    [[nodiscard]] Documents& documents();
    [[nodiscard]] Canvas_View& canvas();
    [[nodiscard]] const Copy_Buffer& copies() const;
    [[nodiscard]] const Window_Panes& panes() const;

private:
    // Whether the key or button that asks for a command does so again because it is held down.
    enum class Held { no, yes };

    void handle(const Input_Event& event);
    // What a press of the mouse leads to, again and again on a button that is held.
    void press(Command command);
    void execute_if_any(Command command, Held held = Held::no);
    void execute(Command command, Held held);
    // Carries the command out. Returns the command to record, or none when it failed or was refused.
    [[nodiscard]] Command perform(Command command);

    void keep_journal();

    std::unique_ptr<Editor_Parts> parts_;
    bool journal_has_failed_ = false;
};

// Built at start-up, when everything it works with is there.
extern std::unique_ptr<Editor> editor;

} // namespace quadrelle
