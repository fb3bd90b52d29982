// What protects a lettering that is not saved: the recovery copy while the program runs, the question at its end, the
// offer at the next start.
#pragma once

#include "lifecycle/program.h"

namespace lifecycle {

/// Brings the recovery copy up to the text, beside the program, so that nobody waits; removes it when all is saved.
void keepRecoveryCopy(Program& program);

/// Brings the recovery copy up to the text for the start that follows: the desktop ends the program, and nobody is
/// asked.
void keepForNextStart(Program& program);

/// Whether the program may end as far as document and container are concerned: asks to save each where that is needed,
/// and removes the recovery copy unless nobody can be asked. Nothing is let go before both are answered for; a save
/// that fails or is left keeps the program open.
bool mayLeave(Program& program);

/// Offers what a program that did not end properly left behind.
void offerRecovered(Program& program);

}  // namespace lifecycle
