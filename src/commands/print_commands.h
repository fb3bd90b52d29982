// The main window's commands that print: the document, the offer, and what goes with both.
#pragma once

#include "base/wiring.h"
#include "commands/main_parts.h"

namespace commands {

void wirePrinting(base::Wiring& wiring, const MainParts& parts);

}  // namespace commands
