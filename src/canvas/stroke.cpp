#include "canvas/stroke.h"

#include <utility>

namespace quadrelle {

Stroke::Stroke(Canvas_View& canvas, const Stroke_Row& row, Pointer_State& pointer, Stroke_Tools tools)
    : canvas_(canvas), row_(row), tile_(*canvas.tile()), pointer_(pointer), tools_(std::move(tools)),
      button_(pointer.button), grip_{canvas.handle_at(pointer.point(), tools_.state),
                                     canvas.exact_position(pointer.point())},
      pressed_(point_of(pointer)), start_(pressed_), end_(pressed_), before_(tile_),
      before_work_(canvas.work_area().state()), colors_before_(tools_.state.colors),
      figures_before_(tools_.state.figures) {
    canvas_.set_hover(Hover{pointer.point(), button_});
}

void Stroke::press(const Stroke_Moment& moment) {
    if (row_.joins_strokes && moment.is_shift_held) {
        begin_at_last_end();
    }
    path_.push_back(pressed_);
    draw_when_due(moment);
}

// What lies there has its colour already; a press on the very pixel is there to paint it.
void Stroke::begin_at_last_end() {
    const std::optional<Tile_Point> end = canvas_.stroke_end(brush_reach(tools_.state, tools_.settings));
    if (end && *end != pressed_) {
        start_ = *end;
        next_ = Segment_Start::left_out;
    }
}

void Stroke::move_to(const Pointer_State& pointer, const Stroke_Moment& moment) {
    pointer_ = {pointer.x, pointer.y, button_};
    canvas_.set_hover(Hover{pointer_.point(), is_taken_back_ ? Mouse_Button::none : button_});
    end_ = point_of(pointer_);
    Stroke_Findings found{tools_.state.figures};
    found.figures.location = canvas_.tile_point(pointer_.point());
    tools_.take(found);
    if (!row_.draws_while_moving || is_taken_back_) {
        return;
    }
    if (row_.keeps_start) {
        draw_anew(moment);
    } else {
        extend_to(end_, moment);
    }
}

void Stroke::hold(const Stroke_Moment& moment) {
    if (row_.keeps_start && !is_taken_back_) {
        draw_anew(moment);
    }
}

void Stroke::draw_anew(const Stroke_Moment& moment) {
    restore();
    draw(end_, Segment_Start::included, moment);
}

void Stroke::restore() {
    tile_.copy_from(before_);
    canvas_.work_area().restore(before_work_);
}

bool Stroke::stay(const Stroke_Moment& moment) {
    return !is_taken_back_ && draw_when_due(moment);
}

void Stroke::take_back() {
    restore();
    path_.clear();
    for (const Mouse_Button side : {Mouse_Button::left, Mouse_Button::right}) {
        tools_.take({figures_before_, Picked_Color{side, colors_before_.of(side)}});
    }
    is_taken_back_ = true;
}

void Stroke::finish(const Stroke_Moment& moment) {
    if (is_taken_back_) {
        return;
    }
    if (!path_.empty()) {
        draw_path(moment);
    }
    if (row_.joins_strokes && !has_picked_) {
        canvas_.set_stroke_end(end_, brush_reach(tools_.state, tools_.settings));
    }
    if (row_.finish != nullptr) {
        Drawing_Target target = canvas_.work_area().target(tile_);
        row_.finish(target, segment(pressed_, end_, Segment_Start::included, moment));
    }
}

Stroke_Outcome Stroke::outcome() const {
    if (is_taken_back_) {
        return Stroke_Outcome::taken_back;
    }
    if (has_picked_) {
        return Stroke_Outcome::color_picked;
    }
    const bool is_same = tile_.same_pixels(before_) && canvas_.work_area() == before_work_;
    return is_same ? Stroke_Outcome::nothing_changed : Stroke_Outcome::something_changed;
}

void Stroke::extend_to(Tile_Point point, const Stroke_Moment& moment) {
    if (point != path_end()) {
        path_.push_back(point);
    }
    draw_when_due(moment);
}

bool Stroke::draw_when_due(const Stroke_Moment& moment) {
    if (row_.is_due != nullptr && !row_.is_due(tools_.state, button_, moment.time)) {
        return false;
    }
    // A tool that goes on acts again where it stands.
    if (path_.empty() && row_.is_due != nullptr) {
        draw(start_, Segment_Start::included, moment);
    }
    draw_path(moment);
    return true;
}

void Stroke::draw_path(const Stroke_Moment& moment) {
    for (const Tile_Point point : path_) {
        draw(point, next_, moment);
        start_ = point;
        next_ = Segment_Start::left_out;
    }
    path_.clear();
}

void Stroke::draw(Tile_Point to, Segment_Start start, const Stroke_Moment& moment) {
    Drawing_Target target = canvas_.work_area().target(tile_);
    const Stroke_Findings found = row_.draw_segment(target, segment(start_, to, start, moment));
    has_picked_ = has_picked_ || found.picked.has_value();
    tools_.take(found);
}

Tile_Point Stroke::point_of(const Pointer_State& pointer) const {
    switch (row_.points) {
    case Stroke_Points::corners: return canvas_.corner_point(pointer.point());
    case Stroke_Points::cells: return canvas_.cell_at(pointer.point());
    case Stroke_Points::pixels: break;
    }
    return canvas_.tool_point(pointer.point(), tools_.state, tools_.settings);
}

Stroke_Segment Stroke::segment(Tile_Point from, Tile_Point to, Segment_Start start,
                               const Stroke_Moment& moment) {
    const Drag drag = shaped({from, to}, row_.shape, moment);
    return {tools_.state,
            canvas_.work_area(),
            canvas_.history(),
            row_.action,
            button_,
            drag.from,
            drag.to,
            start,
            canvas_.tile_point(pointer_.point()),
            moment,
            {grip_.handle, grip_.from, canvas_.exact_position(pointer_.point())}};
}

} // namespace quadrelle
