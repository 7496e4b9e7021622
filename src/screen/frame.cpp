#include "screen/frame.h"

#include "screen/image.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace quadrelle {

namespace {

Frame* the_frame = nullptr;

// What of the window an image in its own size changed, when only its last change is new; all of it otherwise.
Rectangle changed_area(const Drawing_Call& call, const Drawing_Call& before) {
    const bool is_unstretched =
        call.source.width == call.area.width && call.source.height == call.area.height;
    if (!is_unstretched || call.image_version != before.image_version + 1) {
        return call.area;
    }
    const Rectangle& changed = call.image->changed;
    return intersection(call.area, {changed.x - call.source.x + call.area.x,
                                    changed.y - call.source.y + call.area.y, changed.width, changed.height});
}

} // namespace

Frame* active_frame() {
    return the_frame;
}

void set_active_frame(Frame* frame) {
    the_frame = frame;
}

void Frame::clear() {
    calls_.clear();
    texts_.clear();
    is_complete_ = false;
}

void Frame::add(Drawing_Call call) {
    if (call.area.is_empty()) {
        return;
    }
    if (calls_.empty()) {
        is_complete_ = call.is_opaque && call.area.encloses(window_);
    }
    calls_.push_back(std::move(call));
}

void Frame::add_fill(const Rectangle& area, Color color) {
    add({.kind = Call_Kind::fill, .color = color, .area = area, .is_opaque = color.a == 255});
}

void Frame::add_line(Point from, Point to, Color color) {
    const Point extent{to.x - from.x, to.y - from.y};
    add({.kind = Call_Kind::line,
         .color = color,
         .area = {std::min(from.x, to.x), std::min(from.y, to.y), std::abs(extent.x) + 1,
                  std::abs(extent.y) + 1},
         .source = {from.x, from.y, extent.x, extent.y}});
}

void Frame::add_image(std::shared_ptr<const Image> image, const Rectangle& source,
                      const Rectangle& destination) {
    if (source.is_empty()) {
        return;
    }
    Drawing_Call call{.kind = Call_Kind::image, .area = destination, .source = source};
    call.is_opaque = image->is_opaque;
    image->is_drawn = true;
    call.image_id = image->id;
    call.image_version = image->version;
    call.image = std::move(image);
    add(std::move(call));
}

void Frame::add_text(Font font, std::string_view text, const Rectangle& area) {
    Drawing_Call call{.kind = Call_Kind::text, .font = font, .area = area};
    call.text_start = static_cast<std::uint32_t>(texts_.size());
    call.text_length = static_cast<std::uint32_t>(text.size());
    texts_.append(text);
    add(std::move(call));
}

void Frame::add_areas(Region& areas) const {
    for (const Drawing_Call& call : calls_) {
        areas.add(call.area);
    }
}

void Frame::release_images() {
    for (Drawing_Call& call : calls_) {
        call.image.reset();
    }
}

bool Frame::meets(std::size_t here, const Frame& before, std::size_t there) const {
    if (here >= calls_.size() || there >= before.calls_.size()) {
        return false;
    }
    const Drawing_Call& call = calls_[here];
    const Drawing_Call& other = before.calls_[there];
    return call.kind == other.kind && call.area == other.area && call.source == other.source &&
           call.image_id == other.image_id && call.color == other.color && call.font == other.font &&
           (call.kind != Call_Kind::text || text_of(call) == before.text_of(other));
}

// As many calls further in both lists, or in one of them; else at their ends.
Frame::Places Frame::next_meeting(Places from, const Frame& before) const {
    const std::size_t furthest = std::max(calls_.size() - from.here, before.calls_.size() - from.before);
    for (std::size_t step = 1; step < furthest; ++step) {
        for (const Places places :
             {Places{from.here + step, from.before + step}, Places{from.here, from.before + step},
              Places{from.here + step, from.before}}) {
            if (meets(places.here, before, places.before)) {
                return places;
            }
        }
    }
    return {calls_.size(), before.calls_.size()};
}

// Walks both lists side by side. A pixel that no skipped call touches is drawn by the same calls in the same
// order.
void Frame::add_changes_since(const Frame& before, Region& changes) const {
    Places at;
    while (at.here < calls_.size() || at.before < before.calls_.size()) {
        if (meets(at.here, before, at.before)) {
            const Drawing_Call& call = calls_[at.here++];
            const Drawing_Call& other = before.calls_[at.before++];
            if (call.image_version != other.image_version) {
                changes.add(changed_area(call, other));
            }
            continue;
        }
        const Places next = next_meeting(at, before);
        for (; at.here < next.here; ++at.here) {
            changes.add(calls_[at.here].area);
        }
        for (; at.before < next.before; ++at.before) {
            changes.add(before.calls_[at.before].area);
        }
    }
}

} // namespace quadrelle
