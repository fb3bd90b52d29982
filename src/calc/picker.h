// The picker: a dialog that lists the configured surcharges or discounts with their remarks, to choose one.
#pragma once

#include <optional>
#include <string_view>

#include "base/controls.h"
#include "base/platform.h"
#include "base/wiring.h"
#include "frame/main_window.h"
#include "settings/settings.h"

namespace calc {

// clang-format off
#define TESSIK_PICKER_CONTROLS(CONTROL) \
  CONTROL(base::ListBox, lstAuswahl)
// clang-format on

struct PickerWindow : base::Window {
  PickerWindow() : Window("frmAuswahlAR") {}

  TESSIK_CONTROLS(TESSIK_PICKER_CONTROLS)

  std::optional<int> chosenRow;
};

/// A click or Enter on a row chooses it; Escape and the right button close the dialog without a choice.
void wirePicker(base::Wiring& wiring, PickerWindow& picker, base::Platform& platform);

/// Fills the picker from `list`: "0.00 EUR -> FEST", then the used entries that are not empty; none of them when slot 1
/// is empty.
void fillPicker(PickerWindow& picker, const settings::AdjustmentList& list);

/// Shows the picker under `caption`, on the row `current` if there is one, and returns the row that was chosen.
std::optional<int> pick(PickerWindow& picker, const settings::AdjustmentList& list, std::string_view caption,
                        int current, base::Platform& platform);

}  // namespace calc
