// The planner in the program.
#pragma once

#include <string>

#include "base/wiring.h"
#include "commands/main_parts.h"

namespace commands {

planner::PlannerParts plannerParts(const MainParts& parts);

void wirePlannerCommands(base::Wiring& wiring, const MainParts& parts);

/// Puts `recovered` appointments into the file in place of the stored ones and opens the planner.
void showRecoveredAppointments(const MainParts& parts, const std::string& recovered);

/// Looks after the appointments when the program has started, for whoever wants that.
void checkAppointments(const MainParts& parts);

}  // namespace commands
