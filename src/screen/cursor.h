#pragma once

// The system's cursor over the window.

namespace quadrelle {

enum class Cursor { hidden, shown };

void set_cursor(Cursor cursor);
[[nodiscard]] Cursor current_cursor();

// Hides the cursor while it lives; a cursor that was hidden before stays so afterwards.
class Hidden_Cursor {
public:
    Hidden_Cursor() : before_(current_cursor()) { set_cursor(Cursor::hidden); }
    ~Hidden_Cursor() { set_cursor(before_); }
    Hidden_Cursor(const Hidden_Cursor&) = delete;
    Hidden_Cursor& operator=(const Hidden_Cursor&) = delete;

private:
    Cursor before_;
};

} // namespace quadrelle
