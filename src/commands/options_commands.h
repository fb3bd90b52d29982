// The command that opens the options dialog, and what follows it in the main window.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireOptions(base::Wiring& wiring, const MainParts& parts);

}  // namespace commands
