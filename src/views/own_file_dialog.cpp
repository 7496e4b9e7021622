#include "views/own_file_dialog.h"

#include "base/file_names.h"
#include "base/platform_files.h"
#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "screen/text_input.h"
#include "tileset/previous_copy.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog_frame.h"
#include "ui/dialogs.h"
#include "ui/modal_dialog.h"
#include "ui/name_prompt.h"
#include "ui/shown_text.h"
#include "ui/text_button.h"
#include "ui/text_field.h"
#include "views/file_choice.h"
#include "views/file_list.h"

#include <algorithm>
#include <limits>
#include <string>

namespace quadrelle {

namespace {

constexpr Font font = Font::regular;
constexpr Size below_title{640, 506};
constexpr int line = 24;
constexpr int gap = 7;
constexpr int list_height = 15 * line + 2;
constexpr int label_width = 60;
constexpr int name_height = 29;
constexpr int middle_button_width = 120;
constexpr int place_button_width = 155;
constexpr std::size_t longest_name = 4000;
constexpr int text_drop = 3;
constexpr int all_rows = std::numeric_limits<int>::max() / 2;

// Where the last file was chosen; at first where the program was started.
std::string& last_folder() {
    static std::string folder = current_directory();
    return folder;
}

struct Layout {
    explicit Layout(const Rectangle& frame)
        : path{frame.x + 2 * gap, frame.y + dialog_title_height + gap, frame.width - 4 * gap, line},
          list{frame.x + gap, path.bottom() + gap, frame.width - 2 * gap, list_height},
          note{path.x, list.bottom() + gap, path.width, line}, label{path.x, note.bottom() + gap, label_width,
                                                                     name_height},
          field{label.right(), label.y, frame.right() - gap - label.right(), name_height},
          buttons{frame.x + gap, field.bottom() + gap, frame.width - 2 * gap, text_button_height},
          middle_button{frame.x + (frame.width - middle_button_width) / 2, buttons.y, middle_button_width,
                        text_button_height},
          place_button{middle_button.right() + gap, buttons.y, place_button_width, text_button_height} {}

    Rectangle path, list, note, label, field, buttons, middle_button, place_button;
};

class Own_Chooser {
public:
    explicit Own_Chooser(const File_Request& request);
    File_Answer run(const std::string& proposed);

private:
    enum class Part { list, name };

    [[nodiscard]] bool open_start(const std::string& proposed);
    void draw();
    Loop_Step handle(const Input_Event& event);
    void handle_key(const Input_Event& event);
    void handle_list_key(Keycode pressed);
    void type(const Input_Event& event);
    Loop_Step press(const Input_Event& event);
    Loop_Step press_list(Point point);
    void move_to(int rows);
    void show_selection();
    void enter(const std::string& folder);
    Loop_Step accept();
    Loop_Step open_selected();
    Loop_Step accept_name();
    Loop_Step choose(const std::string& path);
    void make_folder_here();
    // To open, every file can be listed too.
    [[nodiscard]] bool can_list_all() const {
        return request_.direction == File_Direction::open && std::string_view(request_.pattern) != "*";
    }
    void toggle_all_files();
    // Sets that were saved over lie in a place of their own.
    [[nodiscard]] bool can_list_previous() const {
        return request_.direction == File_Direction::open && std::string_view(request_.pattern) == "qdl";
    }
    [[nodiscard]] bool lists_previous() const { return listing_.folder() == previous_copies().folder(); }
    void toggle_previous();

