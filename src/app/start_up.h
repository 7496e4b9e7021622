#pragma once

// Builds the long-lived objects one after another, runs the editor, and destroys them in the right order.

namespace quadrelle {

// Runs from start-up to shut-down; fatal when the start fails. The current folder must hold "data".
void run_application();

// The two ends of it, for tests that drive the editor between them.
void start_application();
void shut_down_application();

} // namespace quadrelle
