// The window that shows what will be read of a spreadsheet's file, and asks what becomes of the list that is there.
//
// Both kinds of price lists share it; it is modal, so one of them has it at a time.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls.h"
#include "base/platform.h"
#include "base/wiring.h"
#include "pricelists/csv.h"

namespace pricelists {

// clang-format off
#define TESSIK_CSV_IMPORT_CONTROLS(CONTROL)                                   \
  CONTROL(base::Label, lblDatei)            /* which list, and which file */  \
  CONTROL(base::Label, lblZeilen)           /* how many rows will be read */  \
  CONTROL(base::ListBox, List1)             /* their names */                 \
  CONTROL(base::ListBox, List2)             /* their prices */                \
  CONTROL(base::Label, lblAbgewiesen)       /* how many lines will not */     \
  CONTROL(base::ListBox, lstAbgewiesen)     /* which, and why */              \
  CONTROL(base::OptionButton, optErsetzen)                                    \
  CONTROL(base::OptionButton, optAnhängen)                                    \
  CONTROL(base::Label, lblHinweis)          /* why nothing can be taken */    \
  CONTROL(base::Button, cmdÜbernehmen)                                        \
  CONTROL(base::Button, cmdAbbrechen)
// clang-format on

struct CsvImportWindow : base::Window {
  CsvImportWindow() : Window("frmCsvImport") {}

  TESSIK_CONTROLS(TESSIK_CSV_IMPORT_CONTROLS)

  int presentRows = 0;  // of the list that is there
  bool isTaken = false;
};

/// The list that the rows are for.
struct CsvTarget {
  std::string_view subject;
  int rows;
};

struct CsvRows {
  bool replacesList;
  std::vector<std::string> names;
  std::vector<std::string> prices;
};

void wireCsvImport(base::Wiring& wiring, CsvImportWindow& window, base::Platform& platform);

/// Asks for a file and shows what is in it; nothing when the person leaves it at that. Leaving the choice of a file is
/// a Failure, and so is a file that is no such table.
std::optional<CsvRows> importByDialog(CsvImportWindow& window, const CsvTarget& target, base::Platform& platform);

/// Asks for a name, suggesting `name`, and writes a table there.
void exportByDialog(const std::string& name, const std::string& table, base::Platform& platform);

}  // namespace pricelists
