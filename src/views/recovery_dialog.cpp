#include "views/recovery_dialog.h"

#include "base/file_names.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "tileset/document.h"
#include "ui/checkerboard.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"
#include "ui/shown_text.h"
#include "ui/shown_tile.h"
#include "ui/text_button.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace quadrelle {

namespace {

constexpr std::size_t most_rows = 5;
constexpr std::size_t most_tiles = 4;
constexpr int width = 620;
constexpr int line = 24;
constexpr int picture_edge = 48;
constexpr int picture_step = picture_edge + 5;
constexpr int row_height = picture_edge + 10;
constexpr int button_width = 120;
constexpr int gap = 2 * dialog_margin;

using Documents_To_Recover = std::vector<std::unique_ptr<Tileset_Document>>;

std::string size_text(const Tileset& tileset) {
    const Size size = tileset.tile_size();
    return std::to_string(tileset.count()) + (tileset.count() == 1 ? " tile" : " tiles") + " of " +
           std::to_string(size.width) + " x " + std::to_string(size.height);
}

// As wide or high as there is room for, in the shape of the tile.
Rectangle picture_area(Size tile, const Rectangle& room) {
    const int longest = std::max({tile.width, tile.height, 1});
    const Size size{std::max(tile.width * room.width / longest, 1),
                    std::max(tile.height * room.height / longest, 1)};
    return centred(size, room);
}

class Recovery_Dialog {
public:
    explicit Recovery_Dialog(const Documents_To_Recover& documents)
        : documents_(documents), rows_(std::min(documents.size(), most_rows)), pictures_(rows_ * most_tiles) {
        for (std::size_t row = 0; row < rows_; ++row) {
            text_indent_ = std::max(text_indent_, static_cast<int>(shown_tiles(row)) * picture_step + 5);
        }
        const int lines = documents.size() > most_rows ? 3 : 2;
        frame_.set_size(
            {width, lines * line + static_cast<int>(rows_) * row_height + text_button_height + 3 * gap});
        const Rectangle& box = frame_.area();
        const int y = box.bottom() - gap - text_button_height;
        recover_ = Text_Button("Recover", {box.x + gap, y, button_width, text_button_height});
        discard_ =
            Text_Button("Discard", {box.right() - gap - button_width, y, button_width, text_button_height});
    }

    Recovery_Answer run() {
        run_dialog({"dialog \"Recover\"", [this] { draw(); },
                    [this](const Input_Event& event) { return handle(event); },
                    [this] { return answer(Recovery_Answer::recover); }});
        return answer_;
    }

private:
    void draw();
    void draw_row(std::size_t row, Point position);
    void draw_line(Point position, const std::string& text) const;
    // How many of its tiles are shown.
    [[nodiscard]] std::size_t shown_tiles(std::size_t row) const {
        const auto count = static_cast<std::size_t>(documents_[row]->tileset().count());
        return documents_[row]->tileset().tile_bytes() > 0 ? std::min(count, most_tiles) : 0;
    }

    Loop_Step handle(const Input_Event& event) {
        if (event.kind != Input_Kind::button_press || event.pointer.button == Mouse_Button::none) {
            return Loop_Step::go_on;
        }
        const Point point = event.pointer.point();
        return recover_.contains(point)   ? answer(Recovery_Answer::recover)
               : discard_.contains(point) ? answer(Recovery_Answer::discard)
                                          : Loop_Step::go_on;
    }

    Loop_Step answer(Recovery_Answer given) {
        answer_ = given;
        return Loop_Step::end;
    }

    const Documents_To_Recover& documents_;
    std::size_t rows_;
    std::vector<Shown_Tile> pictures_;
    int text_indent_ = 0;
    Dialog_Frame frame_{"Recover"};
    Text_Button recover_{"", {}};
    Text_Button discard_{"", {}};
    Recovery_Answer answer_ = Recovery_Answer::later;
};

void Recovery_Dialog::draw() {
    frame_.draw();
    Point position{frame_.area().x + gap, frame_.area().y + dialog_title_height + gap};
    draw_line(position, "Quadrelle was ended before this was saved.");
    draw_line({position.x, position.y + line},
              "It is here to the last stroke. Esc: ask again at the next start.");
    position.y += 2 * line + gap / 2;
    for (std::size_t row = 0; row < rows_; ++row) {
        draw_row(row, position);
        position.y += row_height;
    }
    if (documents_.size() > rows_) {
        draw_line(position, "and " + std::to_string(documents_.size() - rows_) + " more");
    }
    recover_.draw(Button_Look::by_default);
    discard_.draw(Button_Look::plain);
}

void Recovery_Dialog::draw_row(std::size_t row, Point position) {
    const Tileset_Document& document = *documents_[row];
    const Tileset& tileset = document.tileset();
    for (std::size_t i = 0; i < shown_tiles(row); ++i) {
        const Rectangle room{position.x + static_cast<int>(i) * picture_step, position.y, picture_edge,
                             picture_edge};
        const Rectangle area = picture_area(tileset.tile_size(), room);
        draw_checkerboard(area);
        pictures_[row * most_tiles + i].draw(tileset.tile_at(static_cast<int>(i)), area);
        screen->draw_outline(area.inset(-1), standard_color(Standard_Color::frame));
    }
    draw_line({position.x + text_indent_, position.y + 1}, file_part(document.file_name()));
    draw_line({position.x + text_indent_, position.y + 1 + line}, size_text(tileset));
}

void Recovery_Dialog::draw_line(Point position, const std::string& text) const {
    const int room = frame_.area().right() - gap - position.x;
    screen->draw_text(Font::regular, position, fitted_text(Font::regular, text, room, Left_Out::middle));
}

} // namespace

Recovery_Answer ask_recovery(const Documents_To_Recover& documents) {
    return Recovery_Dialog(documents).run();
}

} // namespace quadrelle
