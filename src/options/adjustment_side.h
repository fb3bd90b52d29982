// One side of the options dialog, its surcharges or its discounts: the same procedures on controls of other names.
//
// The list on the screen and the stored slots are deliberately not kept in step: removing an entry takes its row away,
// but empties the last slot, or with the Delete key none. What the next start shows is the slots.
#pragma once

#include <string_view>

#include "base/platform.h"
#include "base/wiring.h"
#include "errors/reporting.h"
#include "options/options_window.h"
#include "settings/settings.h"

namespace options {

/// Under which tag each procedure reports, and what differs in words.
struct SideTexts {
  std::string_view add;
  std::string_view pick;
  std::string_view remove;
  std::string_view clear;
  std::string_view menuAdd;
  std::string_view menuPick;
  std::string_view menuRemove;
  std::string_view menuClear;
  const char* clearTitle;
};

struct AdjustmentSide {
  base::ListBox& list;
  base::ProgressBar& gauge;
  base::Label& count;
  base::Label& state;
  base::TextBox& amount;
  base::TextBox& remark;
  base::OptionButton& percent;
  base::OptionButton& fixed;
  base::Button& add;
  base::Button& remove;
  base::Button& clear;
  base::Label& hint;
  base::MenuEntry& menuAdd;
  base::MenuEntry& menuPick;
  base::MenuEntry& menuRemove;
  base::MenuEntry& menuClear;
  EditMode& editMode;
  settings::AdjustmentList& stored;
  const SideTexts& texts;
};

AdjustmentSide surchargeSide(OptionsWindow& window, settings::Adjustments& adjustments);
AdjustmentSide discountSide(OptionsWindow& window, settings::Adjustments& adjustments);

/// All of it outlives the wiring.
void wireSide(base::Wiring& wiring, const AdjustmentSide& side, base::Platform& platform, errors::Reporter& reporter);

/// As the dialog opens: the rows of the used slots that are not empty, nothing typed.
void loadSide(const AdjustmentSide& side);
/// As the dialog delivers: no entries, nothing typed.
void resetSide(const AdjustmentSide& side);
/// A click on the list: whatever is typed is dropped.
void cancelChange(const AdjustmentSide& side);

}  // namespace options
