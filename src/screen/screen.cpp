#include "screen/screen.h"

#include "base/fatal.h"
#include "base/version.h"
#include "color/standard_colors.h"
#include "screen/float_rectangle.h"
#include "screen/opaque_texture.h"
#include "screen/renderer.h"
#include "screen/sprite_sheet.h"
#include "screen/surface.h"

#include <SDL3/SDL.h>

#include <algorithm>

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

constexpr Size frame_block_size{256, 256};

// The software renderer and plain shared-memory presents draw a frame fastest where there is no GPU. The
// environment has the last word.
void prefer_fast_presents() {
    SDL_SetHintWithPriority(SDL_HINT_RENDER_DRIVER, "software", SDL_HINT_DEFAULT);
    SDL_SetHintWithPriority(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0", SDL_HINT_DEFAULT);
    // The library's SSE fill stores past the cache, and whatever is drawn over such an area waits for memory:
    // without it a frame takes two thirds of the time.
    SDL_SetHintWithPriority(SDL_HINT_CPU_FEATURE_MASK, "-sse", SDL_HINT_DEFAULT);
}

} // namespace

void Screen::Window_Deleter::operator()(SDL_Window* window) const {
    SDL_DestroyWindow(window);
}

void Screen::Renderer_Deleter::operator()(SDL_Renderer* renderer) const {
    set_active_renderer(nullptr);
    SDL_DestroyRenderer(renderer);
}

Screen::Screen(Size size) : size_(size) {
    prefer_fast_presents();
    open_window();
    make_frame_block();
    sprites_ = std::make_unique<Sprite_Sheet>(renderer_.get());
    show_cursor(true);
}

Screen::~Screen() = default;

void Screen::open_window() {
    SDL_Window* window = nullptr;
    SDL_Renderer* renderer = nullptr;
    if (!SDL_CreateWindowAndRenderer(product_name, size_.width, size_.height, 0, &window, &renderer)) {
        fatal("Unable to create window or renderer.");
    }
    window_.reset(window);
    renderer_.reset(renderer);
    set_active_renderer(renderer);
    SDL_SetRenderDrawBlendMode(renderer, SDL_BLENDMODE_BLEND);
}

void Screen::make_frame_block() {
    frame_block_ = std::make_unique<Opaque_Texture>(frame_block_size, renderer_.get());
    frame_block_->update([](const Pixel_Rows& rows) {
        for (int y = 0; y < rows.size.height; ++y) {
            std::fill_n(rows.row(y), rows.size.width, standard_color(Standard_Color::frame));
        }
    });
}

// Copying blocks is faster than filling, as long as the renderer works in memory.
void Screen::clear() {
    for (int y = 0; y < size_.height; y += frame_block_size.height) {
        for (int x = 0; x < size_.width; x += frame_block_size.width) {
            frame_block_->draw_at({x, y});
        }
    }
}

void Screen::present() {
    SDL_RenderPresent(renderer_.get());
}

// An opaque colour needs no blending, which the software renderer does pixel by pixel.
void Screen::set_draw_color(Color color) {
    SDL_SetRenderDrawBlendMode(renderer_.get(), color.a == 255 ? SDL_BLENDMODE_NONE : SDL_BLENDMODE_BLEND);
    SDL_SetRenderDrawColor(renderer_.get(), color.r, color.g, color.b, color.a);
}

void Screen::fill_rect(const Rectangle& area, Color color) {
    const SDL_FRect rect = float_rectangle(area);
    set_draw_color(color);
    SDL_RenderFillRect(renderer_.get(), &rect);
}

void Screen::draw_line(Point from, Point to, Color color) {
    set_draw_color(color);
    SDL_RenderLine(renderer_.get(), static_cast<float>(from.x), static_cast<float>(from.y),
                   static_cast<float>(to.x), static_cast<float>(to.y));
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
    sprites_->draw_sprite(sprite, destination);
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
        sprites_->draw_text(font, line, position);
        position.x += sprites_->text_width(font, line);
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
    return std::make_unique<Texture>(surface, renderer_.get());
}

std::unique_ptr<Texture> Screen::make_header(std::string_view title, Header_Style style) const {
    const int width = sprites_->text_width(Font::pane_header, title);
    return style == Header_Style::active ? sprites_->make_pane_header(width, title)
                                         : sprites_->make_passive_pane_header(width, title);
}

void Screen::set_title(std::string_view text) {
    std::string title(product_name);
    title.append(" ").append(product_version).append(" - ").append(text);
    SDL_SetWindowTitle(window_.get(), title.c_str());
}

void Screen::set_relative_mouse_mode(bool on) {
    SDL_SetWindowRelativeMouseMode(window_.get(), on);
}

void Screen::show_cursor(bool visible) {
    if (visible) {
        SDL_ShowCursor();
    } else {
        SDL_HideCursor();
    }
}

void Screen::warp_mouse(Point position) {
    SDL_WarpMouseInWindow(window_.get(), static_cast<float>(position.x), static_cast<float>(position.y));
}

Pointer_State Screen::read_pointer() const {
    Pointer_State pointer;
    SDL_GetMouseState(&pointer.x, &pointer.y);
    return pointer;
}

std::string Screen::renderer_name() const {
    const char* name = SDL_GetRendererName(renderer_.get());
    return name == nullptr ? "" : name;
}

int Screen::text_rows() const {
    return size_.height / line_height(Font::regular);
}

} // namespace quadrelle
