// The planner in the program.
#pragma once

#include "base/wiring.h"
#include "commands/main_parts.h"

namespace commands {

planner::PlannerParts plannerParts(const MainParts& parts);

void wirePlannerCommands(base::Wiring& wiring, const MainParts& parts);

/// Looks after the appointments when the program has started, for whoever wants that.
void checkAppointments(const MainParts& parts);

}  // namespace commands
