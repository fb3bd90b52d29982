// Surcharges and discounts.
#include "calc/adjustments.h"

#include <algorithm>
#include <string>

#include "base/money.h"
#include "base/number.h"
#include "calc/pricing.h"

namespace calc {
namespace {

void showOrder(frame::MainWindow& window, std::string_view surcharge, std::string_view discount) {
  window.lblcboChange1.text = surcharge;
  window.lblcboChange2.text = discount;
}

void describeChoice(base::ComboBox& box, const settings::AdjustmentList& surcharges) {
  const bool hasSlot = box.selected >= 1 && box.selected <= settings::AdjustmentList::kSlots;
  box.toolTip = box.text + " (" + (hasSlot ? surcharges.remark(box.selected) : std::string()) + ")";
}

// An emptied box reads "0.00" and is selected, so that the next key replaces it.
void fillEmptied(base::TextBox& box) {
  if (!box.text.empty()) return;
  box.text = "0.00";
  box.wantsSelectAll = true;
}

}  // namespace

std::optional<char32_t> quantityKey(char32_t key) {
  if (key >= U'0' && key <= U'9') return key;
  return std::nullopt;
}

std::optional<char32_t> amountKey(char32_t key) {
  if (key == U',' || key == U'.') return U'.';
  return quantityKey(key);
}

std::optional<char32_t> signedAmountKey(char32_t key) { return key == U'-' ? key : amountKey(key); }

void fillAdjustments(base::ComboBox& box, const settings::AdjustmentList& list) {
  box.clear();
  box.items.add(std::string(kNoAdjustment));
  for (int slot = 1; slot <= list.count; ++slot) box.items.add(list.amount(slot));
}

void refillAdjustments(frame::MainWindow& window, const settings::Adjustments& adjustments) {
  const auto refill = [&](base::ComboBox& box, const settings::AdjustmentList& list) {
    const int place = box.selected;
    const std::string entry = box.text;
    fillAdjustments(box, list);
    const auto& items = box.items;
    const bool isInPlace = items.holds(place) && items[place] == entry;
    const int found = static_cast<int>(std::find(items.begin(), items.end(), entry) - items.begin());
    box.select(isInPlace ? place : items.holds(found) ? found : 0);
    if (!box.toolTip.empty()) describeChoice(box, adjustments.surcharges);
  };
  refill(window.cboAufpreis, adjustments.surcharges);
  refill(window.cboRabatt, adjustments.discounts);
}

void surchargeChosen(frame::MainWindow& window, const settings::AdjustmentList& surcharges) {
  showOrder(window, "1", "2");
  describeChoice(window.cboAufpreis, surcharges);
}

void discountChosen(frame::MainWindow& window, const settings::AdjustmentList& surcharges) {
  showOrder(window, "2", "1");
  describeChoice(window.cboRabatt, surcharges);
}

void percentageTyped(base::TextBox& percentage, base::TextBox& amount, base::Currency net) {
  amount.text.clear();
  amount.text = base::storedAmount(amountOfPercentage(net, base::leadingNumber(percentage.text)));
  fillEmptied(percentage);
}

void amountTyped(base::TextBox& amount, base::TextBox& percentage, base::Currency net) {
  percentage.text.clear();
  const double rounded = base::leadingNumber(base::storedAmount(base::leadingNumber(amount.text)));
  percentage.text = base::storedAmount(percentageOfAmount(net, rounded));
  fillEmptied(amount);
}

}  // namespace calc
