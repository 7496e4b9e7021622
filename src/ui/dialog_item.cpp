#include "ui/dialog_item.h"

#include "base/data_stream.h"
#include "base/debug_monitor.h"

#include <string>

namespace quadrelle {

namespace {

std::string pair_text(int first, std::string_view separator, int second) {
    return std::to_string(first) + std::string(separator) + std::to_string(second);
}

} // namespace

Dialog_Event Dialog_Item::click(Point point) {
    trace("Base class event processed at " + pair_text(point.x, ", ", point.y) +
          " (id/host: " + pair_text(id, "/", host) + ".)");
    return {};
}

void Dialog_Item::notify(Dialog_Event_Kind kind) {
    trace("Base class received " + std::to_string(static_cast<int>(kind)) + " event.");
}

void Dialog_Item::set_position(Point position) {
    area.x = position.x;
    area.y = position.y;
}

void Dialog_Item::save(Data_Stream& stream) const {
    stream.write_int(id);
}

void Dialog_Item::load(Data_Stream& stream) {
    // Ids are how a dialog finds its items: a file cannot change them.
    static_cast<void>(stream.read_int());
}

void Dialog_Item::describe() const {
    trace("Dialog id " + pair_text(id, "/", host) + " at " + pair_text(area.x, ", ", area.y) +
          " (size: " + pair_text(area.width, ", ", area.height) + ").");
}

} // namespace quadrelle