    File_Request request_;
    Folder_Listing listing_;
    Dialog_Frame frame_;
    Layout layout_;
    File_List list_;
    Text_Field name_;
    Button_Dialog_Item ok_{Item_Id{}, Button_Type::ok};
    Button_Dialog_Item cancel_{Item_Id{}, Button_Type::cancel};
    Part focus_;
    bool lists_all_ = false;
    bool is_row_chosen_ = false; // by the user, who may mean it by Ok
    std::string folder_before_;  // the copies were listed
    std::string note_;           // why the last attempt led nowhere
    File_Answer answer_{File_Answer_State::cancelled, {}};
};

Dialog_Frame sized_frame(std::string_view title) {
    Dialog_Frame frame(title);
    frame.set_size(below_title);
    return frame;
}

Own_Chooser::Own_Chooser(const File_Request& request)
    : request_(request), listing_(request.pattern), frame_(sized_frame(request.title)),
      layout_(frame_.area()), list_(layout_.list, listing_), name_(layout_.field, font, longest_name),
      focus_(request.direction == File_Direction::open ? Part::list : Part::name) {
    ok_.set_position({layout_.buttons.x, layout_.buttons.y});
    cancel_.set_position({layout_.buttons.right() - cancel_.area.width, layout_.buttons.y});
}

// What is proposed is selected: what is typed takes its place.
bool Own_Chooser::open_start(const std::string& proposed) {
    const std::string folder = folder_part(proposed);
    if (request_.direction == File_Direction::save && !proposed.empty()) {
        name_.set_text(final_path(request_, proposed.substr(folder.size())));
        name_.select_all();
        if (!folder.empty() && listing_.open(parent_folder(proposed))) {
            return true;
        }
    }
    return listing_.open_nearest(last_folder());
}

File_Answer Own_Chooser::run(const std::string& proposed) {
    if (!open_start(proposed)) {
        return {File_Answer_State::failed, {}};
    }
    list_.reset();
    const Text_Input typing;
    run_dialog({"file chooser", [this] { draw(); },
                [this](const Input_Event& event) { return handle(event); }, [this] { return accept(); },
                Dialog_Keys::enter});
    return answer_;
}

void Own_Chooser::draw() {
    frame_.draw();
    const Point path{layout_.path.x, layout_.path.y};
    screen->draw_text(font, path, fitted_text(font, listing_.folder(), layout_.path.width, Left_Out::start));
    const bool is_list = focus_ == Part::list;
    list_.draw({.list = is_list ? Focus::yes : Focus::no,
                .row = is_list && is_row_chosen_ ? Focus::yes : Focus::no});
    const std::string_view note = !note_.empty() ? note_.c_str()
                                  : lists_all_   ? "All files (*.*)"
                                                 : request_.filter_label;
    screen->draw_text(font, {layout_.note.x, layout_.note.y},
                      fitted_text(font, note, layout_.note.width, Left_Out::middle));
    screen->draw_text(font, {layout_.label.x, layout_.label.y + text_drop}, "Name:");
    name_.draw(focus_ == Part::name ? Focus::yes : Focus::no);
    ok_.draw();
    if (request_.direction == File_Direction::save) {
        draw_button(layout_.middle_button, {font, "New folder", text_drop});
    } else if (can_list_all()) {
        const std::string label = lists_all_ ? "Only ." + std::string(request_.pattern) : "All files";
        draw_button(layout_.middle_button, {font, label, text_drop});
    }
    if (can_list_previous()) {
        draw_button(layout_.place_button, {font, lists_previous() ? "Back" : "Previous copies", text_drop});
    }
    cancel_.draw();
}

Loop_Step Own_Chooser::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::key_press: handle_key(event); break;
    case Input_Kind::typed_text: type(event); break;
    case Input_Kind::wheel: list_.scroll_by_wheel(event.moved.y); break;
    case Input_Kind::pointer_motion: list_.drag(event.pointer.point()); break;
    case Input_Kind::button_release: list_.release(); break;
    case Input_Kind::button_press:
        return event.pointer.button == Mouse_Button::left ? press(event) : Loop_Step::go_on;
    default: break;
    }
    return Loop_Step::go_on;
}

void Own_Chooser::handle_key(const Input_Event& event) {
    const Keycode pressed = event.chord.key;
    note_.clear();
    if (pressed == key::tab) {
        focus_ = focus_ == Part::list ? Part::name : Part::list;
        return;
    }
    // Up and down lead into the list from everywhere.
    switch (pressed) {
    case key::up: move_to(-1); break;
    case key::down: move_to(1); break;
    case key::page_up: move_to(-list_.page()); break;
    case key::page_down: move_to(list_.page()); break;
    default:
        if (focus_ == Part::list) {
            handle_list_key(pressed);
        } else {
            name_.handle(event);
        }
    }
}

void Own_Chooser::handle_list_key(Keycode pressed) {
    switch (pressed) {
    case key::home: move_to(-all_rows); break;
    case key::end: move_to(all_rows); break;
    case key::backspace: enter(resolved_path(listing_.folder(), "..")); break;
    default: break;
    }
}

void Own_Chooser::move_to(int rows) {
    focus_ = Part::list;
    is_row_chosen_ = true;
    list_.move_selection(rows);
    show_selection();
}

// From the list on a new name is typed, not more of the one that is selected.
void Own_Chooser::type(const Input_Event& event) {
    if (focus_ == Part::list) {
        name_.set_text("");
    }
    focus_ = Part::name;
    name_.handle(event);
}

// A file's name can be changed in the line before it is chosen.
void Own_Chooser::show_selection() {
    if (const std::optional<std::size_t> row = list_.selected();
        row && listing_.rows()[*row].kind == Listed_Kind::file) {
        name_.set_text(listing_.rows()[*row].name);
    }
}

