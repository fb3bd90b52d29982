// What protects a lettering that is not saved.
#include "lifecycle/unsaved_work.h"

#include "commands/file_commands.h"

namespace lifecycle {
namespace {

constexpr int kLookMilliseconds = 2000;  // what is not in the copy is never older than this and its writing

bool isUnsaved(const Program& program) {
  const base::RichText& text = program.windows.main.rtfText;
  return text.countAll().characters >= 1 && !editor::isSaved(program.document, text);
}

void tellFailure(Program& program) {
  program.recovery.fellBehind();
  program.windows.main.lblHinweis.text = "Keine Sicherungskopie: bitte speichern";
  program.windows.main.lblHinweis.toolTip =
      "Nach einem Absturz ginge der Text verloren, denn diese Datei lässt sich nicht schreiben: " +
      program.recovery.path();
}

}  // namespace

void keepRecoveryCopy(Program& program) {
  const base::RichText& text = program.windows.main.rtfText;
  const std::optional<bool> succeeded = program.platform.asideSucceeded();
  if (!succeeded) return;
  if (!*succeeded) tellFailure(program);
  if (!isUnsaved(program)) return program.recovery.remove();
  if (!program.recovery.isBehind(text)) return;
  if (program.platform.runAside([&program, &text] { program.recovery.write(text); }))
    program.recovery.keepsUpWith(text);
}

bool mayLeave(Program& program) {
  program.platform.awaitAside();
  if (isUnsaved(program)) {
    if (!program.windows.main.mayAsk) return program.recovery.write(program.windows.main.rtfText), true;
    const base::MessageAnswer answer = editor::askToSave(program.platform);
    if (answer == base::MessageAnswer::cancel) return false;
    if (answer == base::MessageAnswer::yes) {
      bool isKept = false;
      errors::reporting(program.reporter, "MAIN-frmUnload", [&] {
        commands::SaveNow(partsOf(program));
        isKept = true;
      });
      if (!isKept) return false;
    }
  }
  // The copy was written on behind the question, too.
  program.windows.main.tmrSicherung.running = false;
  program.platform.awaitAside();
  program.recovery.remove();
  return true;
}

void offerRecovered(Program& program) {
  program.windows.main.tmrSicherung = {.running = true, .intervalMilliseconds = kLookMilliseconds};
  if (!program.recovery.adopt()) return;
  const base::Document left = program.recovery.read();
  const base::MessageAnswer answer =
      program.platform.messageBox({.text = "Tessik wurde beim letzten Mal nicht ordentlich beendet.\r\n"
                                           "Soll der nicht gespeicherte Text wiederhergestellt werden?",
                                   .icon = base::MessageIcon::question,
                                   .buttons = base::MessageButtons::yesNo});
  if (!program.windows.main.mayAsk) return;  // nobody answered: the next start asks again
  if (answer == base::MessageAnswer::yes) {
    commands::showRecovered(partsOf(program), left);
    program.recovery.keepsUpWith(program.windows.main.rtfText);
  } else {
    program.recovery.putAside();
  }
}

}  // namespace lifecycle
