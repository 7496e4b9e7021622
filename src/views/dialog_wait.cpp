#include "views/dialog_wait.h"

#include "screen/events.h"
#include "screen/screen.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"

#include <chrono>
#include <string_view>

namespace quadrelle {

namespace {

constexpr Font font = Font::regular;
constexpr int line_height = 24;
constexpr std::string_view title = "File dialog";
constexpr std::string_view first_line = "Waiting for the file dialog of the system.";
constexpr std::string_view second_line = "If it does not come, press Escape for the dialog of the program.";

void draw_line_about_it() {
    Dialog_Frame frame(title);
    frame.set_size(
        {screen->text_width(font, second_line) + 2 * dialog_margin, 2 * (line_height + dialog_margin)});
    frame.draw();
    const Point place{frame.area().x + dialog_margin, frame.area().y + dialog_title_height + dialog_margin};
    screen->draw_text(font, place, first_line);
    screen->draw_text(font, {place.x, place.y + line_height}, second_line);
}

class Waiting {
public:
    explicit Waiting(int patience) : patience_(patience) {}

    Wait_End run(const std::function<bool()>& is_answered);

private:
    using Clock = std::chrono::steady_clock;

    // Whether the user has given it up.
    bool step();

    std::chrono::milliseconds patience_;
    Clock::time_point start_ = Clock::now();
    bool is_told_ = false;
    bool is_quit_wanted_ = false;
};

bool Waiting::step() {
    const Idle_Outcome outcome = idle("file dialog");
    is_quit_wanted_ = is_quit_wanted_ || outcome == Idle_Outcome::quit_wanted;
    const bool gives_up = is_told_ && (is_quit_wanted_ || outcome == Idle_Outcome::escape_pressed);
    const bool is_time_to_tell = !is_told_ && Clock::now() - start_ >= patience_;
    is_told_ = is_told_ || is_time_to_tell;
    if (is_told_ && (is_time_to_tell || outcome != Idle_Outcome::nothing_happened)) {
        show_over_backdrop(draw_line_about_it);
    } else if (outcome != Idle_Outcome::nothing_happened) {
        show_backdrop();
    }
    return gives_up;
}

Wait_End Waiting::run(const std::function<bool()>& is_answered) {
    Wait_End end = Wait_End::answered;
    while (end == Wait_End::answered && !is_answered()) {
        if (step()) {
            end = is_quit_wanted_ ? Wait_End::quit : Wait_End::given_up;
        }
    }
    if (is_quit_wanted_) {
        keep_quit();
    }
    return end;
}

} // namespace

Wait_End wait_for_dialog(const std::function<bool()>& is_answered, int patience) {
    return Waiting(patience).run(is_answered);
}

} // namespace quadrelle
