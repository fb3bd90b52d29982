// The offer note into the text container, and what the main window does with that container.
#include "commands/note_commands.h"

#include "calc/offer_note.h"
#include "editor/container.h"

namespace commands {
namespace {

using base::Event;

base::Document note(const MainParts& parts) { return calc::offerNote(parts.window, parts.settings.rates.unit); }

void append(const MainParts& parts, const base::Document& block) {
  appendBlock(parts, block);
  parts.window.rtfText.wantsFocus = true;
}

void appendNote(const MainParts& parts) { append(parts, note(parts)); }

void appendNoteBusily(const MainParts& parts) {
  constexpr int kWhole = 100;
  const frame::Waiting waiting(parts.wait, parts.platform, "Die Notiz kommt in den Container …", kWhole);
  parts.wait.Progress1.value = kWhole - 1;
  const base::Document block = note(parts);
  parts.platform.refresh();
  append(parts, block);
}

void askToClearContainer(const MainParts& parts) {
  const base::MessageAnswer answer =
      parts.platform.messageBox({.text = "Sind Sie sicher das Sie den Text-Container löschen möchten?",
                                 .title = "Container löschen",
                                 .buttons = base::MessageButtons::yesNo});
  if (answer == base::MessageAnswer::yes) editor::clearContainer(parts.container, parts.containerUndo);
}

}  // namespace

void appendBlock(const MainParts& parts, const base::Document& block) {
  editor::appendToContainer(parts.container, parts.containerUndo, block);
  frame::MainWindow& window = parts.window;
  window.cmdContainerLook.enabled = window.mnuContainerLook.enabled = window.mnuContainerClear.enabled = true;
}

void showContainer(const MainParts& parts) { parts.platform.show(parts.container); }

void wireNote(base::Wiring& wiring, const MainParts& parts) {
  const auto command = [&](const base::Control& control, std::string_view tag, void (*run)(const MainParts&)) {
    wiring.on(control, Event::click, reported(parts, tag, run));
  };
  const frame::MainWindow& window = parts.window;
  command(window.cmdNotiz, "MAIN-cmdNotiz_Click", appendNoteBusily);
  command(window.mnuNotiz, "MAIN-mnuNptiz_Click", appendNote);
  command(window.cmdContainerLook, "MAIN-cmdContainerLook_Click", showContainer);
  command(window.mnuContainerLook, "MAIN-mnuContainerLook_Click", showContainer);
  command(window.mnuContainerClear, "MAIN-cmdContainerClear_Click", askToClearContainer);
}

}  // namespace commands
