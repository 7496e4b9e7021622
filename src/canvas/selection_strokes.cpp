#include "canvas/selection_strokes.h"

#include "selection/free_rotation.h"
#include "selection/paste_shape.h"
#include "selection/scroll.h"
#include "tools/flood_fill.h"
#include "tools/shapes.h"

#include <algorithm>
#include <cstdlib>

namespace quadrelle {

namespace {

Selection_Change change_by(Mouse_Button button) {
    return button == Mouse_Button::right ? Selection_Change::remove : Selection_Change::add;
}

constexpr int shift_step = 15; // degrees

// By the drag of a segment, on from what was turned so far.
int turned_to(int degrees, const Stroke_Segment& segment, Tile_Position middle) {
    const Grip& grip = segment.grip;
    const int wanted = degrees + turn_between(grip.from, grip.to, middle);
    const bool is_stepped = segment.moment.is_shift_held && grip.from != grip.to;
    return normalized_degrees(is_stepped ? (wanted + shift_step / 2) / shift_step * shift_step : wanted);
}

Tile_Position middle_of(const Floating_Paste& paste) {
    return {paste.position.x + paste.picture->width() / 2.0,
            paste.position.y + paste.picture->height() / 2.0};
}

Stroke_Findings figures_of(const Floating_Paste& paste, const Stroke_Segment& segment) {
    Stroke_Findings found = segment.no_findings();
    found.figures.size = paste.picture->size();
    found.figures.degrees = shape_of(paste).degrees;
    return found;
}

void turn_paste(const Stroke_Segment& segment) {
    const Floating_Paste& paste = *segment.work.paste();
    const int degrees = shape_of(paste).degrees;
    const int wanted = turned_to(degrees, segment, middle_of(paste));
    if (wanted != degrees) {
        segment.work.change_paste(turned(paste, wanted));
    }
}

Corner opposite_to(Paste_Handle handle) {
    switch (handle) {
    case Paste_Handle::top_left: return Corner::bottom_right;
    case Paste_Handle::top_right: return Corner::bottom_left;
    case Paste_Handle::bottom_left: return Corner::top_right;
    default: return Corner::top_left;
    }
}

// With Shift by one factor both ways.
void scale_paste(const Stroke_Segment& segment) {
    const Floating_Paste& paste = *segment.work.paste();
    const Grip& grip = segment.grip;
    const Corner fixed = opposite_to(grip.handle);
    Factors factors = factors_for(paste, fixed, {grip.to.x - grip.from.x, grip.to.y - grip.from.y});
    if (segment.moment.is_shift_held) {
        factors = {std::max(factors.x, factors.y), std::max(factors.x, factors.y)};
    }
    segment.work.change_paste(scaled(paste, factors, fixed));
}

// Brushes paint the mask in its own colour.
constexpr Ink selecting_ink{Pixel_Operation::paint, Selection::selected_color, {}, {}, nullptr};

} // namespace

Stroke_Findings mark_rectangle(Drawing_Target& target, const Stroke_Segment& segment) {
    segment.work.set_candidate(selected_rectangle(target.size(), segment.from, segment.to));
    Stroke_Findings found = segment.no_findings();
    found.figures.size = {std::abs(segment.to.x - segment.from.x), std::abs(segment.to.y - segment.from.y)};
    return found;
}

Stroke_Findings mark_circle(Drawing_Target& target, const Stroke_Segment& segment) {
    const Radii radii = ellipse_radii(segment.from, segment.to);
    Selection area(target.size());
    if (segment.from != segment.to) {
        area.draw([&](Drawing_Target& mask) {
            draw_filled_ellipse(mask, segment.from, radii,
                                {Selection::selected_color, Selection::selected_color});
        });
    }
    segment.work.set_candidate(area);
    Stroke_Findings found = segment.no_findings();
    found.figures.radii = radii;
    return found;
}

Stroke_Findings mark_with_brush(Drawing_Target& target, const Stroke_Segment& segment) {
    Selection area = segment.work.candidate() ? *segment.work.candidate() : Selection(target.size());
    area.draw([&](Drawing_Target& mask) {
        draw_segment(mask, {segment.tools.brush(), Pen_Mode::brush, selecting_ink}, segment.from, segment.to,
                     segment.start);
    });
    segment.work.set_candidate(area);
    return segment.no_findings();
}

Stroke_Findings mark_with_wand(Drawing_Target& target, const Stroke_Segment& segment) {
    Selection area(target.size());
    area.draw([&](Drawing_Target& mask) {
        Flood_Area(target, segment.to, Flood_Bounds::whole_tile).for_each([&mask](Tile_Point pixel) {
            mask.plot(pixel, Selection::selected_color);
        });
    });
    segment.work.set_candidate(area);
    return segment.no_findings();
}

void finish_area(Drawing_Target& target, const Stroke_Segment& segment) {
    Work_Area& work = segment.work;
    const bool is_click = segment.from == segment.to;
    if (!is_click) {
        finish_marking(target, segment);
    } else if (segment.button == Mouse_Button::left && !work.selection().contains(segment.pointer)) {
        work.deselect();
    }
    work.drop_candidate();
}

void finish_marking(Drawing_Target& /*target*/, const Stroke_Segment& segment) {
    Work_Area& work = segment.work;
    if (work.candidate()) {
        work.select(*work.candidate(), change_by(segment.button));
    }
    work.drop_candidate();
}

Stroke_Findings move_paste(Drawing_Target& target, const Stroke_Segment& segment) {
    Work_Area& work = segment.work;
    if (segment.grip.handle != Paste_Handle::none) {
        segment.grip.handle == Paste_Handle::turn ? turn_paste(segment) : scale_paste(segment);
        return figures_of(*work.paste(), segment);
    }
    const bool has_moved = segment.from != segment.to;
    if (has_moved && work.selection().contains(segment.from)) {
        work.lift_selection(target.tile());
    }
    // A selection over it is what the stroke is about.
    const bool is_about_paste = work.paste() && !work.has_selection();
    if (has_moved && is_about_paste && work.paste()->contains(segment.from)) {
        const Tile_Point start = work.paste()->position;
        work.move_paste_to(
            {start.x + segment.to.x - segment.from.x, start.y + segment.to.y - segment.from.y});
    }
    return segment.no_findings();
}

Stroke_Findings move_copy(Drawing_Target& target, const Stroke_Segment& segment) {
    Work_Area& work = segment.work;
    if (segment.from == segment.to) {
        return segment.no_findings();
    }
    if (work.has_selection()) {
        work.copy_selection(target.tile());
    } else {
        work.plot_paste(target, Selection_Mode::persistent);
    }
    const Tile_Point start = work.paste()->position;
    work.move_paste_to({start.x + segment.to.x - segment.from.x, start.y + segment.to.y - segment.from.y});
    return segment.no_findings();
}

Stroke_Findings move_outline(Drawing_Target& /*target*/, const Stroke_Segment& segment) {
    segment.work.mutable_selection().change([&segment](Tile& mask) {
        const Tile before(mask);
        mask.fill(Selection::unselected_color);
        before.paste_into(mask, segment.to.x - segment.from.x, segment.to.y - segment.from.y);
    });
    return segment.no_findings();
}

void finish_moving(Drawing_Target& target, const Stroke_Segment& segment) {
    Work_Area& work = segment.work;
    const bool is_click = segment.from == segment.to;
    if (segment.grip.handle != Paste_Handle::none) {
        return;
    }
    if (work.paste() && !work.has_selection()) {
        if (is_click && !work.paste()->contains(segment.from)) {
            work.plot_paste(target, segment.tools.options.selection_mode);
        }
    } else if (is_click && !work.selection().contains(segment.from)) {
        work.deselect();
    }
}

Stroke_Findings rotate(Drawing_Target& target, const Stroke_Segment& segment) {
    Work_Area& work = segment.work;
    const bool has_moved = segment.from != segment.to;
    if (has_moved && work.has_selection()) {
        work.lift_selection(target.tile());
    }
    if (work.paste() && !work.has_selection()) {
        turn_paste(segment);
        return figures_of(*work.paste(), segment);
    }
    Stroke_Findings found = segment.no_findings();
    int& degrees = found.figures.degrees;
    degrees = 0;
    if (!work.has_selection()) {
        const int before = work.degrees_turned(target.tile());
        degrees = turned_to(before, segment, {target.size().width / 2.0, target.size().height / 2.0});
        if (degrees != before) {
            work.turn_tile(target.tile(), degrees);
        }
    }
    return found;
}

Stroke_Findings scroll(Drawing_Target& target, const Stroke_Segment& segment) {
    const Tile_Point offset{segment.to.x - segment.from.x, segment.to.y - segment.from.y};
    Work_Area& work = segment.work;
    const Scroll_Move move = segment.tools.options.scroll_move;
    if (move == Scroll_Move::pixels && work.has_selection()) {
        scroll_selected(target.tile(), work.selection(), offset);
    } else if (move != Scroll_Move::selection) {
        scroll_wrapped(target.tile(), offset);
    }
    if (move != Scroll_Move::pixels) {
        work.mutable_selection().change([offset](Tile& mask) { scroll_wrapped(mask, offset); });
    }
    Stroke_Findings found = segment.no_findings();
    found.figures.offset = offset;
    return found;
}

} // namespace quadrelle
