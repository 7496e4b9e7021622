#pragma once

// Tests with a window that nobody sees: the screen, the dialogs and the log are there, nothing else is. What
// a fixture holds itself is made after them and gone before.

#include "base/geometry.h"
#include "color/color.h"
#include "tests/support/files.h"
#include "tests/support/scripted_events.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quadrelle::testing {

// What is drawn at that point now.
[[nodiscard]] Color pixel_at(Point point);
// Whether a rectangle holds more than one colour.
[[nodiscard]] bool has_picture(const Rectangle& area);
// The program is to take no real window system, whatever the environment says.
void use_dummy_video();

class Window_Test : public ::testing::Test {
protected:
    Window_Test();
    ~Window_Test() override;

    [[nodiscard]] Program_Folder& folder() { return folder_; }

private:
    Program_Folder folder_;
};

} // namespace quadrelle::testing
