// Start-up: reads the settings, fills the main window's lists and prices what stands there.
#pragma once

#include "app/lifecycle/program.h"

namespace app::lifecycle {

/// Fills the list of typefaces and gives the empty document its format.
void loadTypefaces(const commands::MainParts& parts);

/// Fills both adjustment lists, loads the price database and selects the first cap height, which calculates.
void loadLists(const commands::MainParts& parts);

}  // namespace app::lifecycle
