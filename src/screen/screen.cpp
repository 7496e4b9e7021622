#include "screen/screen.h"

#include "base/fatal.h"
#include "base/version.h"
#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/image.h"
#include "screen/raster.h"
#include "screen/sprite_sheet.h"
#include "screen/surface.h"

#include <SDL3/SDL.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace quadrelle {

std::unique_ptr<Screen> screen;

namespace {

constexpr char line_break = '\r';

// Calls `use` with every line of the text, from the top.
template <typename Use>
void for_each_line(std::string_view text, Use use) {
    for (;;) {
        const std::size_t end = text.find(line_break);
        use(text.substr(0, end));
        if (end == std::string_view::npos) {
            return;
        }
        text.remove_prefix(end + 1);
    }
}

} // namespace

Screen::Screen(Size size)
    : size_(size), window_(size), sprites_(std::make_unique<Sprite_Sheet>()), frame_(size), shown_(size),
      changes_(size) {
    set_active_frame(&frame_);
    forget_pointer();
    show_cursor(true);
}

Screen::~Screen() {
    set_active_frame(nullptr);
}

void Screen::clear() {
    frame_.clear();
    fill_rect(whole(), standard_color(Standard_Color::frame));
}

void Screen::present() {
    paint();
    window_.show(changes_.rectangles());
    changes_.clear();
}

void Screen::paint() {
    if (frame_.is_empty()) {
        return;
    }
    const Pixel_Rows pixels = window_.pixels();
    const bool is_lost = window_.take_loss();
    Region to_paint(size_);
    if (is_lost || (frame_.is_complete() && !shown_.is_complete())) {
        to_paint.add(whole());
    } else if (frame_.is_complete()) {
        frame_.add_changes_since(shown_, to_paint);
    } else {
        frame_.add_areas(to_paint);
    }
    for (const Rectangle& area : to_paint.rectangles()) {
        paint_part(pixels, area);
        changes_.add(area);
    }
    check_painted(pixels);
    frame_.release_images();
    std::swap(frame_, shown_);
    frame_.clear();
}

// From the last call on that hides all before it.
void Screen::paint_part(const Pixel_Rows& pixels, const Rectangle& area) const {
    const std::vector<Drawing_Call>& calls = frame_.calls();
    const auto hides_all = [&area](const Drawing_Call& call) {
        return call.is_opaque && call.area.encloses(area);
    };
    const auto last = std::find_if(calls.rbegin(), calls.rend(), hides_all);
    const Clipped_Target target{pixels, area};
    for (auto call = last == calls.rend() ? calls.begin() : last.base() - 1; call != calls.end(); ++call) {
        if (!intersection(call->area, area).is_empty()) {
            draw(*call, target);
        }
    }
}

void Screen::draw(const Drawing_Call& call, const Clipped_Target& target) const {
    switch (call.kind) {
    case Call_Kind::fill: fill(target, call.area, call.color); break;
    case Call_Kind::line:
        quadrelle::draw_line(target, {call.source.x, call.source.y},
                             {call.source.x + call.source.width, call.source.y + call.source.height},
                             call.color);
        break;
    case Call_Kind::image: quadrelle::draw_image(target, *call.image, call.source, call.area); break;
    case Call_Kind::text: sprites_->draw_text(call.font, frame_.text_of(call), call.area, target); break;
    }
}

#ifdef NDEBUG
void Screen::check_painted(const Pixel_Rows& /*painted*/) {}
#else
// Drawn from nothing the window would look the same.
void Screen::check_painted(const Pixel_Rows& painted) {
    if (!frame_.is_complete()) {
        return;
    }
    static const auto anew = make_image(size_, "No memory to check the window.");
    paint_part(anew->rows(), whole());
    for (int y = 0; y < size_.height; ++y) {
        const std::size_t bytes = static_cast<std::size_t>(size_.width) * sizeof(Color);
        if (std::memcmp(anew->row(y), painted.row(y), bytes) != 0) {
            fatal("The window is not what it would be if it were drawn from nothing");
        }
    }
}
#endif

void Screen::fill_rect(const Rectangle& area, Color color) {
    frame_.add_fill(area, color);
}

void Screen::draw_line(Point from, Point to, Color color) {
    frame_.add_line(from, to, color);
}

void Screen::draw_outline(const Rectangle& area, Color color) {
    fill_rect({area.x, area.y, area.width, 1}, color);
    fill_rect({area.x, area.bottom() - 1, area.width, 1}, color);
    fill_rect({area.x, area.y + 1, 1, area.height - 2}, color);
    fill_rect({area.right() - 1, area.y + 1, 1, area.height - 2}, color);
}

void Screen::draw_frame(const Rectangle& area, Color color) {
    Color light = color;
    light.darken(15);
    Color dark = color;
    dark.darken(40);
    fill_rect({area.x, area.y, area.width, 1}, light);
    fill_rect({area.x, area.y, 1, area.height}, light);
    fill_rect({area.x, area.bottom() - 1, area.width, 1}, dark);
    fill_rect({area.right() - 1, area.y, 1, area.height}, dark);
}

