// The main window's wiring.
#include "commands/main_commands.h"

#include "base/version.h"
#include "calc/adjustments.h"
#include "commands/file_commands.h"
#include "commands/find_commands.h"
#include "commands/format_commands.h"
#include "commands/note_commands.h"
#include "commands/options_commands.h"
#include "commands/planner_commands.h"
#include "commands/price_list_commands.h"
#include "commands/print_commands.h"
#include "commands/running_sum_commands.h"
#include "commands/sort_commands.h"
#include "commands/spelling_commands.h"
#include "commands/tool_commands.h"
#include "commands/undo_commands.h"
#include "editor/editing.h"
#include "frame/manual.h"

namespace commands {
namespace {

using base::Event;
using base::Wiring;

void wireDocument(Wiring& wiring, const MainParts& parts) {
  for (const Event event : {Event::changed, Event::selected, Event::released}) {
    wiring.on(parts.window.rtfText, event, reported(parts, calc::kCalcTag, calculate));
  }
}

// Each editing command is one step that can be undone, and followed by the calculation.
void wireEditing(Wiring& wiring, const MainParts& parts) {
  const auto edit = [&](const base::MenuEntry& entry, std::string_view tag, auto command) {
    wiring.on(entry, Event::click, reported(parts, tag, [command](const MainParts& p) {
                inOneStep(p, command);
                calculate(p);
              }));
  };
  const auto& window = parts.window;
  edit(window.mnuCut, "MAIN-mnuCut_Click",
       [](const MainParts& p) { editor::cutSelection(p.window.rtfText, p.platform); });
  edit(window.mnuCopy, "MAIN-mnuCopy_Click",
       [](const MainParts& p) { editor::copySelection(p.window.rtfText, p.platform); });
  edit(window.mnuCopyAll, "MAIN-mnuCopyAll_Click",
       [](const MainParts& p) { editor::copyAll(p.window.rtfText, p.platform); });
  edit(window.mnuPaste, "MAIN-mnuPaste_Click", [](const MainParts& p) { editor::paste(p.window.rtfText, p.platform); });
  edit(window.mnuPastePlain, "MAIN-mnuPastePlain_Click",
       [](const MainParts& p) { editor::pastePlain(p.window.rtfText, p.platform); });
  edit(window.mnuDelete, "MAIN-mnuDelete_Click", [](const MainParts& p) { editor::deleteSelection(p.window.rtfText); });
  edit(window.mnuMarkAll, "MAIN-mnuMarkAll_Click", [](const MainParts& p) { editor::selectAll(p.window.rtfText); });
}

void wireProgram(Wiring& wiring, const MainParts& parts) {
  wiring.on(parts.window.mnuExit, Event::click,
            reported(parts, "MAIN-mnuExit_Click", [](const MainParts& p) { p.platform.close(p.window); }));
  wiring.on(parts.window.mnuHelp, Event::click,
            reported(parts, "MAIN-mnuHelp_Click", [](const MainParts& p) { frame::openManual(p.paths, p.platform); }));
  wiring.on(parts.window.mnuInfo, Event::click, reported(parts, "MAIN-mnuInfo_Click", [](const MainParts& p) {
              p.platform.messageBox(
                  {.text = base::versionLine() +
                           "\r\nKalkulation für Folienbeschriftungen\r\n\r\nDaten: " + p.paths.programDirectory,
                   .title = "Über Tessik",
                   .icon = base::MessageIcon::information});
            }));
}

void wireHeightAndQuantity(Wiring& wiring, const MainParts& parts) {
  wiring.on(parts.window.cboBuchstabenhöhe, Event::click, reported(parts, "MAIN-cboBuchstabenhöhe_Click", calculate));
  wiring.on(parts.window.cboBuchstabenhöhe, Event::keyOther,
            reported(parts, "MAIN-cboBuchstabenhöhe_KeyUp", calculate));
  wiring.filter(parts.window.txtStück, calc::quantityKey);
  wiring.on(parts.window.txtStück, Event::changed, reported(parts, "MAIN-txtStück", calculate));
}

void wireAdjustmentLists(Wiring& wiring, const MainParts& parts) {
  wiring.on(parts.window.cboAufpreis, Event::click, reported(parts, "MAIN-cboAufpreis_Click", [](const MainParts& p) {
              selectSurcharge(p, p.window.cboAufpreis.selected);
            }));
  wiring.on(parts.window.cboRabatt, Event::click, reported(parts, "MAIN-cboRabatt_Click", [](const MainParts& p) {
              selectDiscount(p, p.window.cboRabatt.selected);
            }));
  wiring.on(parts.window.cmdAufpreisListe, Event::click,
            reported(parts, "MAIN-cmdAufpreisliste_Click", [](const MainParts& p) {
              const auto row = calc::pick(p.picker, p.settings.adjustments.surcharges, "Auswahl Aufpreise",
                                          p.window.cboAufpreis.selected, p.platform);
              if (row) selectSurcharge(p, *row);
            }));
  wiring.on(parts.window.cmdRabatteListe, Event::click,
            reported(parts, "MAIN-cmdRabatteListe_Click", [](const MainParts& p) {
              const auto row = calc::pick(p.picker, p.settings.adjustments.discounts, "Auswahl Rabatte",
                                          p.window.cboRabatt.selected, p.platform);
              if (row) selectDiscount(p, *row);
            }));
}

// One of the four boxes: what typing recomputes, and where Enter goes.
struct AmountBox {
  base::TextBox frame::MainWindow::*box;
  base::TextBox frame::MainWindow::*partner;
  base::TextBox frame::MainWindow::*next;
  void (*typed)(base::TextBox& box, base::TextBox& partner, base::Currency net);
  std::string_view tag;
};

constexpr AmountBox kAmountBoxes[] = {
    {&frame::MainWindow::txtProzent, &frame::MainWindow::txtProzentDM, &frame::MainWindow::txtRabatt,
     calc::percentageTyped, "MAIN-txtProzent"},
    {&frame::MainWindow::txtRabatt, &frame::MainWindow::txtRabattDM, &frame::MainWindow::txtProzentDM,
     calc::percentageTyped, "MAIN-txtRabatt"},
    {&frame::MainWindow::txtProzentDM, &frame::MainWindow::txtProzent, &frame::MainWindow::txtRabattDM,
     calc::amountTyped, "MAIN-txtProzentDM"},
    {&frame::MainWindow::txtRabattDM, &frame::MainWindow::txtRabatt, &frame::MainWindow::txtProzent, calc::amountTyped,
     "MAIN-txtRabattDM"},
};

void wireAmountBoxes(Wiring& wiring, const MainParts& parts) {
  for (const AmountBox& entry : kAmountBoxes) {
    base::TextBox& box = parts.window.*entry.box;
    base::TextBox& next = parts.window.*entry.next;
    wiring.filter(box, calc::amountKey);
    wiring.on(box, Event::changed, reported(parts, entry.tag, [&entry](const MainParts& p) {
                entry.typed(p.window.*entry.box, p.window.*entry.partner, p.results.NetPrice);
                calculate(p);
              }));
    wiring.on(box, Event::keyEnter, [&next] {
      next.wantsFocus = true;
      next.wantsSelectAll = true;
    });
  }
}

}  // namespace

void selectSurcharge(const MainParts& parts, int index) {
  parts.window.cboAufpreis.select(index);
  calc::surchargeChosen(parts.window, parts.settings.adjustments.surcharges);
  calculate(parts);
}

void selectDiscount(const MainParts& parts, int index) {
  parts.window.cboRabatt.select(index);
  calc::discountChosen(parts.window, parts.settings.adjustments.surcharges);
  calculate(parts);
}

void wireMainWindow(base::Wiring& wiring, const MainParts& parts) {
  wireDocument(wiring, parts);
  wireFormat(wiring, parts);
  wireEditing(wiring, parts);
  wireFiles(wiring, parts);
  wireUndo(wiring, parts);
  wireSpelling(wiring, parts);
  wireFind(wiring, parts);
  wireSorting(wiring, parts);
  wireProgram(wiring, parts);
  wireOptions(wiring, parts);
  wireHeightAndQuantity(wiring, parts);
  wireAdjustmentLists(wiring, parts);
  wireAmountBoxes(wiring, parts);
  wireRunningSum(wiring, parts);
  wireNote(wiring, parts);
  wireTools(wiring, parts);
  wirePriceLists(wiring, parts);
  wirePrinting(wiring, parts);
  wirePlannerCommands(wiring, parts);
}

}  // namespace commands
