// The running sum: a list of amounts and their total, and the way of marked amounts back into the price.
//
// The entries are texts with a decimal point whatever the locale; the list is their only store, and the total is
// recomputed from the texts after every change. It holds 32,767 entries, since its index is a 16-bit number; one more
// is error 6.
#pragma once

#include <string>

#include "base/currency.h"
#include "base/money.h"
#include "base/platform.h"
#include "calc/calc.h"
#include "frame/main_window.h"

namespace calc {

/// The entry text of an amount: "12.50 EUR".
template <typename Amount>
std::string entryText(Amount amount) {
  return base::storedAmount(amount).append(base::kEuroSuffix);
}

/// The sum of the leading numbers of all entries, or of the marked ones; error 6 when it leaves the range.
base::Currency sumOfEntries(const base::ListBox& list);
base::Currency sumOfMarked(const base::ListBox& list);

/// Shows the sum of cboCalc in lblRCalc, in the user's locale.
void showSum(frame::MainWindow& window, const base::NumberFormat& format);
/// Lets the tool tip of lblRCalc say what the label shows.
void describeSum(frame::MainWindow& window);

/// Adds the amount typed in txtAddPerHand as a new entry and empties the box for the next one, unless it is 0;
/// then shows the sum.
void addByHand(frame::MainWindow& window, const base::NumberFormat& format);

/// Adds net total and surcharge balance as a new entry, marked beside those that are, unless the net total is 0; then
/// shows the sum. A step that fails is passed over.
void addEntry(const CalcParts& parts);
/// Unless the net total is 0, removes the current entry, if there is one, and runs the calculation; then shows the sum.
void removeEntry(const CalcParts& parts);
/// Empties the list, when there is something in it and the person agrees; then shows the sum.
void clearEntries(frame::MainWindow& window, base::Platform& platform);
/// One piece whose price includes the sum of the marked entries.
void addMarkedToPrice(const CalcParts& parts);
/// The price without the sums of the list. A step that fails is passed over.
void showOldPrice(const CalcParts& parts);

}  // namespace calc
