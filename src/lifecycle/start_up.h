// Start-up: the load handler, which sees to the settings, and the one-shot loading behind the loading screen.
#pragma once

#include <string_view>

#include "lifecycle/prepare_settings.h"
#include "lifecycle/program.h"

namespace lifecycle {

inline constexpr std::string_view kTimerTag = "MAIN-tmrLoad";

inline constexpr int kLeastScreenWidth = 700;  // pixels, although the message speaks of 800x600

/// Checks the screen, makes sure that the settings exist, reads them and fills the fixed lists; then tmrLoad is
/// running. The program ends when the screen is too small or a settings file is refused. A failure is reported and the
/// program goes on with what it has.
StartUp load(Program& program);

/// What tmrLoad does once: typefaces, surcharges and discounts, price database, first cap height, main window. A
/// failure is reported; the loading screen goes and the timer stops all the same.
void loadBehindScreen(Program& program);

}  // namespace lifecycle
