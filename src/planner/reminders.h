// What tells the person about appointments: those that are due, those that were missed, and the sounds of both.
#pragma once

#include <string>

#include "base/wiring.h"
#include "planner/planner_window.h"

namespace planner {

bool Soundkarte_vorhanden(const base::Platform& platform);
/// Plays in the background; beeps when the file cannot be played.
void Sound_abspielen(base::Platform& platform, const std::string& path);
void Sound_stoppen(base::Platform& platform);

/// Announces each present appointment whose time has passed and moves all of them to the old ones. The file is not
/// written. Reports its own failure, so that what follows goes on.
void Alte_Einträge_löschen(const PlannerParts& parts);

/// The same for a program that has just started: reads the file, announces, writes, and lets the timer watch. The
/// window is not shown. Does nothing unless the person wants it.
void checkAtStart(const PlannerParts& parts);

/// Reads the file, announces what was missed, and brings file and lists up to date.
void readAndCheck(const PlannerParts& parts);

/// Whether the signal and the look at the start of the program are wanted, as the person's settings say.
void readSwitches(const PlannerParts& parts);

/// The timer watches over the appointments from now on.
void arm(PlannerWindow& window, const base::Platform& platform);

/// The main window tells whether there are appointments.
void showIndicator(const PlannerParts& parts);

void wireReminders(base::Wiring& wiring, const PlannerParts& parts);

}  // namespace planner
