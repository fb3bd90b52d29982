// Ties every event of every window to its procedure.
#pragma once

#include "lifecycle/program.h"

namespace lifecycle {

/// Fills the program's wiring; `parts` and what they refer to outlive it.
void wire(Program& program, const commands::MainParts& parts);

}  // namespace lifecycle
