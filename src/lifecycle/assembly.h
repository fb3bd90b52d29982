// The one assembly: the program for the screen, the terminal form, tests and measurements alike.
#pragma once

#include <memory>

#include "lifecycle/program.h"

namespace lifecycle {

/// The one way to a program: there is none whose events are not wired yet. `platform` outlives it.
std::unique_ptr<Program> assemble(base::Platform& platform, const ProgramDirectory& directory);

}  // namespace lifecycle
