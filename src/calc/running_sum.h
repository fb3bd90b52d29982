// The running sum: a list of amounts and their total.
//
// The entries are texts with a decimal point whatever the locale; the list is their only store, and the total is
// recomputed from the texts after every change.
#pragma once

#include <string>

#include "base/currency.h"
#include "base/money.h"
#include "frame/main_window.h"

namespace calc {

/// The entry text of an amount: "12.50 EUR".
template <typename Amount>
std::string entryText(Amount amount) {
  return base::storedAmount(amount).append(base::kEuroSuffix);
}

/// The sum of the leading numbers of all entries; error 6 when it leaves the range.
base::Currency sumOfEntries(const base::ItemList& entries);

/// Shows the sum of cboCalc in lblRCalc, in the user's locale.
void showSum(frame::MainWindow& window, const base::NumberFormat& format);

/// Adds the amount typed in txtAddPerHand as a new entry and empties the box for the next one, unless it is 0;
/// then shows the sum.
void addByHand(frame::MainWindow& window, const base::NumberFormat& format);

}  // namespace calc
