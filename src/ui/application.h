// The program with its windows: the desktop application from its start to its end.
#pragma once

namespace ui {

/// Runs the windows and returns the exit code; a wrong argument is told on standard error and ends with 2.
int runApplication(int argc, char** argv);

}  // namespace ui
