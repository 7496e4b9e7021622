#include "ui/dialog_container.h"

#include "base/block_file.h"
#include "base/data_directory.h"
#include "base/data_stream.h"
#include "screen/screen.h"
#include "ui/held_button.h"
#include "ui/modal_dialog.h"
#include "ui/text_dialog.h"

#include <algorithm>
#include <cstdlib>

namespace quadrelle {

namespace {

constexpr int narrowest = 100;
constexpr int button_row_height = 27;

Dialog_Row make_button_row(Button_Type accepting) {
    Dialog_Row row;
    row.add<Button_Dialog_Item>(Item_Id{}, accepting);
    return row;
}

} // namespace

Dialog_Container::Dialog_Container(std::string_view title, std::string data_file)
    : data_file_(std::move(data_file)), frame_(title) {}

Dialog_Row& Dialog_Container::add_text_row(std::string_view text) {
    Dialog_Row row;
    row.add<Text_Dialog>(Item_Id{}, text);
    return add_row(std::move(row));
}

Dialog_Row& Dialog_Container::add_image_row(Sprite sprite) {
    Dialog_Row row;
    row.add<Image_Dialog_Item>(Item_Id{}, sprite);
    return add_row(std::move(row));
}

void Dialog_Container::add_message(std::string_view text) {
    Dialog_Item& item = *add_text_row(text).items().front();
    item.area.width = std::max(item.area.width, frame_.title_width());
    item.area.height += dialog_margin;
}

void Dialog_Container::finish_ok() {
    finish(make_button_row(Button_Type::ok));
}

void Dialog_Container::finish_ok_cancel() {
    finish_ok_cancel(Button_Type::ok);
}

void Dialog_Container::finish_ok_cancel(Button_Type accepting) {
    Dialog_Row buttons = make_button_row(accepting);
    buttons.add<Button_Dialog_Item>(Item_Id{}, Button_Type::cancel);
    finish(std::move(buttons));
}

void Dialog_Container::finish(Dialog_Row buttons) {
    add_row(std::move(buttons));
    load_and_size();
    place_buttons();
}

void Dialog_Container::load_and_size() {
    load_file();
    Size size{narrowest, 2 * dialog_margin};
    for (Dialog_Row& row : rows_.rows()) {
        row.measure();
        size.width = std::max(size.width, row.area.width);
        size.height += row.area.height;
    }
    size.width += 2 * dialog_margin;
    frame_.set_size(size);
    rows_.stack({frame_.area().x + dialog_margin, frame_.area().y + dialog_title_height + dialog_margin},
                Dialog_Rows::Extent::all_but_last);
}

void Dialog_Container::place_buttons() {
    const Rectangle& box = frame_.area();
    Dialog_Row& row = rows_.rows().back();
    row.area = {box.x, box.bottom() - button_row_height - dialog_margin, box.width, button_row_height};
    Dialog_Item& first = *row.items().front();
    const int y = box.bottom() - first.area.height - dialog_margin;
    if (row.items().size() == 1) {
        first.set_position({box.x + (box.width - first.area.width) / 2, y});
        return;
    }
    Dialog_Item& second = *row.items().back();
    first.set_position({box.x + dialog_margin, y});
    second.set_position({box.right() - second.area.width - dialog_margin, y});
}

bool Dialog_Container::run() {
    result_ = {};
    rows_.begin();
    const std::string name = "dialog \"" + frame_.title() + "\"";
    run_dialog({name, [this] { draw(); }, [this](const Input_Event& event) { return handle(event); },
                [this] { return accept(); }});
    // Escape deliberately is no Cancel: the items stay as they are.
    if (result_.kind == Dialog_Event_Kind::cancel) {
        rows_.revert();
    }
    if (result_.kind != Dialog_Event_Kind::accept) {
        return false;
    }
    save_file();
    return true;
}

Loop_Step Dialog_Container::accept() {
    result_ = {Dialog_Event_Kind::accept};
    return Loop_Step::end;
}

Loop_Step Dialog_Container::handle(const Input_Event& event) {
    if (event.kind == Input_Kind::button_press) {
        return press(event.pointer);
    }
    if (event.kind == Input_Kind::wheel) {
        const int steps = wheel_.take(event.moved.y);
        for (int i = 0; i < std::abs(steps); ++i) {
            rows_.step_at(event.pointer.point(),
                          steps > 0 ? Dialog_Event_Kind::increase : Dialog_Event_Kind::decrease);
        }
    }
    return Loop_Step::go_on;
}

Loop_Step Dialog_Container::press(const Pointer_State& pointer) {
    if (pointer.button == Mouse_Button::none) {
        return Loop_Step::go_on;
    }
    result_ = rows_.item_at(pointer.point());
    rows_.notify(result_);
    hold_step(pointer.point());
    return result_.closes() ? Loop_Step::end : Loop_Step::go_on;
}

// Not around from one bound to the other, as a single step may.
void Dialog_Container::hold_step(Point point) {
    const bool is_step =
        result_.kind == Dialog_Event_Kind::increase || result_.kind == Dialog_Event_Kind::decrease;
    const Dialog_Item* const number = rows_.item(result_.target);
    const Dialog_Item* const button = rows_.item_under(point);
    if (is_step && number != nullptr && button != nullptr && number->is_stepped_on()) {
        const auto step = [this, number] {
            if (number->has_step(result_.kind)) {
                rows_.notify(result_);
            }
        };
        repeat_while_held({button->area, show_backdrop, step}, point);
    }
}

void Dialog_Container::draw() const {
    frame_.draw();
    rows_.draw();
}

int Dialog_Container::value(int id) const {
    const Dialog_Item* const found = item(id);
    return found == nullptr ? -1 : found->value();
}

void Dialog_Container::load_file() {
    if (data_file_.empty()) {
        return;
    }
    Block_File file(data_directory().path(data_file_));
    if (file.open_read()) {
        Data_Stream stream;
        stream.load_from(file);
        rows_.load(stream);
    }
}

void Dialog_Container::save_file() {
    if (data_file_.empty()) {
        return;
    }
    Data_Stream stream;
    rows_.save(stream);
    if (!stream.save_to(data_directory().path(data_file_))) {
        run_message("Note", "Can't save dialog data.");
    }
}

void run_message(std::string_view title, std::string_view text) {
    Dialog_Container dialog(title);
    dialog.add_message(text);
    dialog.finish_ok();
    dialog.run();
}

} // namespace quadrelle