void Screen::draw_box(const Rectangle& area, Color color) {
    draw_frame(area, color);
    fill_rect(area.inset(1), color);
}

void Screen::draw_bevel(const Rectangle& area, Color color, Bevel bevel) {
    const double edge_step = color.luminance() * 255 * (bevel == Bevel::raised ? 1 : -1);
    const double corner_step = edge_step / 3;
    color.a = 255;
    Color near_edge = color;
    near_edge.brighten(edge_step);
    Color far_edge = color;
    far_edge.darken(edge_step);
    Color near_corner = near_edge;
    near_corner.brighten(corner_step);
    Color far_corner = far_edge;
    far_corner.darken(corner_step);

    const int last_x = area.right() - 1;
    const int last_y = area.bottom() - 1;
    fill_rect({area.x, area.y, 1, 1}, near_corner);
    fill_rect({last_x, area.y, 1, 1}, color);
    fill_rect({area.x, last_y, 1, 1}, color);
    fill_rect({last_x, last_y, 1, 1}, far_corner);
    fill_rect({area.x + 1, area.y, area.width - 2, 1}, near_edge);
    fill_rect({area.x, area.y + 1, 1, area.height - 2}, near_edge);
    fill_rect({area.x + 1, last_y, area.width - 2, 1}, far_edge);
    fill_rect({last_x, area.y + 1, 1, area.height - 2}, far_edge);
}

void Screen::draw_panel(const Rectangle& area, Color color) {
    fill_rect(area.inset(1), color);
    draw_bevel(area, color, Bevel::raised);
}

void Screen::draw_sprite(Sprite sprite, Point position) {
    const Rectangle source = sprite_rect(sprite);
    draw_sprite_sized(sprite, {position.x, position.y, source.width, source.height});
}

void Screen::draw_sprite_sized(Sprite sprite, const Rectangle& destination) {
    frame_.add_image(sprites_->image(), sprite_rect(sprite), destination);
}

void Screen::draw_texture(const Texture& texture, Point position) {
    texture.draw_at(position);
}

Point Screen::draw_text(Font font, Point position, std::string_view text) {
    const int left = position.x;
    position.y -= line_height(font);
    for_each_line(text, [&](std::string_view line) {
        position.x = left;
        position.y += line_height(font);
        const int width = sprites_->text_width(font, line);
        frame_.add_text(font, line, {position.x, position.y, width, line_height(font)});
        position.x += width;
    });
    return position;
}

int Screen::text_width(Font font, std::string_view text) const {
    int width = 0;
    for_each_line(text,
                  [&](std::string_view line) { width = std::max(width, sprites_->text_width(font, line)); });
    return width;
}

int Screen::text_height(Font font, std::string_view text) const {
    return line_height(font) * static_cast<int>(1 + std::ranges::count(text, line_break));
}

std::unique_ptr<Texture> Screen::make_text_texture(std::string_view text, Text_Style style) const {
    const Font font = style == Text_Style::normal ? Font::regular : Font::header;
    const int width = sprites_->text_width(font, text);
    if (width == 0) {
        return nullptr;
    }
    Surface surface(Size{width, line_height(font)});
    sprites_->draw_text(font, text, {0, 0}, surface);
    return std::make_unique<Texture>(surface);
}

std::unique_ptr<Texture> Screen::make_header(std::string_view title, Header_Style style) const {
    const int width = sprites_->text_width(Font::pane_header, title);
    return style == Header_Style::active ? sprites_->make_pane_header(width, title)
                                         : sprites_->make_passive_pane_header(width, title);
}

namespace {

// Window systems refuse anything else, but names of files may hold it.
std::string valid_utf8(const std::string& text) {
    std::string valid;
    const char* rest = text.c_str();
    std::size_t length = text.size();
    while (length > 0) {
        const Uint32 code = SDL_StepUTF8(&rest, &length);
        std::array<char, 5> character{};
        SDL_UCS4ToUTF8(code < ' ' ? ' ' : code, character.data());
        valid += character.data();
    }
    return valid;
}

} // namespace

void Screen::set_title(std::string_view text) {
    std::string title(product_name);
    title.append(" ").append(product_version).append(" - ").append(text);
    window_.set_title(valid_utf8(title));
}

void Screen::set_relative_mouse_mode(bool on) {
    window_.set_relative_mouse_mode(on);
}

void Screen::show_cursor(bool visible) {
    if (visible) {
        SDL_ShowCursor();
    } else {
        SDL_HideCursor();
    }
}

void Screen::warp_mouse(Point position) {
    window_.warp_mouse(position);
}

Pointer_State Screen::read_pointer() const {
    const Window_View::Position position = window_.pointer();
    return {position.x, position.y, Mouse_Button::none};
}

std::string Screen::renderer_name() const {
    return "software";
}

} // namespace quadrelle
