// The picker of surcharges and discounts.
#include "calc/picker.h"

#include <string>

#include "calc/adjustments.h"

namespace calc {

void wirePicker(base::Wiring& wiring, PickerWindow& picker, base::Platform& platform) {
  const auto choose = [&picker, &platform] {
    if (!picker.lstAuswahl.items.holds(picker.lstAuswahl.current)) return;
    picker.chosenRow = picker.lstAuswahl.current;
    platform.close(picker);
  };
  const auto leave = [&picker, &platform] { platform.close(picker); };
  wiring.on(picker.lstAuswahl, base::Event::click, choose);
  wiring.on(picker.lstAuswahl, base::Event::keyEnter, choose);
  wiring.on(picker.lstAuswahl, base::Event::keyEscape, leave);
  wiring.on(picker.lstAuswahl, base::Event::rightPress, leave);
  wiring.on(picker, base::Event::rightPress, leave);
}

void fillPicker(PickerWindow& picker, const settings::AdjustmentList& list) {
  base::ItemList& rows = picker.lstAuswahl.items;
  picker.lstAuswahl.clear();
  rows.add(std::string(kFixedEntry));
  if (list.count < 1 || list.amount(1).empty()) return;
  for (int slot = 1; slot <= list.count; ++slot) {
    if (!list.amount(slot).empty()) rows.add(list.described(slot));
  }
}

std::optional<int> pick(PickerWindow& picker, const settings::AdjustmentList& list, std::string_view caption,
                        int current, base::Platform& platform) {
  fillPicker(picker, list);
  picker.chosenRow.reset();
  picker.caption = caption;
  picker.lstAuswahl.current = picker.lstAuswahl.items.holds(current) ? current : 0;
  picker.lstAuswahl.wantsFocus = true;
  platform.showModal(picker);
  return picker.chosenRow;
}

}  // namespace calc
