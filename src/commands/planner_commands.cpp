// The planner in the program.
#include "commands/planner_commands.h"

#include "planner/appointment_store.h"
#include "planner/planner.h"
#include "planner/reminders.h"

namespace commands {

planner::PlannerParts plannerParts(const MainParts& parts) {
  return {.window = parts.planner,
          .reminder = parts.reminder,
          .indicator = parts.window.imgTimer,
          .paths = parts.paths,
          .reminderSound = parts.settings.reminderSound,
          .platform = parts.platform,
          .reporter = parts.reporter};
}

void wirePlannerCommands(base::Wiring& wiring, const MainParts& parts) {
  planner::wirePlanner(wiring, plannerParts(parts));
  wiring.on(
      parts.window.mnuTerminPlaner, base::Event::click,
      reported(parts, "MAIN-mnuTerminPlaner_Click", [](const MainParts& p) { planner::openPlanner(plannerParts(p)); }));
}

void showRecoveredAppointments(const MainParts& parts, const std::string& recovered) {
  planner::storeLists(parts.paths.appointments(), recovered);
  planner::openPlanner(plannerParts(parts));
}

void checkAppointments(const MainParts& parts) { planner::checkAtStart(plannerParts(parts)); }

}  // namespace commands
