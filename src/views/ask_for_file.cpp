#include "views/ask_for_file.h"

#include "base/file_names.h"
#include "base/platform_files.h"
#include "base/table.h"
#include "ui/dialogs.h"
#include "ui/modal_dialog.h"
#include "views/own_file_dialog.h"
#include "views/system_file_dialog.h"

#include <array>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

struct File_Dialog_Row {
    File_Dialog_Kind id;
    File_Request request;
};

// clang-format off
constexpr std::array<File_Dialog_Row, 13> file_dialog_table{{
    {File_Dialog_Kind::load_tileset,    {"Load",   File_Direction::open, "Quadrelle file (*.qdl)", "qdl", ""}},
    {File_Dialog_Kind::save_tileset,    {"Save",   File_Direction::save, "Quadrelle file (*.qdl)", "qdl", "qdl"}},
    {File_Dialog_Kind::open_any,        {"Open",   File_Direction::open, "All files (*.*)",        "*",   ""}},
    {File_Dialog_Kind::open_any_second, {"Open",   File_Direction::open, "All files (*.*)",        "*",   ""}},
    {File_Dialog_Kind::import_bitmap,   {"Import", File_Direction::open, "Bitmap file (*.bmp)",    "bmp", ""}},
    {File_Dialog_Kind::export_bitmap,   {"Export", File_Direction::save, "Bitmap file (*.bmp)",    "bmp", "bmp"}},
    {File_Dialog_Kind::import_palette,  {"Import palette", File_Direction::open, "All files (*.*)", "*", ""}},
    {File_Dialog_Kind::export_gpl,      {"Export palette", File_Direction::save, "Palette file (*.gpl)", "gpl", "gpl"}},
    {File_Dialog_Kind::export_hex,      {"Export palette", File_Direction::save, "Hexadecimal colors (*.hex)", "hex", "hex"}},
    {File_Dialog_Kind::export_png_palette, {"Export palette", File_Direction::save, "Picture (*.png)", "png", "png"}},
    {File_Dialog_Kind::export_png,      {"Export", File_Direction::save, "Picture (*.png)", "png", "png"}},
    {File_Dialog_Kind::import_map,      {"Import", File_Direction::open, "TMX map (*.tmx)",        "tmx", ""}},
    {File_Dialog_Kind::export_map,      {"Export", File_Direction::save, "Map or picture (*.tmx, *.png, *.bmp)", "*", ""}},
}};
// clang-format on

static_assert(file_dialog_table.size() == static_cast<std::size_t>(File_Dialog_Kind::count));
static_assert(rows_follow_their_ids(file_dialog_table));

const File_Request& request_of(File_Dialog_Kind kind) {
    return file_dialog_table.at(static_cast<std::size_t>(kind)).request;
}

// Asks in the best way that works. One that failed, or that the user has given up, is not tried again.
class Working_Dialog {
public:
    File_Answer operator()(File_Dialog_Kind kind, const std::string& proposed) {
        while (way_ != Way::own) {
            File_Answer answer = ask_system_dialog(request_of(kind));
            const bool has_failed = answer.state == File_Answer_State::failed && !system_has_file_dialogs;
            if (!has_failed && answer.state != File_Answer_State::given_up) {
                return answer;
            }
            const bool has_helper = has_failed && way_ == Way::system && prefer_helper_dialog();
            way_ = has_helper ? Way::helper : Way::own;
        }
        return ask_own_dialog(kind, proposed);
    }

private:
    enum class Way { system, helper, own };

    Way way_ = Way::system;
};

File_Chooser& chooser() {
    static File_Chooser the_chooser = Working_Dialog();
    return the_chooser;
}

} // namespace

File_Answer ask_own_dialog(File_Dialog_Kind kind, const std::string& proposed) {
    return run_file_chooser(request_of(kind), proposed);
}

void set_file_chooser(File_Chooser new_chooser) {
    chooser() = new_chooser ? std::move(new_chooser) : Working_Dialog();
}

bool choose_file(File_Dialog_Kind kind, std::string& path) {
    const File_Answer answer = chooser()(kind, path);
    show_backdrop();
    if (answer.state == File_Answer_State::failed) {
        dialogs->message("Note", "Unknown error occurred in file dialog.");
    }
    if (answer.state != File_Answer_State::chosen) {
        return false;
    }
    const File_Request& request = request_of(kind);
    const std::string forced = request.forced_extension;
    const std::string named = forced.empty() ? answer.path : with_extension(answer.path, forced);
    // The dialog has asked about the name that it knew of.
    if (named != answer.path && path_kind(named) != Path_Kind::nothing &&
        !dialogs->ask(request.title, "Save over existing file?")) {
        return false;
    }
    path = named;
    return true;
}

} // namespace quadrelle
