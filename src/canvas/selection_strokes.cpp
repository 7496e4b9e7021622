#include "canvas/selection_strokes.h"

#include "selection/free_rotation.h"
#include "selection/scroll.h"
#include "tools/flood_fill.h"
#include "tools/shapes.h"

#include <cstdlib>

namespace quadrelle {

namespace {

Selection_Change change_by(Mouse_Button button) {
    return button == Mouse_Button::right ? Selection_Change::remove : Selection_Change::add;
}

bool is_in_picture(const Floating_Paste& paste, Tile_Point pixel) {
    return !paste.picture->is_outside(pixel.x - paste.position.x, pixel.y - paste.position.y);
}

constexpr int shift_step = 15; // degrees

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
    const bool has_moved = segment.from != segment.to;
    if (has_moved && work.selection().contains(segment.from)) {
        work.lift_selection(target.tile());
    }
    // A selection over it is what the stroke is about.
    const bool is_about_paste = work.paste() && !work.has_selection();
    if (has_moved && is_about_paste && is_in_picture(*work.paste(), segment.from)) {
        const Tile_Point start = work.paste()->position;
        work.move_paste_to(
            {start.x + segment.to.x - segment.from.x, start.y + segment.to.y - segment.from.y});
    }
    return segment.no_findings();
}

void finish_moving(Drawing_Target& target, const Stroke_Segment& segment) {
    Work_Area& work = segment.work;
    const bool is_click = segment.from == segment.to;
    if (work.paste() && !work.has_selection()) {
        if (is_click && !is_in_picture(*work.paste(), segment.from)) {
            work.plot_paste(target, segment.tools.options.selection_mode);
        }
    } else if (is_click && !work.selection().contains(segment.from)) {
        work.deselect();
    }
}

Stroke_Findings rotate(Drawing_Target& target, const Stroke_Segment& segment) {
    Work_Area& work = segment.work;
    Stroke_Findings found = segment.no_findings();
    found.figures.degrees = 0;
    if (work.has_selection()) {
        if (segment.from == segment.to) {
            return found;
        }
        work.lift_selection(target.tile());
    }
    const Size size = work.paste() ? work.paste()->picture->size() : target.size();
    const Tile_Point corner = work.paste() ? work.paste()->position : Tile_Point{};
    int& degrees = found.figures.degrees;
    degrees = turn_between(segment.from, segment.to, {2 * corner.x + size.width, 2 * corner.y + size.height});
    if (segment.moment.is_shift_held) {
        degrees = (degrees + shift_step / 2) / shift_step * shift_step % 360;
    }
    if (work.paste()) {
        work.change_paste(turned(*work.paste(), degrees));
    } else {
        turned(target.tile(), degrees, size).copy_to(target.tile());
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
