#pragma once

// Text as people type it, through the keyboard layout and input methods, and the system's clipboard.

#include <string>

namespace quadrelle {

// While it lives, typed text comes as events; when it was so before, it stays so. The screen must be there.
class Text_Input {
public:
    Text_Input();
    ~Text_Input();
    Text_Input(const Text_Input&) = delete;
    Text_Input& operator=(const Text_Input&) = delete;

private:
    bool was_active_;
};

// UTF-8; empty when there is no text.
[[nodiscard]] std::string clipboard_text();
void set_clipboard_text(const std::string& text);

} // namespace quadrelle
