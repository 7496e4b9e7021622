#pragma once

// The drawing calls of one frame, in their order, and what of the window differs from the frame before.

#include "base/geometry.h"
#include "color/color.h"
#include "screen/font_table.h"
#include "screen/region.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

struct Image;

enum class Call_Kind : std::uint8_t { fill, line, image, text };

struct Drawing_Call {
    Call_Kind kind = Call_Kind::fill;
    Font font = Font::regular; // of a text
    Color color = {};          // of a fill or a line
    Rectangle area = {};       // all that it may change, in window pixels
    Rectangle source = {};     // the part of an image; of a line its start, and the way to its end
    std::uint32_t text_start = 0;
    std::uint32_t text_length = 0;
    std::uint64_t image_id = 0;
    std::uint64_t image_version = 0;
    // Held until the frame is painted.
    std::shared_ptr<const Image> image = {};
    bool is_opaque = false; // nothing that was drawn before shows in its area
};

class Frame {
public:
    explicit Frame(Size window) : window_{0, 0, window.width, window.height} {}

    void clear();
    // Calls that change nothing are left out.
    void add_fill(const Rectangle& area, Color color);
    // Both ends belong to it.
    void add_line(Point from, Point to, Color color);
    // The part `source`, which must lie inside of the image, stretched over `destination` without smoothing.
    void add_image(std::shared_ptr<const Image> image, const Rectangle& source, const Rectangle& destination);
    // One line, as large as the area.
    void add_text(Font font, std::string_view text, const Rectangle& area);
    // Lets go of the images: what is left serves to compare with.
    void release_images();

    [[nodiscard]] bool is_empty() const { return calls_.empty(); }
    // It draws the whole window: nothing shows through its first call.
    [[nodiscard]] bool is_complete() const { return is_complete_; }
    [[nodiscard]] const std::vector<Drawing_Call>& calls() const { return calls_; }
    [[nodiscard]] std::string_view text_of(const Drawing_Call& call) const {
        return std::string_view(texts_).substr(call.text_start, call.text_length);
    }

    // Adds all that the calls may change.
    void add_areas(Region& areas) const;
    // Adds all that may look different when this frame is drawn in the place of the other one.
    void add_changes_since(const Frame& before, Region& changes) const;

private:
    // A place in this frame's list and one in that of the frame before.
    struct Places {
        std::size_t here = 0;
        std::size_t before = 0;
    };
    void add(Drawing_Call call);
    [[nodiscard]] Places next_meeting(Places from, const Frame& before) const;
    // Whether the two calls draw the same thing in the same place in the same way; of an image the pixels may
    // differ.
    [[nodiscard]] bool meets(std::size_t here, const Frame& before, std::size_t there) const;

    Rectangle window_;
    bool is_complete_ = false;
    std::vector<Drawing_Call> calls_;
    std::string texts_;
};

// The frame that textures are drawn into; null until the screen is built.
[[nodiscard]] Frame* active_frame();
void set_active_frame(Frame* frame);

} // namespace quadrelle
