#pragma once

// Hosts what dialogs are drawn over and the plain text dialogs.
// Knows the editor only as the backdrop that it was given.

#include "base/geometry.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace quadrelle {

// The answer of a number prompt that was given up.
constexpr int no_number = -1;

using Draw_Function = std::function<void()>;

class Dialogs {
public:
    Dialogs();
    ~Dialogs();
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;

    // Waits until it is dismissed. The text may have several lines, parted by "\r".
    void message(std::string_view title, std::string_view text);
    // True only for an explicit yes: "Ok", Return or y.
    [[nodiscard]] bool ask(std::string_view title, std::string_view question);
    // Lets the user type a number from `low` to `high` in a small box near `position`; `no_number` when given
    // up.
    [[nodiscard]] int ask_number(Point position, int value, int low, int high);
    // The same for bounds that may be negative; none when given up.
    [[nodiscard]] std::optional<int> ask_signed_number(Point position, int value, int low, int high);

    // Draws the whole editor without presenting it; none leaves an empty window.
    void set_backdrop(Draw_Function draw) { backdrop_ = std::move(draw); }
    // The editor and all open dialogs over it, without and with presenting.
    void draw_backdrop() const;
    void show_backdrop() const;

private:
    friend class Dialog_Layer;

    Draw_Function backdrop_;
    std::vector<Draw_Function> layers_;
};

// Built at start-up after the screen, destroyed before it.
extern std::unique_ptr<Dialogs> dialogs;

// While it lives, its picture is drawn over the editor and over the layers before it.
class Dialog_Layer {
public:
    explicit Dialog_Layer(Draw_Function draw);
    ~Dialog_Layer();
    Dialog_Layer(const Dialog_Layer&) = delete;
    Dialog_Layer& operator=(const Dialog_Layer&) = delete;
};

} // namespace quadrelle
