// The main window's wiring: which event runs which procedure, and what follows the dialogs it opens.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireMainWindow(base::Wiring& wiring, const MainParts& parts);

/// Selects an entry as a person does: the order labels, the tool tip and the calculation follow.
void selectSurcharge(const MainParts& parts, int index);
void selectDiscount(const MainParts& parts, int index);

}  // namespace commands
