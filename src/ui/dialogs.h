#pragma once

// The host of the plain text dialogs: what the program tells and asks.

#include <cstdint>
#include <memory>
#include <string_view>

namespace quadrelle {

enum class Button_Type : std::int32_t;

class Dialogs {
public:
    // Shows a text and waits until it is dismissed. It may have several lines, parted by "\r".
    void message(std::string_view title, std::string_view text) const;
    // A "Note" on a file that could not be read or written: its path and the system's reason follow the text.
    void file_message(std::string_view text, std::string_view path) const;
    // Returns true only for an explicit yes: "Ok", or what it is called here, Enter or y.
    [[nodiscard]] bool ask(std::string_view title, std::string_view question) const;
    [[nodiscard]] bool ask(std::string_view title, std::string_view question, Button_Type yes) const;
};

// Built at start-up after the screen, destroyed before it.
extern std::unique_ptr<Dialogs> dialogs;

} // namespace quadrelle
