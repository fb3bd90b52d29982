// What protects texts that are not saved.
#include "lifecycle/unsaved_work.h"

#include <array>
#include <exception>
#include <string_view>
#include <vector>

#include "commands/file_commands.h"
#include "commands/note_commands.h"

namespace lifecycle {
namespace {

constexpr int kLookMilliseconds = 2000;  // what is not in a copy is never older than this and its writing

// A text that must not be lost.
struct KeptText {
  const editor::OpenDocument& document;
  const base::RichText& text;
  editor::RecoveryCopy& copy;
  std::string_view saveQuestion;  // at the end of the program
  void (*save)(Program& program);
  std::string_view recoverQuestion;  // at the start that follows a crash
  void (*show)(Program& program, const base::Document& recovered);
};

std::array<KeptText, 2> keptTexts(Program& program) {
  return {{{.document = program.document,
            .text = program.windows.main.rtfText,
            .copy = program.recovery,
            .saveQuestion = editor::kSaveQuestion,
            .save = [](Program& owner) { commands::SaveNow(partsOf(owner)); },
            .recoverQuestion = "Soll der nicht gespeicherte Text wiederhergestellt werden?",
            .show = [](Program& owner,
                       const base::Document& recovered) { commands::showRecovered(partsOf(owner), recovered); }},
           {.document = program.containerDocument,
            .text = program.windows.container.rtfTextC,
            .copy = program.containerRecovery,
            .saveQuestion = "Möchten Sie die Änderungen im Text-Container speichern?",
            .save = [](Program& owner) { editor::saveContainer(containerPartsOf(owner)); },
            .recoverQuestion = "Soll der nicht gespeicherte Text im Text-Container wiederhergestellt werden?",
            .show =
                [](Program& owner, const base::Document& recovered) {
                  commands::appendBlock(partsOf(owner), recovered);
                  commands::showContainer(partsOf(owner));
                }}}};
}

bool isUnsaved(const KeptText& kept) { return editor::holdsUnsaved(kept.document, kept.text); }

constexpr const char* kNoCopy = "Keine Sicherungskopie: bitte speichern";

void tellFailure(Program& program) {
  program.windows.main.lblHinweis.text = kNoCopy;
  program.windows.main.lblHinweis.toolTip =
      "Nach einem Absturz ginge Text verloren, denn dieser Ordner nimmt keine Sicherungskopie an: " +
      program.paths.programDirectory;
}

void takeBackFailure(base::Label& hint) {
  if (hint.text == kNoCopy) hint.text.clear(), hint.toolTip.clear();
}

// Every text is tried, whatever becomes of the others; the last failure is the caller's.
template <typename Texts, typename Procedure>
void withEach(const Texts& texts, Procedure run) {
  std::exception_ptr failure;
  for (const KeptText& kept : texts) {
    try {
      run(kept);
    } catch (const std::exception&) {
      failure = std::current_exception();
    }
  }
  if (failure) std::rethrow_exception(failure);
}

void write(const KeptText& kept) { kept.copy.write(kept.text); }

// Asks, or fails as it is answered; true when the text may go.
bool isAnsweredFor(Program& program, const KeptText& kept) {
  bool isAnswered = false;
  errors::reporting(program.reporter, "MAIN-frmUnload", [&] {
    editor::settleChanges(
        program.platform, [&] { kept.save(program); }, kept.saveQuestion);
    isAnswered = true;
  });
  return isAnswered;
}

base::Document readLeft(editor::RecoveryCopy& copy) {
  try {
    return copy.read();
  } catch (const base::Failure&) {
    copy.putAside();
    throw;
  }
}

void offerRecovered(Program& program, const KeptText& kept) {
  if (!kept.copy.adopt()) return;
  const base::Document left = readLeft(kept.copy);
  const base::MessageAnswer answer = program.platform.messageBox(
      {.text = std::string("Tessik wurde beim letzten Mal nicht ordentlich beendet.\r\n").append(kept.recoverQuestion),
       .icon = base::MessageIcon::question,
       .buttons = base::MessageButtons::yesNo});
  if (!program.windows.main.mayAsk) return;  // nobody answered: the next start asks again
  if (answer != base::MessageAnswer::yes) return kept.copy.putAside();
  kept.show(program, left);
  kept.copy.keepsUpWith(kept.text);
}

}  // namespace

void keepRecoveryCopies(Program& program) {
  const std::optional<bool> succeeded = program.platform.asideSucceeded();
  if (!succeeded) return;
  std::vector<KeptText> behind;
  bool isFailing = false;
  for (const KeptText& kept : keptTexts(program)) {
    if (!isUnsaved(kept)) {
      kept.copy.remove();
      continue;
    }
    if (!*succeeded) isFailing = true, kept.copy.fellBehind();
    if (kept.copy.isBehind(kept.text)) behind.push_back(kept);
  }
  isFailing ? tellFailure(program) : takeBackFailure(program.windows.main.lblHinweis);
  if (behind.empty() || !program.platform.runAside([&behind] { withEach(behind, write); })) return;
  for (const KeptText& kept : behind) kept.copy.keepsUpWith(kept.text);
}

void keepForNextStart(Program& program) {
  program.windows.main.tmrSicherung.running = false;
  program.platform.awaitAside();
  withEach(keptTexts(program), [](const KeptText& kept) {
    if (isUnsaved(kept)) write(kept);
  });
}

bool mayLeave(Program& program) {
  const bool mayAsk = program.windows.main.mayAsk;
  const auto texts = keptTexts(program);
  for (const KeptText& kept : texts) {
    if (mayAsk && isUnsaved(kept) && !isAnsweredFor(program, kept)) return false;
  }
  // The copies were written on behind the questions, too.
  program.windows.main.tmrSicherung.running = false;
  program.platform.awaitAside();
  for (const KeptText& kept : texts) {
    if (mayAsk || !isUnsaved(kept)) kept.copy.remove();
  }
  return true;
}

void offerRecovered(Program& program) {
  program.windows.main.tmrSicherung = {.running = true, .intervalMilliseconds = kLookMilliseconds};
  withEach(keptTexts(program), [&program](const KeptText& kept) { offerRecovered(program, kept); });
}

}  // namespace lifecycle
