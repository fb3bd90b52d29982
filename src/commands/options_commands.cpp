// The command that opens the options dialog.
#include "commands/options_commands.h"

#include "calc/adjustments.h"
#include "commands/price_list_commands.h"
#include "commands/tool_commands.h"
#include "options/options.h"

namespace commands {
namespace {

void edit(const MainParts& parts) {
  options::editOptions({.window = parts.optionsDialog,
                        .settings = parts.settings,
                        .platform = parts.platform,
                        .reporter = parts.reporter});
  calc::refillAdjustments(parts.window, parts.settings.adjustments);
  followCalculatorSetting(parts);
  followRates(parts);
  calculate(parts);
}

}  // namespace

void wireOptions(base::Wiring& wiring, const MainParts& parts) {
  options::wireOptions(wiring, {.window = parts.optionsDialog,
                                .settings = parts.settings,
                                .platform = parts.platform,
                                .reporter = parts.reporter});
  wiring.on(parts.window.mnuOptionen, base::Event::click, reported(parts, "MAIN-mnuOptionen_Click", edit));
}

}  // namespace commands
