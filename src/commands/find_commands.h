// Find, find again and replace in the document.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireFind(base::Wiring& wiring, const MainParts& parts);

}  // namespace commands
