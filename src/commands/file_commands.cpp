// The commands on document files.
#include "commands/file_commands.h"

#include "base/text.h"
#include "base/version.h"
#include "editor/open_document.h"

namespace commands {
namespace {

using base::Event;

constexpr std::int64_t kLargeText = 65'000;  // characters of plain text, a line end counted as two

// Only a lettering that costs something is asked about, the whole of it, whatever is marked.
bool isDirty(const MainParts& parts) {
  const base::TextCount count = parts.window.rtfText.countAll();
  const std::int64_t priced = count.characters - (parts.settings.rates.countBlanks == 0 ? count.blanks : 0);
  return priced >= 1 && !editor::isSaved(parts.document, parts.window.rtfText);
}

editor::DocumentParts documentOf(const MainParts& parts) {
  return {.document = parts.document, .text = parts.window.rtfText, .undo = parts.undo, .platform = parts.platform};
}

// Before the document gives way to another.
void protectUnsaved(const MainParts& parts) {
  if (isDirty(parts)) editor::settleChanges(parts.platform, [&parts] { SaveNow(parts); });
}

void resetInputs(frame::MainWindow& window) {
  for (base::TextBox* const box : {&window.txtProzentDM, &window.txtProzent, &window.txtRabattDM, &window.txtRabatt}) {
    box->text = "0.00";
  }
  window.txtStück.text = "1";
}

void warnOfLargeText(const MainParts& parts) {
  const base::TextCount count = parts.window.rtfText.countAll();
  if (count.characters + 2 * count.lineEnds <= kLargeText) return;
  parts.platform.messageBox(
      {.text = "Durch die komplexen Berechnungen kann es bei Dateien dieser Größe zu Performanceverlusten kommen! Tip: "
               "Text in den Container laden, und benötigte Textstücke über die Zwischenablage kopieren!",
       .title = "HINWEIS",
       .icon = base::MessageIcon::exclamation});
}

void load(const MainParts& parts, const std::string& path) {
  editor::loadDocument(documentOf(parts), path);
  showCurrentFile(parts, path);
}

void price(const MainParts& parts) {
  errors::reporting(parts.reporter, calc::kCalcTag, [&] { calculate(parts); });
}

// What follows a document that has been loaded.
void priceLoaded(const MainParts& parts) {
  warnOfLargeText(parts);
  price(parts);
}

void LoadNow(const MainParts& parts) {
  protectUnsaved(parts);
  load(parts, editor::askForDocument(parts.platform));
}

void NewDoc(const MainParts& parts) {
  protectUnsaved(parts);
  editor::clearText(parts.window.rtfText);
  parts.document.file.clear();
  parts.window.caption = base::windowCaption();
  editor::markSaved(parts.document, parts.window.rtfText);
  parts.undo.clear();
}

// Runs a procedure that reports by itself; the caller's further steps follow only when it came to its end.
template <typename Procedure>
bool succeeds(const MainParts& parts, std::string_view tag, Procedure procedure) {
  bool hasEnded = false;
  errors::reporting(parts.reporter, tag, [&] {
    procedure();
    hasEnded = true;
  });
  return hasEnded;
}

void focusDocument(const MainParts& parts) { parts.window.rtfText.wantsFocus = true; }

void open(const MainParts& parts) {
  if (succeeds(parts, "MAIN-LoadNow", [&] { LoadNow(parts); })) priceLoaded(parts);
  focusDocument(parts);
}

void save(const MainParts& parts) {
  succeeds(parts, "MAIN-SaveNow", [&] { SaveNow(parts); });
  focusDocument(parts);
}

void startAnew(const MainParts& parts) {
  if (!succeeds(parts, "MAIN-NewDoc", [&] { NewDoc(parts); })) return;
  resetInputs(parts.window);
  price(parts);
  focusDocument(parts);
}

void openRecent(const MainParts& parts) {
  const bool isLoaded = succeeds(parts, "MAIN-mnuLastFile", [&] {
    protectUnsaved(parts);
    // Saving first may have given the entry another file.
    load(parts, parts.settings.user.lastFile);
  });
  if (isLoaded) priceLoaded(parts);
  focusDocument(parts);
}

}  // namespace

void SaveNow(const MainParts& parts) {
  base::tagged("MAIN-SaveNow", [&] {
    editor::saveByDialog(documentOf(parts));
    const std::string path = parts.document.file;
    showCurrentFile(parts, path);
    offerUndo(parts);
    // The document is saved, whatever becomes of this.
    errors::reporting(parts.reporter, "MAIN-SaveNow",
                      [&] { parts.platform.saveUserSettings({{.key = "LastFile", .value = path}}); });
  });
}

void showCurrentFile(const MainParts& parts, const std::string& path) {
  parts.document.file = path;
  parts.settings.user.lastFile = path;
  parts.window.mnuLastFile.text = base::replaceAll(path, "&", "&&");
  parts.window.mnuLastFile.visible = true;
  parts.window.caption = base::windowCaption(path);
}

void openFile(const MainParts& parts, const std::string& path) {
  const bool isLoaded = succeeds(parts, "MAIN-LoadNow", [&] {
    protectUnsaved(parts);
    load(parts, path);
  });
  if (isLoaded) priceLoaded(parts);
  focusDocument(parts);
}

void showRecovered(const MainParts& parts, const base::Document& document) {
  parts.window.rtfText.setDocument(document);
  parts.document = {.file = {}, .savedRevision = parts.window.rtfText.revision() - 1};
  parts.undo.clear();
  calculate(parts);
}

void wireFiles(base::Wiring& wiring, const MainParts& parts) {
  const auto command = [&](const base::Control& entry, const base::Control& button, auto procedure) {
    for (const base::Control* const control : {&entry, &button}) {
      wiring.on(*control, Event::click, [parts, procedure] { procedure(parts); });
    }
  };
  const frame::MainWindow& window = parts.window;
  command(window.mnuNeu, window.cmdNew, startAnew);
  command(window.mnuOpen, window.cmdOpen, open);
  command(window.mnuSave, window.cmdSave, save);
  wiring.on(window.mnuLastFile, Event::click, [parts] { openRecent(parts); });
  wiring.onFile(window, [parts](const std::string& path) { openFile(parts, path); });
}

}  // namespace commands
