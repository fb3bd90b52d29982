// The main window's commands that open the tools: the pocket calculator, backup and restore.
#pragma once

#include "base/wiring.h"
#include "commands/main_parts.h"

namespace commands {

void wireTools(base::Wiring& wiring, const MainParts& parts);

/// The calculator stays in front or not, as the setting says; to be called when that has changed.
void followCalculatorSetting(const MainParts& parts);

}  // namespace commands
