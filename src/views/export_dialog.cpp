#include "views/export_dialog.h"

#include "color/standard_colors.h"
#include "color/translucency.h"
#include "screen/screen.h"
#include "tileset/bitmap_export.h"
#include "ui/modal_dialog.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr Size dialog_size{522, 583};
constexpr int view_margin = (dialog_size.width - Export_Dialog::view_size.width) / 2;
constexpr Font caption_font = Font::pane;
constexpr std::string_view png_label = "As .png...";
constexpr int png_width = 110;
constexpr int button_gap = 7;
constexpr int scroll_step = 32;
constexpr int mark_length = 7;
constexpr int mark_inset = 5;

std::string caption_of(const Tile& picture, int tile_count) {
    std::string text = std::to_string(picture.width()) + " x " + std::to_string(picture.height()) + " pixels";
    if (tile_count > exported_tiles) {
        text += "\rOnly the first " + std::to_string(exported_tiles) + " of " + std::to_string(tile_count) +
                " tiles";
    }
    return text;
}

// A triangle with its tip at `tip` that points along (dx, dy), dark around and lit inside.
void draw_arrow(Point tip, Point direction) {
    const auto draw_triangle = [&](int first, int last, int wider, Color color) {
        for (int i = first; i <= last; ++i) {
            const int half = i + wider;
            const Point middle{tip.x - direction.x * i, tip.y - direction.y * i};
            const Point side{direction.y * half, direction.x * half};
            screen->draw_line({middle.x - side.x, middle.y - side.y}, {middle.x + side.x, middle.y + side.y},
                              color);
        }
    };
    draw_triangle(-2, mark_length + 1, 2, standard_color(Standard_Color::black));
    draw_triangle(0, mark_length, 0, standard_color(Standard_Color::highlight));
}

// A touch pad reports parts of a step, and steps to the side.
Point wheel_step(const Movement& moved) {
    const auto pixels = [](float steps) {
        return static_cast<int>(std::clamp(steps, -100.0F, 100.0F) * scroll_step);
    };
    return {pixels(moved.x), -pixels(moved.y)};
}

} // namespace

Export_Dialog::Export_Dialog(const Tile& picture, int tile_count)
    : picture_(picture), caption_(caption_of(picture, tile_count)), frame_("Export as .bmp"),
      ok_({}, Button_Type::ok), cancel_({}, Button_Type::cancel),
      png_(png_label, {}), seen_{std::min(picture.width(), view_size.width),
                                 std::min(picture.height(), view_size.height)},
      view_(seen_) {
    frame_.set_size({dialog_size.width, dialog_size.height - dialog_title_height});
    const Rectangle& box = frame_.area();
    view_area_ = {box.x + view_margin, box.y + dialog_title_height + view_margin, view_size.width,
                  view_size.height};
    const int button_y = box.bottom() - ok_.area.height - dialog_margin;
    ok_.set_position({box.x + dialog_margin, button_y});
    cancel_.set_position({box.right() - cancel_.area.width - dialog_margin, button_y});
    png_ = Text_Button(png_label, {ok_.area.right() + button_gap, button_y, png_width, text_button_height});
    compose_view();
}

Export_Way Export_Dialog::run() {
    run_dialog({"dialog \"Export as .bmp\"", [this] { draw(); },
                [this](const Input_Event& event) { return handle(event); }, [this] { return accept(); }});
    return way_;
}

Loop_Step Export_Dialog::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::key_press: handle_key(event.chord.key); break;
    case Input_Kind::button_press: return press(event.pointer);
    case Input_Kind::button_release: dragged_from_.reset(); break;
    case Input_Kind::pointer_motion: drag_to(event.pointer.point()); break;
    case Input_Kind::wheel: scroll_by(wheel_step(event.moved)); break;
    default: break;
    }
    return Loop_Step::go_on;
}

Loop_Step Export_Dialog::accept() {
    way_ = Export_Way::bitmap;
    return Loop_Step::end;
}

void Export_Dialog::handle_key(Keycode pressed) {
    switch (pressed) {
    case key::left: scroll_by({-scroll_step, 0}); break;
    case key::right: scroll_by({scroll_step, 0}); break;
    case key::up: scroll_by({0, -scroll_step}); break;
    case key::down: scroll_by({0, scroll_step}); break;
    default: break;
    }
}

Loop_Step Export_Dialog::press(const Pointer_State& pointer) {
    if (pointer.button == Mouse_Button::none) {
        return Loop_Step::go_on;
    }
    way_ = ok_.area.contains(pointer.point()) ? Export_Way::bitmap
           : png_.contains(pointer.point())   ? Export_Way::png
                                              : Export_Way::none;
    if (way_ != Export_Way::none || cancel_.area.contains(pointer.point())) {
        return Loop_Step::end;
    }
    if (view_area_.contains(pointer.point())) {
        dragged_from_ = pointer.point();
    }
    return Loop_Step::go_on;
}

// The picture follows the pointer.
void Export_Dialog::drag_to(Point point) {
    if (dragged_from_) {
        scroll_by({dragged_from_->x - point.x, dragged_from_->y - point.y});
        dragged_from_ = point;
    }
}

void Export_Dialog::scroll_by(Point step) {
    const Point end{picture_.width() - seen_.width, picture_.height() - seen_.height};
    const Point offset{std::clamp(offset_.x + step.x, 0, end.x), std::clamp(offset_.y + step.y, 0, end.y)};
    if (offset != offset_) {
        offset_ = offset;
        compose_view();
    }
}

void Export_Dialog::compose_view() {
    view_.update([this](const Pixel_Rows& target) {
        for (int y = 0; y < seen_.height; ++y) {
            for (int x = 0; x < seen_.width; ++x) {
                const Color color = picture_.get_pixel(offset_.x + x, offset_.y + y);
                target.row(y)[x] = blended_over(color, checkerboard_color(x, y));
            }
        }
    });
}

void Export_Dialog::draw() const {
    frame_.draw();
    screen->fill_rect(view_area_, standard_color(Standard_Color::dark_frame));
    const Rectangle shown = centred(seen_, view_area_);
    view_.draw_at({shown.x, shown.y});
    draw_overflow_marks();
    ok_.draw();
    cancel_.draw();
    png_.draw(Button_Look::plain);
    const int left = png_.area().right();
    const Rectangle caption = centred(
        {screen->text_width(caption_font, caption_), screen->text_height(caption_font, caption_)},
        {left, view_area_.bottom(), cancel_.area.x - left, frame_.area().bottom() - view_area_.bottom()});
    screen->draw_text(caption_font, {caption.x, caption.y}, caption_);
}

void Export_Dialog::draw_overflow_marks() const {
    const Rectangle area = view_area_.inset(mark_inset);
    const Point middle{area.x + area.width / 2, area.y + area.height / 2};
    if (offset_.x > 0) {
        draw_arrow({area.x, middle.y}, {-1, 0});
    }
    if (offset_.y > 0) {
        draw_arrow({middle.x, area.y}, {0, -1});
    }
    if (offset_.x + seen_.width < picture_.width()) {
        draw_arrow({area.right(), middle.y}, {1, 0});
    }
    if (offset_.y + seen_.height < picture_.height()) {
        draw_arrow({middle.x, area.bottom()}, {0, 1});
    }
}

} // namespace quadrelle
