#include "views/cut_picture_item.h"

#include "color/standard_colors.h"
#include "color/translucency.h"
#include "screen/screen.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

constexpr Font caption_font = Font::pane;
constexpr int caption_height = 68;
constexpr int caption_gap = 4;
constexpr int most_times = 16;
constexpr int smallest_cell_with_edges = 4;

std::string counted(int count, const std::string& what) {
    return std::to_string(count) + " " + what;
}

std::string size_text(Size size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

// How much of the extent lies behind the last tile.
int left_over(int extent, int end_of_tiles, int margin) {
    return std::max(extent - end_of_tiles - margin, 0);
}

} // namespace

Cut_Picture_Item::Cut_Picture_Item(Item_Id ids, const Tile& picture, std::function<Picture_Cut()> cut)
    : Dialog_Item(ids), picture_(picture), cut_(std::move(cut)), zoom_(fitting_zoom()), view_(view_size) {
    area.width = view_size.width;
    area.height = view_size.height + caption_height;
    keep_inside();
}

Cut_Picture_Item::Zoom Cut_Picture_Item::fitting_zoom() const {
    constexpr int highest = 8;
    const auto [width, height] = picture_.size();
    const int times = std::min(view_size.width / width, view_size.height / height);
    if (times >= 1) {
        return {std::min(times, highest), 1};
    }
    const auto parts = [](int extent, int room) { return (extent + room - 1) / room; };
    return {1, std::max(parts(width, view_size.width), parts(height, view_size.height))};
}

const Cut_Plan& Cut_Picture_Item::plan() const {
    const Picture_Cut cut = cut_();
    if (!plan_ || cut != shown_) {
        shown_ = cut;
        plan_ = plan_cut(picture_, cut);
        is_composed_ = false;
    }
    return *plan_;
}

bool Cut_Picture_Item::has_step(Dialog_Event_Kind kind) const {
    return kind == Dialog_Event_Kind::increase ? zoom_.times < most_times
                                               : zoom_.part < fitting_zoom().part || zoom_.times > 1;
}

// The middle stays where it is.
void Cut_Picture_Item::notify(Dialog_Event_Kind kind) {
    const auto middle = [this](int offset, int length) { return offset + zoom_.to_picture(length) / 2; };
    const Point centre{middle(offset_.x, view_size.width), middle(offset_.y, view_size.height)};
    if (kind == Dialog_Event_Kind::increase) {
        zoom_ = zoom_.part > 1 ? Zoom{1, zoom_.part - 1} : Zoom{zoom_.times + 1, 1};
    } else {
        zoom_ = zoom_.times > 1 ? Zoom{zoom_.times - 1, 1} : Zoom{1, zoom_.part + 1};
    }
    offset_ = {centre.x - zoom_.to_picture(view_size.width) / 2,
               centre.y - zoom_.to_picture(view_size.height) / 2};
    keep_inside();
}

Dialog_Event Cut_Picture_Item::click(Point point) {
    const Rectangle view{area.x, area.y, view_size.width, view_size.height};
    if (view.contains(point)) {
        offset_.x += zoom_.to_picture(point.x - view.x - view.width / 2);
        offset_.y += zoom_.to_picture(point.y - view.y - view.height / 2);
        keep_inside();
    }
    return {};
}

// A picture that is smaller than the view stands in its middle.
void Cut_Picture_Item::keep_inside() {
    const auto kept = [this](int offset, int extent, int length) {
        const int room = extent - zoom_.to_picture(length);
        return room <= 0 ? room / 2 : std::clamp(offset, 0, room);
    };
    offset_ = {kept(offset_.x, picture_.width(), view_size.width),
               kept(offset_.y, picture_.height(), view_size.height)};
    is_composed_ = false;
}

std::vector<Cut_Picture_Item::Line> Cut_Picture_Item::lines(int length, int offset, int extent, int tile,
                                                            int cells) const {
    std::vector<Line> result(static_cast<std::size_t>(length));
    const int period = tile + shown_.grid.spacing;
    const bool has_edges = zoom_.to_window(tile) >= smallest_cell_with_edges;
    int last = -1;
    for (int i = 0; i < length; ++i) {
        Line& line = result[static_cast<std::size_t>(i)];
        const int source = offset + zoom_.to_picture(i);
        const int inside = source - shown_.grid.margin;
        line.source = source >= 0 && source < extent ? source : -1;
        const bool is_in_tile = inside >= 0 && inside % period < tile && inside / period < cells;
        line.cell = is_in_tile ? inside / period : -1;
        line.is_edge = has_edges && line.cell != std::exchange(last, line.cell);
    }
    return result;
}

Color Cut_Picture_Item::shown_color(const Line& across, const Line& down, Point place) const {
    if (across.source < 0 || down.source < 0) {
        return standard_color(Standard_Color::dark_frame);
    }
    Color color =
        blended_over(picture_.get_pixel(across.source, down.source), checkerboard_color(place.x, place.y));
    const bool is_in_tile = across.cell >= 0 && down.cell >= 0;
    const auto fate = [&] {
        const int cell = down.cell * plan_->cells.width + across.cell;
        return plan_->fates[static_cast<std::size_t>(cell)];
    };
    if (!is_in_tile || fate() != Cell_Fate::taken) {
        constexpr double left_of_it = 0.3;
        color.blend(standard_color(Standard_Color::dark_frame), left_of_it);
    }
    if ((across.is_edge && down.cell >= 0) || (down.is_edge && across.cell >= 0)) {
        color.blend(standard_color(Standard_Color::highlight), 0.4);
    }
    return color;
}

void Cut_Picture_Item::compose() const {
    const Picture_Grid& grid = shown_.grid;
    const std::vector<Line> columns =
        lines(view_size.width, offset_.x, picture_.width(), grid.tile.width, plan_->cells.width);
    const std::vector<Line> rows =
        lines(view_size.height, offset_.y, picture_.height(), grid.tile.height, plan_->cells.height);
    view_.update([&](const Pixel_Rows& target) {
        for (int y = 0; y < view_size.height; ++y) {
            for (int x = 0; x < view_size.width; ++x) {
                target.row(y)[x] = shown_color(columns[static_cast<std::size_t>(x)],
                                               rows[static_cast<std::size_t>(y)], {x, y});
            }
        }
    });
    is_composed_ = true;
}

std::string Cut_Picture_Item::caption() const {
    const Picture_Grid& grid = shown_.grid;
    const Point end = grid.corner(plan_->cells.width, plan_->cells.height);
    const int right = left_over(picture_.width(), end.x - grid.spacing, grid.margin);
    const int below = left_over(picture_.height(), end.y - grid.spacing, grid.margin);
    std::string text = size_text(picture_.size()) + " pixels, " + size_text(plan_->cells) + " tiles";
    if (right > 0 || below > 0) {
        text += "; left over: " + counted(right, "at the right, ") + counted(below, "below");
    }
    text += "\rThe new set gets " + counted(plan_->taken, plan_->taken == 1 ? "tile" : "tiles");
    if (plan_->empty > 0 || plan_->equal > 0) {
        text += "; skipped: " + counted(plan_->empty, "empty, ") + counted(plan_->equal, "equal");
    }
    if (plan_->beyond > 0) {
        text += "\rThat is all it can hold: the last " + counted(plan_->beyond, "are left out");
    }
    return text;
}

void Cut_Picture_Item::draw() const {
    static_cast<void>(plan());
    if (!is_composed_) {
        compose();
    }
    view_.draw_at({area.x, area.y});
    screen->draw_text(caption_font, {area.x, area.y + view_size.height + caption_gap}, caption());
}

} // namespace quadrelle
