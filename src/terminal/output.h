// The result labels as the terminal form prints them.
#pragma once

#include <string>

#include "frame/main_window.h"

namespace terminal {

/// An aligned German table, one line a result.
std::string table(const frame::MainWindow& window);

/// One JSON object: every result label under its name with its text and tool tip (null where it has none), and "rot":
/// whether the totals are drawn in red.
std::string json(const frame::MainWindow& window);

}  // namespace terminal
