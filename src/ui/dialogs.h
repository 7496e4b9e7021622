#pragma once

// The host of the plain text dialogs: what the program tells and asks.

#include <memory>
#include <string_view>

namespace quadrelle {

class Dialogs {
public:
    // Shows a text and waits until it is dismissed. It may have several lines, parted by "\r".
    void message(std::string_view title, std::string_view text) const;
    // Returns true only for an explicit yes: "Ok", Enter or y.
    [[nodiscard]] bool ask(std::string_view title, std::string_view question) const;
};

// Built at start-up after the screen, destroyed before it.
extern std::unique_ptr<Dialogs> dialogs;

} // namespace quadrelle
