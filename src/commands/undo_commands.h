// Undo and redo of the document.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireUndo(base::Wiring& wiring, const MainParts& parts);

}  // namespace commands
