#include "ui/dialog_rows.h"

#include "base/data_stream.h"

#include <algorithm>

namespace quadrelle {

Dialog_Row& Dialog_Rows::add_row(Dialog_Row row) {
    return rows_.emplace_back(std::move(row));
}

void Dialog_Rows::stack(Point position, Extent extent) {
    const std::size_t count = rows_.size() - (extent == Extent::all_but_last && !rows_.empty() ? 1 : 0);
    for (std::size_t i = 0; i < count; ++i) {
        rows_[i].place(position);
        position.y += rows_[i].area.height;
    }
}

void Dialog_Rows::draw() const {
    for (const Dialog_Row& row : rows_) {
        row.draw();
    }
}

Dialog_Event Dialog_Rows::item_at(Point point) {
    const auto row = std::ranges::find_if(rows_, [&](const Dialog_Row& r) { return r.area.contains(point); });
    if (row == rows_.end()) {
        return {};
    }
    const Dialog_Event answer = row->click(point);
    if (row_of(answer.kind).redraws) {
        row->measure();
    }
    return answer;
}

void Dialog_Rows::step_at(Point point, Dialog_Event_Kind kind) {
    for (const Dialog_Row& row : rows_) {
        for (const auto& item : row.items()) {
            const int id = item->host == no_id ? item->id : item->host;
            const Dialog_Item* const stepped = item->area.contains(point) ? row.item(id) : nullptr;
            if (stepped != nullptr && stepped->has_step(kind)) {
                notify({kind, id});
                return;
            }
        }
    }
}

const Dialog_Item* Dialog_Rows::item_under(Point point) const {
    for (const Dialog_Row& row : rows_) {
        for (const auto& item : row.items()) {
            if (item->area.contains(point)) {
                return item.get();
            }
        }
    }
    return nullptr;
}

Dialog_Item* Dialog_Rows::item(int id) const {
    for (const Dialog_Row& row : rows_) {
        if (Dialog_Item* const found = row.item(id)) {
            return found;
        }
    }
    return nullptr;
}

void Dialog_Rows::notify(const Dialog_Event& event) {
    if (event.target == no_target) {
        return;
    }
    for (Dialog_Row& row : rows_) {
        if (Dialog_Item* const target = row.item(event.target)) {
            target->notify(event.kind);
            row.measure();
            return;
        }
    }
}

void Dialog_Rows::begin() {
    for (const Dialog_Row& row : rows_) {
        for (const auto& item : row.items()) {
            item->begin();
        }
    }
}

void Dialog_Rows::revert() {
    for (const Dialog_Row& row : rows_) {
        for (const auto& item : row.items()) {
            item->revert();
        }
    }
}

void Dialog_Rows::save(Data_Stream& stream) const {
    stream.write_int(static_cast<std::int32_t>(rows_.size()));
    for (const Dialog_Row& row : rows_) {
        for (const auto& item : row.items()) {
            item->save(stream);
        }
    }
}

void Dialog_Rows::load(Data_Stream& stream) {
    const int announced = std::clamp(stream.read_int(), 0, static_cast<int>(rows_.size()));
    for (int i = 0; i < announced; ++i) {
        for (const auto& item : rows_[static_cast<std::size_t>(i)].items()) {
            if (stream.is_at_end()) {
                return;
            }
            item->load(stream);
        }
    }
}

} // namespace quadrelle
