// The offer note into the text container, and what the main window does with that container.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireNote(base::Wiring& wiring, const MainParts& parts);

}  // namespace commands
