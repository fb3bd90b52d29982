// Ties every event of every window to its procedure.
#pragma once

#include "app/lifecycle/program.h"

namespace app::lifecycle {

/// Fills the program's wiring; `parts` and what they refer to outlive it.
void wire(Program& program, const commands::MainParts& parts);

}  // namespace app::lifecycle
