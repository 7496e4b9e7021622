#pragma once

// Panes that hold rows of dialog items outside of any dialog.

#include "ui/dialog_rows.h"
#include "ui/pane.h"

#include <string_view>

namespace quadrelle {

class Dialog_Pane : public Pane {
public:
    Dialog_Pane(const Rectangle& below_title, std::string_view title) : Pane(below_title, title) {}

    void draw() const override;
    int place(int x, int y) override;

    // Lets the items answer; true when one of them did.
    bool click(Point point);
    // Returns the value of the pane's control, or -1 without one.
    [[nodiscard]] int value() const;
    // Gives the control one of its values; any other one changes nothing.
    void show(int value);
    [[nodiscard]] Dialog_Rows& rows() { return rows_; }

protected:
    static constexpr int control_id = 1;

private:
    Dialog_Rows rows_;
};

class Number_Pane : public Dialog_Pane {
public:
    Number_Pane(const Rectangle& below_title, std::string_view title, const Cyclic_Int& number);
};

class Option_Pane : public Dialog_Pane {
public:
    Option_Pane(const Rectangle& below_title, std::string_view title, std::string_view choices, int index);
};

class Tick_Pane : public Dialog_Pane {
public:
    // The tick is off at first. The text must outlive the pane.
    Tick_Pane(const Rectangle& below_title, std::string_view title, std::string_view text);
};

} // namespace quadrelle
