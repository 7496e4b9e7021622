#pragma once

// What a dialog item answers to a click: a kind, and the item that it is meant for.

#include "base/cyclic_int.h"
#include "base/table.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quadrelle {

enum class Dialog_Event_Kind : std::int32_t {
    unknown,
    accept,
    cancel,
    increase,
    decrease,
    self,
    radio,
    middle,
    left,
    right,
    count
};

struct Dialog_Event_Row {
    Dialog_Event_Kind id;
    std::string_view name;
    bool redraws; // what it does to an item shows
};

// clang-format off
constexpr std::array dialog_event_table = {
    Dialog_Event_Row{Dialog_Event_Kind::unknown,  "Unknown",  false},
    Dialog_Event_Row{Dialog_Event_Kind::accept,   "Accept",   false},
    Dialog_Event_Row{Dialog_Event_Kind::cancel,   "Cancel",   false},
    Dialog_Event_Row{Dialog_Event_Kind::increase, "Increase", true},
    Dialog_Event_Row{Dialog_Event_Kind::decrease, "Decrease", true},
    Dialog_Event_Row{Dialog_Event_Kind::self,     "Self",     true},
    Dialog_Event_Row{Dialog_Event_Kind::radio,    "Radio",    true},
    Dialog_Event_Row{Dialog_Event_Kind::middle,   "Middle",   true},
    Dialog_Event_Row{Dialog_Event_Kind::left,     "Left",     true},
    Dialog_Event_Row{Dialog_Event_Kind::right,    "Right",    true},
};
// clang-format on

static_assert(dialog_event_table.size() == static_cast<std::size_t>(Dialog_Event_Kind::count));
static_assert(rows_follow_their_ids(dialog_event_table));

[[nodiscard]] constexpr const Dialog_Event_Row& row_of(Dialog_Event_Kind kind) {
    return dialog_event_table.at(static_cast<std::size_t>(kind));
}

constexpr int no_target = -1;

struct Dialog_Event {
    Dialog_Event_Kind kind = Dialog_Event_Kind::unknown;
    int target = no_target; // an item's id

    bool operator==(const Dialog_Event&) const = default;

    [[nodiscard]] constexpr bool is_known() const { return kind != Dialog_Event_Kind::unknown; }
    [[nodiscard]] constexpr bool closes() const {
        return kind == Dialog_Event_Kind::accept || kind == Dialog_Event_Kind::cancel;
    }
};

// Whether that event moves the number without taking it around from one bound to the other.
[[nodiscard]] constexpr bool can_step(const Cyclic_Int& number, Dialog_Event_Kind kind) {
    return kind == Dialog_Event_Kind::increase ? number.value() < number.high()
                                               : number.value() > number.low();
}

// For whoever debugs a dialog: the event in words, and these shown in the window's corner.
[[nodiscard]] std::string trace_text(const Dialog_Event& event);
void draw_trace(const Dialog_Event& event);

} // namespace quadrelle
