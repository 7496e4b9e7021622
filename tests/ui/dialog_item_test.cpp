#include "base/data_stream.h"
#include "base/debug_monitor.h"
#include "tests/support/window_test.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog_rows.h"
#include "ui/number_dialog_item.h"
#include "ui/text_dialog.h"
#include "ui/textlist_dialog_item.h"

#include <stdexcept>

namespace quadrelle::testing {
namespace {

class Dialog_Item_Test : public Window_Test {};

using Texts = std::vector<std::string>;

class Box_Item : public Dialog_Item {
public:
    Box_Item(Size size, Dialog_Event event) : Dialog_Item(Item_Id{}), event_(event) {
        area = {0, 0, size.width, size.height};
    }
    Dialog_Event click(Point) override { return event_; }

private:
    Dialog_Event event_;
};

} // namespace

TEST(Cyclic_Int, never_takes_the_mark_for_no_value) {
    Cyclic_Int below(0, -5, 5);
    below.decrease();
    EXPECT_EQ(below.value(), 0);
    Cyclic_Int index(0, 0, 2);
    index.decrease();
    EXPECT_EQ(index.value(), 0);
    below.set(-2);
    below.increase();
    EXPECT_EQ(below.value(), -2);
}

TEST(Choices, are_parsed_up_to_the_end_mark) {
    EXPECT_EQ(parse_choices("a,b,c$"), (Texts{"a", "b", "c"}));
    EXPECT_EQ(parse_choices(",,x$"), (Texts{",", "x"}));
    EXPECT_EQ(parse_choices("$"), Texts{""});
    EXPECT_EQ(parse_choices("one, two$three"), (Texts{"one", " two"}));
    EXPECT_EQ(parse_choices("a,$"), (Texts{"a", ""}));
    EXPECT_THROW(static_cast<void>(parse_choices("a,b")), std::invalid_argument);
}

TEST_F(Dialog_Item_Test, first_known_answer_of_the_first_row_under_the_point_wins) {
    Dialog_Rows rows;
    for (int i = 0; i < 2; ++i) {
        Dialog_Row row;
        row.add<Box_Item>(Size{10, 10}, Dialog_Event{Dialog_Event_Kind::unknown, 5});
        row.add<Box_Item>(Size{10, 10}, Dialog_Event{Dialog_Event_Kind::left, i});
        row.add<Box_Item>(Size{10, 10}, Dialog_Event{Dialog_Event_Kind::right, i});
        rows.add_row(std::move(row)).place({0, 10 * i});
    }
    EXPECT_EQ(rows.item_at({43, 9}), (Dialog_Event{Dialog_Event_Kind::left, 0}));
    EXPECT_EQ(rows.item_at({0, 10}), (Dialog_Event{Dialog_Event_Kind::left, 1}));
    EXPECT_EQ(rows.item_at({44, 9}), Dialog_Event{});
    EXPECT_EQ(rows.item_at({-1, 9}), Dialog_Event{});
    EXPECT_EQ(rows.item_at({0, 20}), Dialog_Event{});
}

TEST_F(Dialog_Item_Test, buttons_answer_for_their_hosts_and_hang_beside_text) {
    for (const Button_Row& kind : button_table) {
        Button_Dialog_Item button({1, 42}, kind.id);
        button.set_position({100, 200});
        const bool is_high = kind.id == Button_Type::ok || kind.id == Button_Type::cancel ||
                             kind.id == Button_Type::left || kind.id == Button_Type::right ||
                             kind.id == Button_Type::overwrite;
        EXPECT_EQ(button.area.y, is_high ? 200 : 202) << kind.label;
        EXPECT_EQ(button.click({100, 203}), (Dialog_Event{kind.event, 42})) << kind.label;
        EXPECT_EQ(button.click({99, 203}), Dialog_Event{}) << kind.label;
        EXPECT_EQ(button.click({button.area.right(), 203}), Dialog_Event{}) << kind.label;
        EXPECT_EQ(button.value(), -1);
    }
    EXPECT_EQ(Button_Dialog_Item({}, Button_Type::more).area.width, 15);
}

TEST_F(Dialog_Item_Test, numbers_are_as_wide_as_they_are_written) {
    Number_Dialog_Item number({5}, {9, 1, 10});
    const int one_digit = number.area.width;
    number.notify(Dialog_Event_Kind::increase);
    EXPECT_EQ(number.value(), 10);
    EXPECT_GT(number.area.width, one_digit);
    number.notify(Dialog_Event_Kind::increase);
    EXPECT_EQ(number.value(), 1);
    number.notify(Dialog_Event_Kind::decrease);
    number.notify(Dialog_Event_Kind::middle);
    EXPECT_EQ(number.value(), 10);
    const Textlist_Dialog_Item list({5}, "i,A long one,i$", 0);
    EXPECT_EQ(list.area.width, Text_Dialog({}, "A long one").area.width);
}

} // namespace quadrelle::testing
