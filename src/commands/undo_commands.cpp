// Undo and redo of the document.
#include "commands/undo_commands.h"

namespace commands {
namespace {

using Step = void (editor::UndoStore::*)();

void wireStep(base::Wiring& wiring, const MainParts& parts, const base::MenuEntry& entry, std::string_view tag,
              Step step) {
  wiring.on(entry, base::Event::click, reported(parts, tag, [step](const MainParts& p) {
              (p.undo.*step)();
              calculate(p);
            }));
}

}  // namespace

void wireUndo(base::Wiring& wiring, const MainParts& parts) {
  wireStep(wiring, parts, parts.window.mnuUndo, "MAIN-mnuUndo_Click", &editor::UndoStore::undo);
  wireStep(wiring, parts, parts.window.mnuRedo, "MAIN-mnuRedo_Click", &editor::UndoStore::redo);
}

}  // namespace commands
