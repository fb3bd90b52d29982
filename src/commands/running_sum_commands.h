// The commands on the running sum, by their buttons, by the menu of its list and by hand.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireRunningSum(base::Wiring& wiring, const MainParts& parts);

}  // namespace commands
