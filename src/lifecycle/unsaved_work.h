// What protects work that is not saved, the lettering, the container's text, appointments and the rows of both price
// lists: a recovery copy of each while the program runs, the question at its end, the offer at the next start.
#pragma once

#include "lifecycle/program.h"

namespace lifecycle {

/// Brings the recovery copies up to the work, beside the program, so that nobody waits; removes those of which all
/// is saved.
void keepRecoveryCopies(Program& program);

/// Brings them up to the work for the start that follows: the desktop ends the program, and nobody is asked.
void keepForNextStart(Program& program);

/// Whether the program may end as far as document and container are concerned: asks to save each where that is needed,
/// and removes the recovery copies but those of which nobody can be asked. Nothing is let go before both are answered
/// for; a save that fails or is left keeps the program open.
bool mayLeave(Program& program);

/// Offers what a program that did not end properly left behind; a failure is reported, with where that lies now.
void offerRecovered(Program& program);

}  // namespace lifecycle
