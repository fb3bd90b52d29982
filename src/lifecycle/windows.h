// All windows of the program, each named once.
#pragma once

#include <utility>

#include "backup/backup_window.h"
#include "calc/picker.h"
#include "calculator/calculator_window.h"
#include "editor/container.h"
#include "editor/sort_window.h"
#include "editor/spelling_dialog.h"
#include "frame/main_window.h"
#include "frame/wait_window.h"
#include "lifecycle/loading_window.h"
#include "options/options_window.h"
#include "planner/planner_window.h"
#include "pricelists/price_editor.h"
#include "pricelists/roll_goods.h"
#include "printing/offer_window.h"

namespace lifecycle {

// clang-format off
#define TESSIK_WINDOWS(WINDOW)                       \
  WINDOW(frame::MainWindow, main)                    \
  WINDOW(LoadingWindow, loading)                     \
  WINDOW(frame::WaitWindow, wait)                    \
  WINDOW(calc::PickerWindow, picker)                 \
  WINDOW(editor::ContainerWindow, container)         \
  WINDOW(editor::SpellingWindow, spelling)           \
  WINDOW(editor::SortWindow, sort)                   \
  WINDOW(options::OptionsWindow, optionsDialog)      \
  WINDOW(pricelists::PriceEditorWindow, priceEditor) \
  WINDOW(pricelists::RollGoodsWindow, rollGoods)     \
  WINDOW(pricelists::CsvImportWindow, csvImport)     \
  WINDOW(calculator::CalculatorWindow, calculator)   \
  WINDOW(backup::BackupWindow, backup)               \
  WINDOW(printing::OfferWindow, offer)               \
  WINDOW(planner::PlannerWindow, planner)            \
  WINDOW(planner::ReminderWindow, reminder)
// clang-format on

#define TESSIK_DECLARE_WINDOW(Kind, name) Kind name;
#define TESSIK_VISIT_WINDOW(Kind, name) visit(name);

struct Windows {
  TESSIK_WINDOWS(TESSIK_DECLARE_WINDOW)

  template <typename Visitor>
  void eachWindow(Visitor&& visit) {
    TESSIK_WINDOWS(TESSIK_VISIT_WINDOW)
  }
};

}  // namespace lifecycle
