#pragma once

// One thing in a row of a dialog: it draws itself, answers clicks with events, and can be kept in a file.

#include "base/geometry.h"
#include "screen/font_table.h"
#include "ui/control.h"
#include "ui/dialog_event.h"

#include <cstdint>

namespace quadrelle {

class Data_Stream;

constexpr int no_id = -1;

struct Item_Id {
    std::int32_t id = no_id;
    std::int32_t host = no_id; // the item that this one acts on
};

class Dialog_Item {
public:
    explicit Dialog_Item(Item_Id ids, Font item_font = Font::regular)
        : id(ids.id), host(ids.host), font(item_font) {}
    Dialog_Item(const Dialog_Item&) = delete;
    Dialog_Item& operator=(const Dialog_Item&) = delete;
    virtual ~Dialog_Item() = default;

    [[nodiscard]] virtual int value() const { return -1; }
    // Takes the value; one that the item cannot have changes nothing.
    virtual void set_value(int /*value*/) {}
    // Whether it can be increased or decreased without wrapping around.
    [[nodiscard]] virtual bool has_step(Dialog_Event_Kind /*kind*/) const { return false; }
    // Whether the buttons that step it go on while they are held.
    [[nodiscard]] virtual bool is_stepped_on() const { return false; }
    // Takes on the size of what it shows, where that can change.
    virtual void measure() {}
    // The item compares the point with its own area. The base class logs that nobody answers.
    virtual Dialog_Event click(Point point);
    // What a click answers, where that is always the same, and whether the item would change by an event.
    [[nodiscard]] virtual Dialog_Event_Kind event() const { return Dialog_Event_Kind::unknown; }
    [[nodiscard]] virtual bool changes_by(Dialog_Event_Kind /*kind*/) const { return true; }
    virtual void notify(Dialog_Event_Kind kind);
    virtual void set_position(Point position);
    virtual void draw() const {}
    // A modal dialog calls these at its start, and at its end with Cancel.
    virtual void begin() { saved = 0; }
    virtual void revert() {}
    virtual void save(Data_Stream& stream) const;
    virtual void load(Data_Stream& stream);

    // Writes ids and area to the log.
    void describe() const;
    // Where a content of that width starts; deliberately 8 pixels left of the middle.

    Rectangle area;
    std::int32_t id;
    std::int32_t host;
    std::int32_t saved = 0;
    Usable usable = Usable::yes;
    Font font;
};

} // namespace quadrelle
