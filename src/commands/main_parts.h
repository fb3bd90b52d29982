// What the main window's procedures work on, and what every one of them does with it.
#pragma once

#include <string_view>

#include "backup/backup_window.h"
#include "base/platform.h"
#include "base/wiring.h"
#include "calc/calc.h"
#include "calc/picker.h"
#include "calculator/calculator_window.h"
#include "editor/container.h"
#include "editor/find_bar.h"
#include "editor/open_document.h"
#include "editor/sort_window.h"
#include "editor/spelling_dialog.h"
#include "editor/undo_store.h"
#include "errors/reporting.h"
#include "frame/main_window.h"
#include "frame/wait_window.h"
#include "options/options_window.h"
#include "planner/planner_window.h"
#include "pricelists/price_editor.h"
#include "pricelists/roll_goods.h"
#include "printing/offer_window.h"
#include "settings/settings.h"

namespace commands {

/// All of it outlives the wiring.
struct MainParts {
  frame::MainWindow& window;
  settings::Settings& settings;
  settings::Paths& paths;
  frame::CalcResults& results;
  editor::OpenDocument& document;
  editor::UndoStore& undo;
  editor::FindBar& find;
  frame::WaitWindow& wait;
  calc::PickerWindow& picker;
  editor::ContainerWindow& container;
  editor::UndoStore& containerUndo;
  pricelists::PriceEditorWindow& priceEditor;
  pricelists::RollGoodsWindow& rollGoods;
  pricelists::CsvImportWindow& csvImport;
  editor::SpellingWindow& spellingWindow;
  editor::Spelling& spelling;
  editor::SortWindow& sort;
  options::OptionsWindow& optionsDialog;
  calculator::CalculatorWindow& calculator;
  backup::BackupWindow& backup;
  printing::OfferWindow& offer;
  planner::PlannerWindow& planner;
  planner::ReminderWindow& reminder;
  base::Platform& platform;
  errors::Reporter& reporter;
};

/// A procedure that runs under its tag and reports its failure.
template <typename Procedure>
base::Wiring::Procedure reported(const MainParts& parts, std::string_view tag, Procedure procedure) {
  return [parts, tag, procedure] { errors::reporting(parts.reporter, tag, [&] { procedure(parts); }); };
}

/// A command of which one undo takes everything back.
template <typename Command>
void inOneStep(const MainParts& parts, Command command) {
  const editor::UndoStore::Group step(parts.undo);
  command(parts);
}

/// The parts that the calculation takes of all these.
calc::CalcParts calcParts(const MainParts& parts);

/// Offers undo with a lettering, as the other document commands are, and redo as far as there is something.
void offerUndo(const MainParts& parts);

/// Shows the format at the caret, runs the calculation and offers undo and redo. A failure is the caller's.
void calculate(const MainParts& parts);

}  // namespace commands