Loop_Step Own_Chooser::press(const Input_Event& event) {
    const Point point = event.pointer.point();
    note_.clear();
    if (layout_.list.contains(point)) {
        return press_list(point);
    }
    if (layout_.field.contains(point)) {
        focus_ = Part::name;
        name_.handle(event);
    }
    if (ok_.area.contains(point)) {
        return accept();
    }
    if (layout_.middle_button.contains(point)) {
        if (request_.direction == File_Direction::save) {
            make_folder_here();
        } else if (can_list_all()) {
            toggle_all_files();
        }
    }
    if (can_list_previous() && layout_.place_button.contains(point)) {
        toggle_previous();
    }
    return cancel_.area.contains(point) ? Loop_Step::end : Loop_Step::go_on;
}

Loop_Step Own_Chooser::press_list(Point point) {
    focus_ = Part::list;
    switch (list_.press(point)) {
    case File_List::Press::opens: return open_selected();
    case File_List::Press::selects:
        is_row_chosen_ = true;
        show_selection();
        break;
    case File_List::Press::nothing: break;
    }
    return Loop_Step::go_on;
}

void Own_Chooser::enter(const std::string& folder) {
    const std::string left = listing_.folder();
    if (!listing_.open(folder)) {
        note_ = "This folder cannot be read.";
        // It may have vanished, and the one that is shown with it.
        static_cast<void>(listing_.open_nearest(left));
    }
    list_.reset();
    // What is saved goes into the folder that is shown, not back into the one that is lit.
    is_row_chosen_ = request_.direction == File_Direction::open;
    // On the way up, the folder that one comes from.
    if (parent_folder(left) == listing_.folder()) {
        if (const auto row = listing_.find(left.substr(folder_part(left).size()))) {
            list_.select(*row);
        }
    }
}

Loop_Step Own_Chooser::accept() {
    note_.clear();
    return focus_ == Part::list && is_row_chosen_ && list_.selected() ? open_selected() : accept_name();
}

Loop_Step Own_Chooser::open_selected() {
    const std::size_t row = *list_.selected();
    if (listing_.rows()[row].kind == Listed_Kind::file) {
        return choose(listing_.path_of(row));
    }
    enter(listing_.path_of(row));
    return Loop_Step::go_on;
}

Loop_Step Own_Chooser::accept_name() {
    const std::string typed = name_.text();
    if (typed.empty()) {
        note_ = "Choose a file or type its name.";
        return Loop_Step::go_on;
    }
    const std::string path = resolved_path(listing_.folder(), typed);
    if (path_kind(path) == Path_Kind::folder) {
        enter(path);
        if (note_.empty()) {
            name_.set_text("");
        }
        return Loop_Step::go_on;
    }
    return choose(path);
}

Loop_Step Own_Chooser::choose(const std::string& path) {
    const std::string chosen = final_path(request_, path);
    note_ = fault_of_choice(request_, chosen);
    const bool replaces =
        request_.direction == File_Direction::save && path_kind(chosen) != Path_Kind::nothing;
    if (!note_.empty() || (replaces && !dialogs->ask(request_.title, "Save over existing file?"))) {
        return Loop_Step::go_on;
    }
    // Whoever has taken a copy goes on where he was.
    last_folder() = lists_previous() ? folder_before_ : parent_folder(chosen);
    answer_ = {File_Answer_State::chosen, chosen};
    return Loop_Step::end;
}

void Own_Chooser::toggle_all_files() {
    lists_all_ = !lists_all_;
    const std::string folder = listing_.folder();
    listing_ = Folder_Listing(lists_all_ ? "*" : request_.pattern);
    static_cast<void>(listing_.open_nearest(folder));
    list_.reset();
    is_row_chosen_ = false;
}

void Own_Chooser::toggle_previous() {
    const std::string place = lists_previous() ? folder_before_ : previous_copies().folder();
    if (path_kind(place) != Path_Kind::folder) {
        note_ = "No set has been saved over yet.";
        return;
    }
    folder_before_ = listing_.folder();
    enter(place);
}

// Enters the folder that was made, so that what is saved next goes there.
void Own_Chooser::make_folder_here() {
    const std::optional<std::string> name = ask_name("New folder", "");
    if (!name) {
        return;
    }
    const std::string path = joined_path(listing_.folder(), *name);
    note_ = fault_of_folder_name(*name);
    if (note_.empty() && path_kind(path) != Path_Kind::nothing) {
        note_ = "There is a file or folder of this name already.";
    }
    if (note_.empty() && !make_folder(path)) {
        note_ = "The folder cannot be made.";
    }
    if (note_.empty()) {
        enter(path);
    }
}

} // namespace

File_Answer run_file_chooser(const File_Request& request, const std::string& proposed) {
    return Own_Chooser(request).run(proposed);
}

} // namespace quadrelle
