// The commands on the running sum.
#include "commands/running_sum_commands.h"

#include "calc/adjustments.h"
#include "calc/running_sum.h"

namespace commands {
namespace {

using base::Event;
using frame::MainWindow;

// A button and the menu entry that does the same.
struct Command {
  base::Button MainWindow::*button;
  std::string_view buttonTag;
  base::MenuEntry MainWindow::*entry;
  std::string_view entryTag;
  void (*run)(const MainParts& parts);
};

constexpr Command kCommands[] = {
    {&MainWindow::cmdAdd, "MAIN-cmdAdd_Click", &MainWindow::mnuCalcAdd, "MAIN-mnuCalcAdd",
     [](const MainParts& p) { calc::addEntry(calcParts(p)); }},
    {&MainWindow::cmdSub, "MAIN-cmdSub_Click", &MainWindow::mnuCalcSub, "MAIN-mnuCalcSub",
     [](const MainParts& p) { calc::removeEntry(calcParts(p)); }},
    {&MainWindow::cmdLöschen, "MAIN-cmdLöschen_Click", &MainWindow::mnuOldPrice, "MAIN-mnuOldPrice_Click",
     [](const MainParts& p) { calc::showOldPrice(calcParts(p)); }},
    {&MainWindow::cmdClear, "MAIN-cmdClear_Click", &MainWindow::mnuCalcAddToPrice, "MAIN-mnuCalcAddToPrice_Click",
     [](const MainParts& p) { calc::addMarkedToPrice(calcParts(p)); }},
    {&MainWindow::cmdDestroy, "MAIN-cmdDestroy_Click", &MainWindow::mnuCalcClear, "MAIN-mnuCalcClear",
     [](const MainParts& p) { calc::clearEntries(p.window, p.platform); }},
};

void wireAddByHand(base::Wiring& wiring, const MainParts& parts) {
  const auto add = reported(parts, "MAIN-cmdAddPerHand",
                            [](const MainParts& p) { calc::addByHand(p.window, p.platform.numberFormat()); });
  wiring.on(parts.window.cmdAddPerHand, Event::click, add);
  wiring.filter(parts.window.txtAddPerHand, calc::signedAmountKey);
  wiring.on(parts.window.txtAddPerHand, Event::keyEnter, add);
  wiring.on(parts.window.txtAddPerHand, Event::changed, reported(parts, "MAIN-txtAddPerHand", calculate));
}

}  // namespace

void wireRunningSum(base::Wiring& wiring, const MainParts& parts) {
  MainWindow& window = parts.window;
  for (const Command& command : kCommands) {
    wiring.on(window.*command.button, Event::click, reported(parts, command.buttonTag, command.run));
    wiring.on(window.*command.entry, Event::click, reported(parts, command.entryTag, command.run));
  }
  wiring.on(window.cboCalc, Event::keyDelete,
            reported(parts, "MAIN-cmdSub_Click", [](const MainParts& p) { calc::removeEntry(calcParts(p)); }));
  wiring.on(window.cboCalc, Event::rightPress, [&window] { window.mnuEditCalc.wantsToOpen = true; });
  wiring.on(window.mnuEditCalc, Event::menuClosed, [&window] { window.rtfText.wantsFocus = true; });
  wiring.on(window.lblRCalc, Event::mouseMove, [&window] { calc::describeSum(window); });
  wireAddByHand(wiring, parts);
}

}  // namespace commands
