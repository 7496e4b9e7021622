#include "ui/name_prompt.h"

#include "screen/text_input.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"
#include "ui/text_field.h"

#include <cstddef>

namespace quadrelle {

namespace {

constexpr Size below_title{320, 77};
constexpr int field_height = 29;
constexpr std::size_t longest_name = 200;

class Name_Prompt {
public:
    Name_Prompt(std::string_view title, std::string_view name);

    std::optional<std::string> run();

private:
    void draw() const;
    Loop_Step handle(const Input_Event& event);
    Loop_Step press(const Input_Event& event);
    Loop_Step accept();

    Dialog_Frame frame_;
    Text_Field field_;
    Button_Dialog_Item ok_{Item_Id{}, Button_Type::ok};
    Button_Dialog_Item cancel_{Item_Id{}, Button_Type::cancel};
    std::optional<std::string> result_;
};

Dialog_Frame sized_frame(std::string_view title) {
    Dialog_Frame frame(title);
    frame.set_size(below_title);
    return frame;
}

Rectangle field_area(const Rectangle& frame) {
    return {frame.x + dialog_margin, frame.y + dialog_title_height + dialog_margin,
            frame.width - 2 * dialog_margin, field_height};
}

Name_Prompt::Name_Prompt(std::string_view title, std::string_view name)
    : frame_(sized_frame(title)), field_(field_area(frame_.area()), Font::regular, longest_name) {
    const Rectangle& box = frame_.area();
    const int y = box.bottom() - dialog_margin - ok_.area.height;
    ok_.set_position({box.x + dialog_margin, y});
    cancel_.set_position({box.right() - dialog_margin - cancel_.area.width, y});
    field_.set_text(name);
    field_.select_all();
}

std::optional<std::string> Name_Prompt::run() {
    const Text_Input typing;
    const std::string loop_name = "dialog \"" + frame_.title() + "\"";
    run_dialog({loop_name, [this] { draw(); }, [this](const Input_Event& event) { return handle(event); },
                [this] { return accept(); }, Dialog_Keys::enter});
    return result_;
}

void Name_Prompt::draw() const {
    frame_.draw();
    field_.draw(Focus::yes);
    ok_.draw();
    cancel_.draw();
}

Loop_Step Name_Prompt::handle(const Input_Event& event) {
    if (event.kind == Input_Kind::button_press) {
        return event.pointer.button == Mouse_Button::left ? press(event) : Loop_Step::go_on;
    }
    field_.handle(event);
    return Loop_Step::go_on;
}

Loop_Step Name_Prompt::press(const Input_Event& event) {
    const Point point = event.pointer.point();
    if (field_.area().contains(point)) {
        field_.handle(event);
    }
    if (ok_.area.contains(point)) {
        return accept();
    }
    return cancel_.area.contains(point) ? Loop_Step::end : Loop_Step::go_on;
}

Loop_Step Name_Prompt::accept() {
    result_ = field_.text();
    return Loop_Step::end;
}

} // namespace

std::optional<std::string> ask_name(std::string_view title, std::string_view name) {
    return Name_Prompt(title, name).run();
}

} // namespace quadrelle
