// The commands on the lines of the document: sorting them, and removing the blank ones.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireSorting(base::Wiring& wiring, const MainParts& parts);

}  // namespace commands
