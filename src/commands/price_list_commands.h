// The windows of price lists, what opens them from the main window and what follows them there.
#pragma once

#include <string>

#include "commands/main_parts.h"

namespace commands {

void wirePriceLists(base::Wiring& wiring, const MainParts& parts);

/// Open the window of a list with `recovered` rows in place of the stored ones; the editor is waited for.
void editRecoveredPrices(const MainParts& parts, const std::string& recovered);
void showRecoveredFoils(const MainParts& parts, const std::string& recovered);

/// Reads the price database again after it was edited; the selection is not restored.
void EditDatabase(const MainParts& parts);

/// The same and what follows it, also when the list was read in part: the height that was selected is so again if it is
/// there still, else the first, and the calculation runs. The reload reports its failure itself.
void readPricesAgain(const MainParts& parts);

/// Roll goods that are open read their list again, in place of what was not saved. A failure is reported.
void readFoilsAgain(const MainParts& parts);

/// Roll goods that are open are calculated again; to be called when the rates have changed.
void followRates(const MainParts& parts);

}  // namespace commands
