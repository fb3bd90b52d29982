// What protects a lettering that is not saved.
#include "lifecycle/unsaved_work.h"

#include "commands/file_commands.h"

namespace lifecycle {
namespace {

constexpr int kLookMilliseconds = 2000;  // what is not in the copy is never older than this and its writing

bool isUnsaved(const Program& program) { return editor::holdsUnsaved(program.document, program.windows.main.rtfText); }

bool holdsContainerUnsaved(const Program& program) {
  return editor::holdsUnsaved(program.containerDocument, program.windows.container.rtfTextC);
}

constexpr const char* kNoCopy = "Keine Sicherungskopie: bitte speichern";

void tellFailure(Program& program) {
  program.recovery.fellBehind();
  program.windows.main.lblHinweis.text = kNoCopy;
  program.windows.main.lblHinweis.toolTip =
      "Nach einem Absturz ginge der Text verloren, denn diese Datei lässt sich nicht schreiben: " +
      program.recovery.path();
}

void takeBackFailure(base::Label& hint) {
  if (hint.text == kNoCopy) hint.text.clear(), hint.toolTip.clear();
}

// Asks, or fails as it is answered; true when the text may go.
template <typename Question>
bool isAnsweredFor(Program& program, Question ask) {
  bool isAnswered = false;
  errors::reporting(program.reporter, "MAIN-frmUnload", [&] {
    ask();
    isAnswered = true;
  });
  return isAnswered;
}

bool isDocumentAnsweredFor(Program& program) {
  return isAnsweredFor(program, [&program] {
    editor::settleChanges(program.platform, [&program] { commands::SaveNow(partsOf(program)); });
  });
}

bool isContainerAnsweredFor(Program& program) {
  return isAnsweredFor(program, [&program] {
    editor::settleChanges(
        program.platform, [&program] { editor::saveContainer(containerPartsOf(program)); },
        "Möchten Sie die Änderungen im Text-Container speichern?");
  });
}

}  // namespace

void keepRecoveryCopy(Program& program) {
  const base::RichText& text = program.windows.main.rtfText;
  const std::optional<bool> succeeded = program.platform.asideSucceeded();
  if (!succeeded) return;
  const bool isNeeded = isUnsaved(program);
  isNeeded && !*succeeded ? tellFailure(program) : takeBackFailure(program.windows.main.lblHinweis);
  if (!isNeeded) return program.recovery.remove();
  if (!program.recovery.isBehind(text)) return;
  if (program.platform.runAside([&program, &text] { program.recovery.write(text); }))
    program.recovery.keepsUpWith(text);
}

void keepForNextStart(Program& program) {
  program.windows.main.tmrSicherung.running = false;
  program.platform.awaitAside();
  if (isUnsaved(program)) program.recovery.write(program.windows.main.rtfText);
}

bool mayLeave(Program& program) {
  const bool mayAsk = program.windows.main.mayAsk;
  if (isUnsaved(program)) {
    if (!mayAsk) return true;  // it is kept for the next start
    if (!isDocumentAnsweredFor(program)) return false;
  }
  if (mayAsk && holdsContainerUnsaved(program) && !isContainerAnsweredFor(program)) return false;
  // The copy was written on behind the question, too.
  program.windows.main.tmrSicherung.running = false;
  program.platform.awaitAside();
  program.recovery.remove();
  return true;
}

void offerRecovered(Program& program) {
  program.windows.main.tmrSicherung = {.running = true, .intervalMilliseconds = kLookMilliseconds};
  if (!program.recovery.adopt()) return;
  base::Document left;
  try {
    left = program.recovery.read();
  } catch (const base::Failure&) {
    program.recovery.putAside();
    throw;
  }
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
