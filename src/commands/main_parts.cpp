// What every procedure of the main window does with its parts.
#include "commands/main_parts.h"

#include <exception>

#include "editor/character_format.h"

namespace commands {

calc::CalcParts calcParts(const MainParts& parts) {
  return {.window = parts.window,
          .document = parts.window.rtfText,
          .rates = parts.settings.rates,
          .results = parts.results,
          .format = parts.platform.numberFormat()};
}

void offerUndo(const MainParts& parts) {
  parts.window.mnuUndo.enabled = parts.results.TextLength >= 1;
  parts.window.mnuRedo.enabled = parts.undo.canRedo();
}

// What made a calculation fail can be undone.
void calculate(const MainParts& parts) {
  editor::showFormat(parts.window, parts.window.rtfText);
  try {
    calc::Calc(calcParts(parts));
  } catch (const std::exception&) {
    offerUndo(parts);
    throw;
  }
  offerUndo(parts);
}

}  // namespace commands
