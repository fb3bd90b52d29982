// The commands that open the tools.
#include "commands/tool_commands.h"

namespace commands {
namespace {

calculator::CalculatorParts calculatorParts(const MainParts& parts) {
  return {.window = parts.calculator,
          .inFront = parts.settings.calculatorInFront,
          .platform = parts.platform,
          .reporter = parts.reporter};
}

}  // namespace

void wireTools(base::Wiring& wiring, const MainParts& parts) {
  calculator::wireCalculator(wiring, calculatorParts(parts));
  wiring.on(parts.window.mnuCalculator, base::Event::click,
            reported(parts, "MAIN-mnuCalculator_Click",
                     [](const MainParts& p) { calculator::openCalculator(calculatorParts(p)); }));
  wiring.on(parts.window.mnuBackup, base::Event::click, reported(parts, "MAIN-mnuBackup_Click", [](const MainParts& p) {
              backup::openBackup(p.backup, p.paths.programDirectory, p.platform);
            }));
}

void followCalculatorSetting(const MainParts& parts) { calculator::followSetting(calculatorParts(parts)); }

}  // namespace commands
