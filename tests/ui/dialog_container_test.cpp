#include "ui/dialog_container.h"

#include "tests/support/window_test.h"

namespace quadrelle::testing {

namespace {

constexpr int number_id = 11;
constexpr int choice_id = 21;
constexpr int tick_id = 30;

// A dialog with one item of each kind that can be changed.
class Dialog_Container_Test : public Window_Test {
protected:
    void make(const std::string& data_file = {}) {
        dialog.emplace("Dialog", data_file);
        dialog->add_row(make_number_row(number_id, "Number:", {24, 6, 64}));
        dialog->add_row(make_choice_row(choice_id, "One,Two,Three$", 0));
        dialog->add_row(make_tick_row(tick_id, "Tick", Tick::off));
        dialog->finish_ok_cancel();
    }

    [[nodiscard]] Point middle_of(std::size_t row, std::size_t item) {
        const Rectangle& area = dialog->rows().rows().at(row).items().at(item)->area;
        return {area.x + area.width / 2, area.y + area.height / 2};
    }
    [[nodiscard]] Point more(std::size_t row) { return middle_of(row, 1); }
    [[nodiscard]] Point tick() { return middle_of(2, 0); }
    [[nodiscard]] Point ok() { return middle_of(3, 0); }
    [[nodiscard]] Point cancel() { return middle_of(3, 1); }

    // Changes every item.
    Script& change_all(Script& script) { return script.click(more(0)).click(more(1)).click(tick()); }
    void expect_values(int number, int choice, int is_ticked) {
        EXPECT_EQ(dialog->value(number_id), number);
        EXPECT_EQ(dialog->value(choice_id), choice);
        EXPECT_EQ(dialog->value(tick_id), is_ticked);
    }

    std::optional<Dialog_Container> dialog;
};

const std::string record_as_built = "4,2,3,10,24,6,64,2,3,0,0,2,4,-1,0,1";

} // namespace

TEST_F(Dialog_Container_Test, is_sized_by_its_rows_and_centred) {
    Dialog_Container narrow("Narrow");
    narrow.add_text_row("i");
    narrow.finish_ok();
    const int height = 24 + 7 + 23 + 27 + 7;
    EXPECT_EQ(narrow.frame().area(), (Rectangle{(1232 - 114) / 2, (664 - height) / 2, 114, height}));
}

// Its arrows would move on while it is stepped, were they right of it.
TEST_F(Dialog_Container_Test, a_number_goes_on_while_its_arrow_is_held) {
    make();
    Script script;
    const auto expect_loop = [&script](const std::string& name) {
        script.check_loop([name](std::string_view loop) { EXPECT_EQ(loop, name); });
    };
    script.press(more(1));
    expect_loop("dialog \"Dialog\"");
    script.release(more(1)).press(more(0)).pause(310).check(
        [this] { EXPECT_EQ(dialog->value(number_id), 26); });
    expect_loop("held button");
    script.release(more(0)).key(key::enter);
    EXPECT_TRUE(dialog->run());
}

TEST_F(Dialog_Container_Test, the_wheel_steps_what_is_under_the_pointer) {
    make();
    Script script;
    script.wheel(1, middle_of(0, 3))
        .wheel(0.5F, more(0))
        .wheel(0.5F, more(0))
        .wheel(-1, middle_of(0, 2))
        .wheel(1, middle_of(1, 2));
    script.wheel(1, tick()).wheel(1, ok()).wheel(1).key(key::enter);
    EXPECT_TRUE(dialog->run());
    expect_values(25, 1, 0);

    // It stops where the arrows would go around.
    for (int i = 0; i < 50; ++i) {
        script.wheel(1, middle_of(0, 3)).wheel(-1, middle_of(1, 2));
    }
    script.key(key::enter);
    EXPECT_TRUE(dialog->run());
    expect_values(64, 0, 0);
}

TEST_F(Dialog_Container_Test, cancel_restores_numbers_and_choices_but_not_ticks) {
    make();
    Script script;
    change_all(script).check([&] { expect_values(25, 1, 1); }).press(cancel());
    EXPECT_FALSE(dialog->run());
    expect_values(24, 0, 1);
}

TEST_F(Dialog_Container_Test, escape_and_closing_the_window_leave_the_items_as_they_are) {
    make();
    Script script;
    change_all(script).key(key::escape);
    EXPECT_FALSE(dialog->run());
    expect_values(25, 1, 1);
    change_all(script).quit();
    EXPECT_FALSE(dialog->run());
    expect_values(26, 2, 0);
}

TEST_F(Dialog_Container_Test, keeps_its_items_in_the_data_file_once_accepted) {
    make("test.dlg");
    Script script;
    script.key(key::escape);
    dialog->run();
    EXPECT_TRUE(stored_text(folder().data_path("test.dlg")).empty());
    script.key(key::enter);
    EXPECT_TRUE(dialog->run());
    EXPECT_EQ(stored_text(folder().data_path("test.dlg")), record_bytes(record_as_built));
    change_all(script).press(ok());
    EXPECT_TRUE(dialog->run());
    make("test.dlg");
    expect_values(25, 1, 1);
}

TEST_F(Dialog_Container_Test, tells_when_the_data_file_cannot_be_written) {
    make("missing/test.dlg");
    Script script;
    script.key(key::enter);
    script.check_loop([](std::string_view loop) { EXPECT_EQ(loop, "dialog \"Note\""); }).key(key::escape);
    EXPECT_TRUE(dialog->run());
    EXPECT_TRUE(script.is_played());
}

TEST_F(Dialog_Container_Test, no_data_file_breaks_it) {
    const auto loads = [&](const std::string& text) {
        SCOPED_TRACE(text);
        store_text(folder().data_path("test.dlg"), record_bytes(text));
        make("test.dlg");
        EXPECT_EQ(std::clamp(dialog->value(number_id), 6, 64), dialog->value(number_id));
        EXPECT_EQ(std::clamp(dialog->value(choice_id), 0, 2), dialog->value(choice_id));
        Script script;
        script.click(more(0)).click(more(1)).press(ok());
        EXPECT_TRUE(dialog->run());
    };
    for (std::size_t length = 0; length < record_as_built.size(); ++length) {
        loads(record_as_built.substr(0, length));
    }
    for (std::size_t i = 0; i < record_as_built.size(); ++i) {
        for (const char byte : {'9', '-', ',', ':', '\0', 'x', '\xff'}) {
            std::string text = record_as_built;
            text[i] = byte;
            loads(text);
        }
    }
    loads("4,2,3,30,24,6,64,2,3,0,0,2,5,21,0,1"); // labels with the ids of other items
    EXPECT_EQ(dialog->value(tick_id), 1);
    loads("4" + std::string(100000, ','));
    loads(std::string(100000, '9'));
    // What a file leaves out keeps what was built.
    loads("1,2,3,10,50,6,64");
    store_text(folder().data_path("test.dlg"), record_bytes("1,2,3,10,50,6,64"));
    make("test.dlg");
    expect_values(50, 0, 0);
}

} // namespace quadrelle::testing
