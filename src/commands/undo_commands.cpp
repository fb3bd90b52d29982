// Undo and redo of the document.
#include "commands/undo_commands.h"

namespace commands {
namespace {

struct Step {
  bool (editor::UndoStore::*isThere)() const;
  void (editor::UndoStore::*take)();
};

void wireStep(base::Wiring& wiring, const MainParts& parts, const base::MenuEntry& entry, std::string_view tag,
              Step step) {
  wiring.on(entry, base::Event::click, reported(parts, tag, [step](const MainParts& p) {
              (p.undo.*step.isThere)() ? (p.undo.*step.take)() : p.platform.beep();
              calculate(p);
            }));
}

}  // namespace

void wireUndo(base::Wiring& wiring, const MainParts& parts) {
  using editor::UndoStore;
  wireStep(wiring, parts, parts.window.mnuUndo, "MAIN-mnuUndo_Click", {&UndoStore::canUndo, &UndoStore::undo});
  wireStep(wiring, parts, parts.window.mnuRedo, "MAIN-mnuRedo_Click", {&UndoStore::canRedo, &UndoStore::redo});
}

}  // namespace commands
