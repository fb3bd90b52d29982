// The running sum.
#include "calc/running_sum.h"

#include "base/number.h"

namespace calc {

base::Currency sumOfEntries(const base::ItemList& entries) {
  base::Currency sum;
  for (const std::string& entry : entries) sum += base::Currency::fromDouble(base::leadingNumber(entry));
  return sum;
}

void showSum(frame::MainWindow& window, const base::NumberFormat& format) {
  window.lblRCalc.text = base::euroText(sumOfEntries(window.cboCalc.items), format);
  window.lblRCalc.toolTip = "Gesamtsumme des Rechners: " + window.lblRCalc.text;
}

void addByHand(frame::MainWindow& window, const base::NumberFormat& format) {
  const double amount = base::typedAmount(window.txtAddPerHand.text);
  base::Currency::fromDouble(amount);  // what no sum could hold fails here, before it stands in the list
  const std::string entry = entryText(amount);
  if (base::leadingNumber(entry) != 0) {
    window.cboCalc.items.add(entry);
    window.txtAddPerHand.text.clear();
    window.txtAddPerHand.wantsFocus = true;
  }
  showSum(window, format);
}

}  // namespace calc
