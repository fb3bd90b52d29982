// The text container.
#include "editor/container.h"

#include <array>
#include <limits>
#include <optional>
#include <string_view>

#include "editor/editing.h"
#include "editor/text_search.h"
#include "frame/manual.h"
#include "printing/output.h"
#include "printing/printouts.h"

namespace editor {
namespace {

using base::Event;

constexpr std::string_view kLoadTag = "CONTAINER-LoadNow";
constexpr std::string_view kSaveTag = "CONTAINER-SaveNow";
constexpr std::string_view kPrintTag = "CONTAINER-mnuPrint";

DocumentParts documentOf(const ContainerParts& parts) {
  return {.document = parts.document, .text = parts.window.rtfTextC, .undo = parts.undo, .platform = parts.platform};
}

std::array<base::Control*, 5> textCommands(ContainerWindow& window) {
  return {&window.mnuMarkAll, &window.mnuPrint, &window.Command2, &window.mnuVorschau, &window.mnuPDF};
}

// The editing commands are enabled as far as there is something for them.
void offerEditing(ContainerWindow& window, const UndoStore& undo) {
  const base::TextCount count = window.rtfTextC.countAll();
  const bool isMarked = window.rtfTextC.selection().length > 0;
  window.mnuUndo.enabled = undo.canUndo();
  window.mnuRedo.enabled = undo.canRedo();
  for (base::MenuEntry* const entry : {&window.mnuCut, &window.mnuCopy, &window.mnuClear}) entry->enabled = isMarked;
  for (base::Control* const wantsText : textCommands(window)) {
    wantsText->enabled = count.characters + count.lineEnds >= 1;
  }
}

// What follows every command.
void showState(const ContainerParts& parts) {
  offerEditing(parts.window, parts.undo);
  parts.window.rtfTextC.wantsFocus = true;
}

void showFile(const ContainerParts& parts) { parts.window.caption = "Text-Container - " + parts.document.file; }

void load(const ContainerParts& parts, const std::string& path) {
  loadDocument(documentOf(parts), path);
  showFile(parts);
}

void protectUnsaved(const ContainerParts& parts) {
  if (!holdsUnsaved(parts.document, parts.window.rtfTextC)) return;
  settleChanges(parts.platform, [&parts] { saveContainer(parts); });
}

void open(const ContainerParts& parts) {
  protectUnsaved(parts);
  load(parts, askForDocument(parts.platform));
}

void openDropped(const ContainerParts& parts, const std::string& path) {
  errors::reporting(parts.reporter, kLoadTag, [&] {
    protectUnsaved(parts);
    load(parts, path);
  });
  showState(parts);
}

void notFound(const ContainerParts& parts) {
  ContainerWindow& window = parts.window;
  window.rtfTextC.select({.start = 0, .length = 0});
  window.mnuFindNext.enabled = false;
  parts.platform.messageBox({.text = "Suchtext \"" + window.sought + "\" nicht gefunden!", .title = "Suchen"});
}

// From the character behind the caret or, with a hit selected, behind its first one.
void findNext(const ContainerParts& parts) {
  ContainerWindow& window = parts.window;
  const std::u32string sought = folded(window.sought);
  const std::optional<std::int64_t> place =
      editor::find(folded(window.rtfTextC.plainText()), sought, window.rtfTextC.selection().start + 1);
  if (!place) return notFound(parts);
  window.rtfTextC.select({.start = *place, .length = static_cast<std::int64_t>(sought.size())});
  window.mnuFindNext.enabled = true;
}

// Nothing entered is nothing to search for.
void search(const ContainerParts& parts) {
  const std::optional<std::string> answer = parts.platform.inputBox(
      {.text = "Bitte geben Sie den gesuchten Text ein. Wenn Sie den Text weiter nach gleichen Wörtern durchsuchen "
               "wollen, rufen Sie die Funktion 'Weitersuchen' auf.",
       .title = "Suchen",
       .suggestion = parts.window.sought});
  if (!answer || answer->empty()) return;
  parts.window.sought = parts.platform.composed(*answer);
  findNext(parts);
}

base::PrintJob printout(const ContainerParts& parts) {
  return printing::containerPrintout(parts.window.rtfTextC, parts.platform.now());
}

void print(const ContainerParts& parts) { printing::print(printout(parts), parts.platform); }

void preview(const ContainerParts& parts) { parts.platform.printPreview(printout(parts)); }

void savePdf(const ContainerParts& parts) {
  printing::saveAsPdf(printout(parts), printing::pdfNameOf(parts.document.file, "Text-Container"), parts.platform);
}

void setUpPrinter(const ContainerParts& parts) { printing::setUpPrinter(parts.platform); }

class ContainerWiring {
 public:
  ContainerWiring(base::Wiring& wiring, const ContainerParts& parts) : wiring_(wiring), parts_(parts) {}

