#pragma once

// Waiting for a dialog of the system, which may never answer.

#include <functional>

namespace quadrelle {

enum class Wait_End {
    answered,
    given_up, // by Escape
    quit      // the program is to end; the request comes once more
};

// How long nobody is told that there is something to wait for, in milliseconds.
constexpr int usual_patience = 2000;

// Returns when `is_answered` is true, or the user has given it up, which he can do once he is told about it.
// A request to quit is kept until then.
[[nodiscard]] Wait_End wait_for_dialog(const std::function<bool()>& is_answered,
                                       int patience = usual_patience);

} // namespace quadrelle
