// The planner's procedures: entering appointments, taking them out, moving and removing them, opening and closing.
#pragma once

#include "base/wiring.h"
#include "planner/planner_window.h"

namespace planner {

void wirePlanner(base::Wiring& wiring, const PlannerParts& parts);

/// Shows the window beside the others; one that is open already comes to the front as it is.
void openPlanner(const PlannerParts& parts);

/// The lists that are loaded, be the window hidden or not, follow a file that was brought back, or are written to one
/// that is to be copied.
void refillLoaded(const PlannerParts& parts);
void saveLoaded(const PlannerParts& parts);

}  // namespace planner
