#pragma once

// A dialog: its layout, its modal loop, and the file that keeps what was chosen.

#include "base/input.h"
#include "base/wheel_steps.h"
#include "screen/events.h"
#include "screen/sprite_table.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog_frame.h"
#include "ui/dialog_rows.h"

#include <string>
#include <string_view>
#include <utility>

namespace quadrelle {

class Dialog_Container {
public:
    // `data_file` is a name in the data directory, or empty.
    explicit Dialog_Container(std::string_view title, std::string data_file = {});

    Dialog_Row& add_row(Dialog_Row row) { return rows_.add_row(std::move(row)); }
    // The text must outlive the dialog.
    Dialog_Row& add_text_row(std::string_view text);
    Dialog_Row& add_image_row(Sprite sprite);
    // Adds a text that stands by itself: the dialog becomes at least as wide as its title.
    void add_message(std::string_view text);
    // Adds the last row: everything else is added before.
    void finish_ok();
    void finish_ok_cancel();
    // The first button accepts, whatever it is called.
    void finish_ok_cancel(Button_Type accepting);

    // Returns true when accepted; the items are then saved. Cancel restores numbers and choices, but
    // deliberately not ticks; every other end leaves all items as they are.
    bool run();
    [[nodiscard]] Dialog_Item* item(int id) const { return rows_.item(id); }
    // Returns the value of the item with that id, or -1 without one.
    [[nodiscard]] int value(int id) const;
    [[nodiscard]] const Dialog_Frame& frame() const { return frame_; }
    [[nodiscard]] Dialog_Rows& rows() { return rows_; }

private:
    void finish(Dialog_Row buttons);
    void load_and_size();
    void place_buttons();
    void draw() const;
    void load_file();
    void save_file();
    Loop_Step accept();
    Loop_Step handle(const Input_Event& event);
    Loop_Step press(const Pointer_State& pointer);
    // A number goes on stepping while the button beside it is held.
    void hold_step(Point point);

    std::string data_file_;
    Dialog_Frame frame_;
    Dialog_Rows rows_;
    Dialog_Event result_;
    Wheel_Steps wheel_;
};

// Shows a text and waits until it is dismissed.
void run_message(std::string_view title, std::string_view text);

} // namespace quadrelle
