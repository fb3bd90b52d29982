// The running sum.
#include "calc/running_sum.h"

#include <algorithm>

#include "base/failure.h"
#include "base/number.h"
#include "errors/reporting.h"

namespace calc {
namespace {

using base::Currency;

constexpr int kMostEntries = 32'767;

Currency amountOf(const std::string& entry) { return Currency::fromDouble(base::leadingNumber(entry)); }

void append(base::ListBox& list, std::string entry) {
  if (list.items.size() >= kMostEntries) {
    throw base::Failure(base::ErrorNumber::overflow, "Überlauf: Der Rechner fasst höchstens 32.767 Beträge.");
  }
  list.items.add(std::move(entry));
}

void markLast(base::ListBox& list) {
  list.current = list.items.size() - 1;
  list.marked.push_back(list.current);
}

// The next entry becomes current, marked or not, or else the last one.
void removeCurrent(base::ListBox& list) {
  if (!list.items.holds(list.current)) return;
  list.items.removeAt(list.current);
  std::erase(list.marked, list.current);
  for (int& row : list.marked) {
    if (row > list.current) --row;
  }
  list.current = std::min(list.current, list.items.size() - 1);
}

bool agreesToClear(base::Platform& platform) {
  platform.beep();
  return platform.messageBox({.text = "Sind Sie sicher das Sie alle Werte aus dem Rechner entfernen möchten?",
                              .title = "Rechner löschen",
                              .buttons = base::MessageButtons::yesNo}) == base::MessageAnswer::yes;
}

}  // namespace

Currency sumOfEntries(const base::ListBox& list) {
  Currency sum;
  for (const std::string& entry : list.items) sum += amountOf(entry);
  return sum;
}

Currency sumOfMarked(const base::ListBox& list) {
  Currency sum;
  for (const int row : list.marked) sum += amountOf(list.items[row]);
  return sum;
}

void showSum(frame::MainWindow& window, const base::NumberFormat& format) {
  window.lblRCalc.text = base::euroText(sumOfEntries(window.cboCalc), format);
}

void describeSum(frame::MainWindow& window) {
  window.lblRCalc.toolTip = "Gesamtsumme des Rechners: " + window.lblRCalc.text;
}

void addByHand(frame::MainWindow& window, const base::NumberFormat& format) {
  const double amount = base::typedAmount(window.txtAddPerHand.text);
  Currency::fromDouble(amount);  // what no sum could hold fails here, before it stands in the list
  const std::string entry = entryText(amount);
  if (base::leadingNumber(entry) != 0) {
    append(window.cboCalc, entry);
    window.txtAddPerHand.text.clear();
    window.txtAddPerHand.wantsFocus = true;
  }
  showSum(window, format);
}

void addEntry(const CalcParts& parts) {
  using errors::skipping;
  base::ListBox& list = parts.window.cboCalc;
  Currency amount;
  std::string entry;
  skipping([&] { amount = parts.results.SurchargeBalance + parts.results.NetTotal; });
  skipping([&] { entry = entryText(amount); });
  skipping([&] {
    if (parts.results.NetTotal == Currency()) return;
    append(list, entry);
    markLast(list);
  });
  skipping([&] { showSum(parts.window, parts.format); });
}

void removeEntry(const CalcParts& parts) {
  if (parts.results.NetTotal != Currency()) {
    removeCurrent(parts.window.cboCalc);
    Calc(parts);
  }
  showSum(parts.window, parts.format);
}

void clearEntries(frame::MainWindow& window, base::Platform& platform) {
  if (!window.cboCalc.items.empty()) {
    if (!agreesToClear(platform)) return;
    window.cboCalc.clear();
  }
  showSum(window, platform.numberFormat());
}

void addMarkedToPrice(const CalcParts& parts) {
  parts.results.pieceAddition = {};
  parts.window.txtStück.text = "1";
  parts.results.pieceAddition = sumOfMarked(parts.window.cboCalc);
  Calc(parts);
}

void showOldPrice(const CalcParts& parts) {
  parts.results.pieceAddition = {};
  errors::skipping([&] { Calc(parts); });
}

}  // namespace calc