  template <typename Procedure>
  void reported(const base::Control& entry, std::string_view tag, Procedure procedure) {
    wiring_.on(entry, Event::click, [parts = parts_, tag, procedure] {
      errors::reporting(parts.reporter, tag, [&] { procedure(parts); });
      showState(parts);
    });
  }
  template <typename Procedure>
  void skipped(const base::MenuEntry& entry, Procedure procedure) {
    wiring_.on(entry, Event::click, [parts = parts_, procedure] {
      errors::skipping([&] { procedure(parts); });
      showState(parts);
    });
  }
  // One undo takes back all that the command did.
  template <typename Command>
  void editing(const base::MenuEntry& entry, Command command) {
    skipped(entry, [command](const ContainerParts& parts) {
      const UndoStore::Group step(parts.undo);
      command(parts.window.rtfTextC, parts.platform);
    });
  }

 private:
  base::Wiring& wiring_;
  const ContainerParts& parts_;
};

void wireEditing(ContainerWiring& on, const ContainerWindow& window) {
  on.skipped(window.mnuUndo, [](const ContainerParts& parts) { parts.undo.undo(); });
  on.skipped(window.mnuRedo, [](const ContainerParts& parts) { parts.undo.redo(); });
  on.editing(window.mnuCut, cutSelection);
  on.editing(window.mnuCopy, copySelection);
  on.editing(window.mnuPaste, paste);
  on.editing(window.mnuPastePlain, pastePlain);
  on.editing(window.mnuClear, [](base::RichText& text, base::Platform&) { deleteSelection(text); });
  on.editing(window.mnuMarkAll, [](base::RichText& text, base::Platform&) { selectAll(text); });
}

}  // namespace

// Nothing has been found yet, and there is no text.
ContainerWindow::ContainerWindow() : Window("frmContainer") {
  for (base::MenuEntry* const entry : {&mnuFindNext, &mnuUndo, &mnuRedo, &mnuCut, &mnuCopy, &mnuClear}) {
    entry->enabled = false;
  }
  for (base::Control* const wantsText : textCommands(*this)) wantsText->enabled = false;
}

void appendToContainer(ContainerWindow& container, UndoStore& undo, const base::Document& block) {
  {
    const UndoStore::Group step(undo);
    const base::TextSelection place = container.rtfTextC.selection();
    container.rtfTextC.select({.start = std::numeric_limits<std::int64_t>::max(), .length = 0});
    container.rtfTextC.replaceSelection(block);
    container.rtfTextC.select(place);
  }
  offerEditing(container, undo);
}

void clearContainer(ContainerWindow& container, UndoStore& undo) {
  {
    const UndoStore::Group step(undo);
    selectAll(container.rtfTextC);
    container.rtfTextC.replaceSelection(base::Document());
  }
  offerEditing(container, undo);
}

void saveContainer(const ContainerParts& parts) {
  base::tagged(kSaveTag, [&parts] {
    saveByDialog(documentOf(parts));
    showFile(parts);
  });
}

void wireContainer(base::Wiring& wiring, const ContainerParts& parts) {
  const ContainerWindow& window = parts.window;
  for (const Event event : {Event::changed, Event::selected, Event::released}) {
    wiring.on(window.rtfTextC, event, [parts] { errors::skipping([&] { offerEditing(parts.window, parts.undo); }); });
  }
  ContainerWiring on(wiring, parts);
  wireEditing(on, window);
  on.reported(window.mnuLoad, kLoadTag, open);
  on.reported(window.mnuSave, kSaveTag, saveContainer);
  on.reported(window.mnuPrint, kPrintTag, print);
  on.reported(window.Command2, kPrintTag, print);
  on.reported(window.mnuVorschau, "CONTAINER-mnuVorschau", preview);
  on.reported(window.mnuPDF, "CONTAINER-mnuPDF", savePdf);
  on.reported(window.mnuPrinterConfig, "CONTAINER-mnuPrinterConfig", setUpPrinter);
  on.skipped(window.mnuSearch, search);
  on.skipped(window.mnuFindNext, findNext);
  on.reported(window.mnuHelp, "CONTAINER-mnuHelp",
              [](const ContainerParts& container) { frame::openManual(container.paths, container.platform); });
  wiring.onFile(window, [parts](const std::string& path) { openDropped(parts, path); });
  wiring.on(window.mnuExit, Event::click, [parts] { parts.platform.close(parts.window); });
}

}  // namespace editor
