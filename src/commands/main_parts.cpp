// What every procedure of the main window does with its parts.
#include "commands/main_parts.h"

#include "editor/character_format.h"

namespace commands {

calc::CalcParts calcParts(const MainParts& parts) {
  return {.window = parts.window,
          .document = parts.window.rtfText,
          .rates = parts.settings.rates,
          .results = parts.results,
          .format = parts.platform.numberFormat()};
}

void calculate(const MainParts& parts) {
  editor::showFormat(parts.window, parts.window.rtfText);
  calc::Calc(calcParts(parts));
  parts.window.mnuUndo.enabled = parts.results.TextLength >= 1 && parts.undo.canUndo();
  parts.window.mnuRedo.enabled = parts.undo.canRedo();
}

}  // namespace commands
