#pragma once

// An element with a title bar and a framed client area below it.

#include "base/input.h"
#include "color/color.h"
#include "screen/texture.h"
#include "ui/element.h"
#include "ui/window_layout.h"

#include <memory>
#include <string_view>

namespace quadrelle {

class Pane : public Element {
public:
    // The height given is the one below the title bar. The screen must be there.
    Pane(const Rectangle& below_title, std::string_view title);
    ~Pane() override;

    [[nodiscard]] Rectangle client_area() const override { return client_; }
    void layout() override;
    void draw() const override;

    void set_title(std::string_view title);
    // Returns the title bar as far as it is drawn.
    [[nodiscard]] Rectangle title_area() const;
    // Draws the same picture as `draw` without the part that the caller covers: large fills are the greater
    // part of what a pane costs.
    void draw_around(const Rectangle& covered) const;
    // Draws the client area's outline.
    void draw_frame() const;
    // Fills the client area.
    void clear(Color color) const;
    [[nodiscard]] bool contains(int x, int y) const { return client_.contains({x, y}); }
    [[nodiscard]] bool contains(Point point) const { return client_.contains(point); }
    [[nodiscard]] bool contains(const Pointer_State& pointer) const { return contains(pointer.point()); }

private:
    void draw_title() const;

    std::unique_ptr<Texture> title_;
    Rectangle client_;
};

} // namespace quadrelle
