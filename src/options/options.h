// The options dialog: what is edited takes effect at once; company address and undo depth wait for OK.
#pragma once

#include "base/platform.h"
#include "base/wiring.h"
#include "errors/reporting.h"
#include "options/options_window.h"
#include "settings/settings.h"

namespace options {

/// What the dialog's procedures work on; all of it outlives the wiring.
struct OptionsParts {
  OptionsWindow& window;
  settings::Settings& settings;
  base::Platform& platform;
  errors::Reporter& reporter;
};

void wireOptions(base::Wiring& wiring, const OptionsParts& parts);

/// Shows the dialog with what the settings hold, until it is closed.
void editOptions(const OptionsParts& parts);

}  // namespace options
