// Shut-down: what a session leaves behind is written back, always, whether or not anything changed.
#pragma once

#include "lifecycle/program.h"

namespace lifecycle {

/// The main window's unload handler. A store or file that cannot be written is one message each and does not keep the
/// others from being written, nor the program from ending.
void unload(Program& program);

}  // namespace lifecycle
