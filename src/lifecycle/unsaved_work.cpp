// What protects work that is not saved.
#include "lifecycle/unsaved_work.h"

#include <array>
#include <cstdint>
#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "commands/file_commands.h"
#include "commands/note_commands.h"
#include "commands/planner_commands.h"
#include "commands/price_list_commands.h"
#include "editor/document_file.h"
#include "editor/rtf_writer.h"
#include "planner/appointment_store.h"

namespace lifecycle {
namespace {

constexpr int kLookMilliseconds = 2000;  // what is not in a copy is never older than this and its writing

// Work that must not be lost.
struct KeptWork {
  editor::RecoveryCopy& copy;
  std::function<bool()> isUnsaved;
  std::function<std::uint64_t()> revision;
  std::function<std::string()> bytes;
  std::function<bool(std::string_view left)> isSound;  // whether a copy is one of this work
  std::string_view recoverQuestion = {};
  std::function<void(const std::string& recovered)> show = {};
  std::function<void()> settle = {};  // asks before it is let go; what has none has a window that asks as it closes
};

KeptWork keptText(const editor::OpenDocument& document, const base::RichText& text, editor::RecoveryCopy& copy) {
  return {.copy = copy,
          .isUnsaved = [&] { return editor::holdsUnsaved(document, text); },
          .revision = [&] { return text.revision(); },
          .bytes = [&] { return editor::writeRtf(text.document()); },
          .isSound = [](std::string_view left) { return left.starts_with("{\\rtf"); }};
}

KeptWork keptRows(const pricelists::PriceTableWindow& window, const calc::PriceList& list, editor::RecoveryCopy& copy) {
  return {.copy = copy,
          .isUnsaved = [&] { return pricelists::holdsUnsavedRows(window); },
          .revision = [&] { return pricelists::revision(window); },
          .bytes = [&] { return pricelists::rowsAsFile(window, list); },
          .isSound = [&](std::string_view left) { return pricelists::holdsRows(left, list); }};
}

KeptWork keptLettering(Program& program) {
  KeptWork work = keptText(program.document, program.windows.main.rtfText, program.recovery);
  work.recoverQuestion = "Soll der nicht gespeicherte Text wiederhergestellt werden?";
  work.show = [&](const std::string& recovered) {
    commands::showRecovered(partsOf(program), editor::readDocumentFile(recovered));
  };
  work.settle = [&] { editor::settleChanges(program.platform, [&] { commands::SaveNow(partsOf(program)); }); };
  return work;
}

KeptWork keptContainer(Program& program) {
  KeptWork work = keptText(program.containerDocument, program.windows.container.rtfTextC, program.containerRecovery);
  work.recoverQuestion = "Soll der nicht gespeicherte Text im Text-Container wiederhergestellt werden?";
  work.show = [&](const std::string& recovered) {
    commands::appendBlock(partsOf(program), editor::readDocumentFile(recovered));
    commands::showContainer(partsOf(program));
  };
  work.settle = [&] {
    editor::settleChanges(
        program.platform, [&] { editor::saveContainer(containerPartsOf(program)); },
        "Möchten Sie die Änderungen im Text-Container speichern?");
  };
  return work;
}

KeptWork keptFoils(Program& program) {
  KeptWork work = keptRows(program.windows.rollGoods, pricelists::kFoilList, program.foilRecovery);
  work.recoverQuestion = "Sollen die nicht gespeicherten Änderungen an der Folienliste wiederhergestellt werden?";
  work.show = [&](const std::string& recovered) { commands::showRecoveredFoils(partsOf(program), recovered); };
  return work;
}

KeptWork keptAppointments(Program& program) {
  const planner::PlannerWindow& window = program.windows.planner;
  return {
      .copy = program.appointmentRecovery,
      .isUnsaved = [&] { return window.isRead && planner::isUnsaved(window); },
      .revision = [&] { return planner::revision(window); },
      .bytes = [&] { return planner::listsAsFile(window); },
      .isSound = planner::holdsAppointments,
      .recoverQuestion = "Sollen die nicht gespeicherten Termine wiederhergestellt werden?",
      .show = [&](const std::string& recovered) { commands::showRecoveredAppointments(partsOf(program), recovered); }};
}

KeptWork keptPrices(Program& program) {
  KeptWork work = keptRows(program.windows.priceEditor, calc::kCapHeights, program.priceRecovery);
  work.recoverQuestion = "Sollen die nicht gespeicherten Änderungen an der Preisliste wiederhergestellt werden?";
  work.show = [&](const std::string& recovered) { commands::editRecoveredPrices(partsOf(program), recovered); };
  return work;
}

// In the order in which each is offered: the editor of the price list, which is waited for, comes last.
std::array<KeptWork, 5> keptWork(Program& program) {
  return {keptLettering(program), keptContainer(program), keptAppointments(program), keptFoils(program),
          keptPrices(program)};
}

constexpr const char* kNoCopy = "Keine Sicherungskopie: bitte speichern";

void tellFailure(Program& program) {
  program.windows.main.lblHinweis.text = kNoCopy;
  program.windows.main.lblHinweis.toolTip =
      "Nach einem Absturz ginge verloren, was nicht gespeichert ist, denn dieser Ordner nimmt keine Sicherungskopie "
      "an: " +
      program.paths.programDirectory;
}

void takeBackFailure(base::Label& hint) {
  if (hint.text == kNoCopy) hint.text.clear(), hint.toolTip.clear();
}

// Each is tried, whatever becomes of the others; the last failure is the caller's.
template <typename Works, typename Procedure>
void withEach(const Works& works, Procedure run) {
  std::exception_ptr failure;
  for (const KeptWork& kept : works) {
    try {
      run(kept);
    } catch (const std::exception&) {
      failure = std::current_exception();
    }
  }
  if (failure) std::rethrow_exception(failure);
}

void write(const KeptWork& kept) { kept.copy.write(kept.bytes()); }

// Asks, or fails as it is answered; true when the work may go.
bool isAnsweredFor(Program& program, const KeptWork& kept) {
  bool isAnswered = false;
  errors::reporting(program.reporter, "MAIN-frmUnload", [&] {
    kept.settle();
    isAnswered = true;
  });
  return isAnswered;
}

// Rubbish taken back would replace what is stored.
std::string soundCopy(const KeptWork& kept) {
  std::string left = kept.copy.read();
  if (kept.isSound(left)) return left;
  throw base::Failure(base::ErrorNumber::badFormat,
                      "Was beim letzten Mal nicht gespeichert war, lässt sich nicht wiederherstellen, denn die "
                      "Sicherungskopie ist beschädigt.");
}

void offer(Program& program, const KeptWork& kept, const std::string& left) {
  const base::MessageAnswer answer = program.platform.messageBox(
      {.text = std::string("Tessik wurde beim letzten Mal nicht ordentlich beendet.\r\n").append(kept.recoverQuestion),
       .icon = base::MessageIcon::question,
       .buttons = base::MessageButtons::yesNo});
  if (!program.windows.main.mayAsk) return;  // nobody answered: the next start asks again
  if (answer != base::MessageAnswer::yes) {
    kept.copy.putAside();
    return;
  }
  kept.show(left);
  kept.copy.keepsUpWith(kept.revision());
}

base::Failure toldWithPlace(const base::Failure& failure, const std::string& path) {
  base::Failure told(failure.number(), failure.text() + "\nWas wiederhergestellt werden sollte, liegt hier:\n" + path);
  told.stamp(failure.tag());
  return told;
}

// What cannot be taken back waits under another name, or each start would fail anew.
void offerRecovered(Program& program, const KeptWork& kept) {
  if (!kept.copy.adopt()) return;
  try {
    offer(program, kept, soundCopy(kept));
  } catch (const std::exception& fault) {
    throw toldWithPlace(base::asFailure(fault), kept.copy.putAside());
  }
}

}  // namespace

void keepRecoveryCopies(Program& program) {
  const std::optional<bool> succeeded = program.platform.asideSucceeded();
  if (!succeeded) return;
  std::vector<KeptWork> behind;
  bool isFailing = false;
  for (const KeptWork& kept : keptWork(program)) {
    if (!kept.isUnsaved()) {
      kept.copy.remove();
      continue;
    }
    if (!*succeeded) isFailing = true, kept.copy.fellBehind();
    if (kept.copy.isBehind(kept.revision())) behind.push_back(kept);
  }
  isFailing ? tellFailure(program) : takeBackFailure(program.windows.main.lblHinweis);
  if (behind.empty() || !program.platform.runAside([&behind] { withEach(behind, write); })) return;
  for (const KeptWork& kept : behind) kept.copy.keepsUpWith(kept.revision());
}

void keepForNextStart(Program& program) {
  program.windows.main.tmrSicherung.running = false;
  program.platform.awaitAside();
  withEach(keptWork(program), [](const KeptWork& kept) {
    if (kept.isUnsaved()) write(kept);
  });
}

bool mayLeave(Program& program) {
  const bool mayAsk = program.windows.main.mayAsk;
  const auto works = keptWork(program);
  for (const KeptWork& kept : works) {
    if (mayAsk && kept.settle && kept.isUnsaved() && !isAnsweredFor(program, kept)) return false;
  }
  // The copies were written on behind the questions, too.
  program.windows.main.tmrSicherung.running = false;
  program.platform.awaitAside();
  for (const KeptWork& kept : works) {
    if (mayAsk || !kept.isUnsaved()) kept.copy.remove();
  }
  return true;
}

void offerRecovered(Program& program) {
  program.windows.main.tmrSicherung = {.running = true, .intervalMilliseconds = kLookMilliseconds};
  for (const KeptWork& kept : keptWork(program)) {
    errors::reporting(program.reporter, "MAIN-Wiederherstellung", [&] { offerRecovered(program, kept); });
  }
}

}  // namespace lifecycle
