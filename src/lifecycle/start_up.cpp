// Start-up.
#include "lifecycle/start_up.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "base/version.h"
#include "calc/adjustments.h"
#include "calc/calc.h"
#include "calc/price_database.h"
#include "commands/file_commands.h"
#include "commands/planner_commands.h"
#include "editor/character_format.h"
#include "lifecycle/prepare_settings.h"
#include "lifecycle/unsaved_work.h"
#include "settings/settings_files.h"

namespace lifecycle {
namespace {

constexpr std::array kFontSizes = {8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 26, 28, 36, 48, 72};

bool screenIsWideEnough(base::Platform& platform) {
  if (platform.screenWidth() >= kLeastScreenWidth) return true;
  platform.messageBox({.text = "Tessik läuft nur ab einer Bildschirmauflösung von mind. 800x600.\r"
                               "Bitte stellen Sie ggf. Ihre Grafikkarte auf einen höheren Modus ein!",
                       .title = "Fehler",
                       .icon = base::MessageIcon::stop});
  return false;
}

void fillFixedLists(Program& program, const commands::MainParts& parts) {
  frame::MainWindow& window = parts.window;
  for (base::ComboBox* const box : {&window.cboAufpreis, &window.cboRabatt}) {
    box->clear();
    box->items.add(std::string(calc::kNoAdjustment));
    box->select(0);
  }
  for (base::ToggleButton* const attribute : {&window.cmdFett, &window.cmdKursiv, &window.cmdUnterstrichen}) {
    attribute->pressed = false;
  }
  parts.window.rtfText.setFormat(editor::startFormat());
  window.cboFontSize.clear();
  for (const int size : kFontSizes) window.cboFontSize.items.add(std::to_string(size));
  window.caption = base::windowCaption();
  window.mnuLastFile.text = base::replaceAll(program.settings.user.lastFile, "&", "&&");
  window.mnuLastFile.visible = !program.settings.user.lastFile.empty();
  calc::showStatus(commands::calcParts(parts));
}

// The steps of the loading screen, with the bar it shows.
class Loading {
 public:
  Loading(LoadingWindow& screen, base::Platform& platform) : screen_(screen), platform_(platform) {}

  void stage(std::string status, int steps) {
    screen_.lblStatus.text = std::move(status);
    screen_.Progress1.minimum = 1;
    screen_.Progress1.maximum = std::max(steps, 1);
    screen_.Progress1.value = 1;
    platform_.refresh();
  }
  // A stage of as many steps as the bar has figures is full one step early.
  void step() {
    screen_.Progress1.value = std::min(screen_.Progress1.value + 1, screen_.Progress1.maximum);
    platform_.refresh();
  }
  void finished() {
    screen_.lblStatus.text = "Fertig ...";
    platform_.refresh();
  }

 private:
  LoadingWindow& screen_;
  base::Platform& platform_;
};

// The first entries stand in both boxes already.
void addEntries(base::ComboBox& box, const settings::AdjustmentList& list, Loading& loading) {
  for (int slot = 1; slot <= list.count; ++slot) {
    box.items.add(list.amount(slot));
    loading.step();
  }
}

// A list of typefaces that does not hold what it says is a fault of the system, with advice of its own.
std::vector<std::string> GetFonts(const base::Platform& platform) {
  try {
    return platform.fontFamilies();
  } catch (const base::Failure& failure) {
    if (failure.number() != base::ErrorNumber::indexOutOfRange) throw;
    throw base::Failure(
        failure.number(),
        "Fehler: Der Index des Schriftartenverzeichnisses befindet sich außerhalb des gültigen Bereichs. Bitte beenden "
        "Sie alle Anwendungen und starten den Rechner neu. Sollte der Fehler dann noch immer auftreten, wenden Sie "
        "sich bitte an den Support! Dieser Fehler kann auftreten wenn der Schriftartenbaum von Windows "
        "durcheinandergeraten "
        "ist, z.B. nach mehreren Font-Installationen bzw. Deinstallationen.");
  }
}

void loadTypefaces(const commands::MainParts& parts, Loading& loading) {
  const std::vector<std::string> families = GetFonts(parts.platform);
  const int count = static_cast<int>(families.size());
  loading.stage("Lade " + std::to_string(count) + " TrueType Schriftarten ...", count);
  parts.window.cboFontSelect.clear();
  for (const std::string& family : families) {
    parts.window.cboFontSelect.items.add(family);
    loading.step();
  }
}

void loadAll(Program& program, const commands::MainParts& parts) {
  constexpr int kOpeningSteps = 500;
  Loading loading(program.windows.loading, parts.platform);
  program.windows.loading.lblVersion.text = std::string("Version ") + base::kVersion;
  loading.stage("Initialisiere ...", kOpeningSteps);
  for (int step = 1; step < kOpeningSteps; ++step) loading.step();
  loadTypefaces(parts, loading);

  const settings::Adjustments& lists = program.settings.adjustments;
  loading.stage("Lade Datenbank ...", lists.surcharges.count + lists.discounts.count + 1);
  addEntries(parts.window.cboAufpreis, lists.surcharges, loading);
  addEntries(parts.window.cboRabatt, lists.discounts, loading);
  calc::LoadPriceDatabase(parts.window, program.paths.priceDatabase());
  loading.finished();
}

}  // namespace

StartUp load(Program& program) {
  const commands::MainParts parts = partsOf(program);
  if (!screenIsWideEnough(parts.platform)) return StartUp::ends;
  program.settings.reminderSound = settings::defaultReminderSound(parts.platform.systemRoot());
  errors::reporting(parts.reporter, kLoadTag, [&] { parts.platform.show(program.windows.loading); });
  const StartUp result = prepareSettings(program, parts);
  // The window is furnished also when a file could not be written or read.
  errors::reporting(parts.reporter, kLoadTag, [&] { fillFixedLists(program, parts); });
  program.windows.main.tmrLoad = {.running = result == StartUp::goesOn, .intervalMilliseconds = 1};
  return result;
}

void loadBehindScreen(Program& program) {
  const commands::MainParts parts = partsOf(program);
  program.windows.main.tmrLoad.running = false;
  errors::reporting(parts.reporter, kTimerTag, [&] {
    loadAll(program, parts);
    if (!program.windows.main.cboBuchstabenhöhe.items.empty()) program.windows.main.cboBuchstabenhöhe.select(0);
  });
  // Also after a failure: what stands in the window shall be calculated.
  errors::reporting(parts.reporter, kTimerTag, [&] { commands::calculate(parts); });
  parts.platform.hide(program.windows.loading);
  if (program.settings.user.windowState == "2") program.windows.main.state = base::WindowState::maximised;
  parts.platform.show(program.windows.main);
  editor::markSaved(program.document, program.windows.main.rtfText);
  errors::reporting(parts.reporter, kTimerTag, [&] { program.spelling.readOwnWords(); });
  offerRecovered(program);
  if (!program.fileToOpen.empty()) commands::openFile(parts, program.fileToOpen);
  errors::reporting(parts.reporter, kTimerTag, [&] { commands::checkAppointments(parts); });
}

}  // namespace lifecycle
