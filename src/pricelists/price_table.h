// What the windows of price lists share: two parallel lists of names and prices, the fields of a row, and what is done
// with both.
//
// Row i is item i of both lists, and both have the same row selected. Two states: inserting, and changing the selected
// row, in which neither adding nor saving is possible. A file that could not be read whole cannot be saved either, for
// the rest of it would be lost.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/controls.h"
#include "base/platform.h"
#include "base/wiring.h"
#include "calc/price_database.h"
#include "errors/reporting.h"
#include "pricelists/csv_import.h"
#include "settings/settings.h"

namespace pricelists {

// clang-format off
#define TESSIK_PRICE_TABLE_CONTROLS(CONTROL)                                              \
  CONTROL(base::Label, lblListe)            /* what is being edited */                    \
  CONTROL(base::ListBox, List1)             /* names */                                   \
  CONTROL(base::ListBox, List2)             /* prices */                                  \
  CONTROL(base::Label, Label3)              /* position */                                \
  CONTROL(base::Label, lblHinweis)          /* what was refused, and what is missing */   \
  CONTROL(base::Label, lblZustand)          /* what the fields below it are for */        \
  CONTROL(base::TextBox, txtVersalie)                                                     \
  CONTROL(base::TextBox, txtpreis)                                                        \
  CONTROL(base::Button, cmdAdd)                                                           \
  CONTROL(base::Button, Command1)           /* inserts or changes */                      \
  CONTROL(base::Button, cmdDelete)                                                        \
  CONTROL(base::Button, cmdUpdate)          /* clears the list */                         \
  CONTROL(base::Button, Command3)           /* to the clipboard */                        \
  CONTROL(base::Button, cmdCsvImport)                                                     \
  CONTROL(base::Button, cmdCsvExport)                                                     \
  CONTROL(base::Button, Command5)           /* prints */                                  \
  CONTROL(base::Button, cmdVorschau)                                                      \
  CONTROL(base::Button, cmdPDF)                                                           \
  CONTROL(base::Button, Command2)           /* saves and closes */                        \
  CONTROL(base::ProgressBar, Progress1)                                                   \
  CONTROL(base::MenuEntry, mnuHinzufügen)                                                 \
  CONTROL(base::MenuEntry, mnuEinfügen)                                                   \
  CONTROL(base::MenuEntry, mnuLöschen)                                                    \
  CONTROL(base::MenuEntry, mnuClearAll)                                                   \
  CONTROL(base::Timer, Timer1)
// clang-format on

struct PriceTableWindow : base::Window {
  using Window::Window;

  TESSIK_CONTROLS(TESSIK_PRICE_TABLE_CONTROLS)

  bool isChanging = false;  // the selected row; else inserting
  bool isWhole = false;     // the file was read to its end
  bool isSaved = false;     // "&OK" has written the file since the window was opened
  bool isLeft = false;      // it was closed when nobody could be asked
  std::uint64_t savedRevision = 0;
};

/// What differs between the windows.
struct PriceTableKind {
  calc::PriceList list;
  std::string_view subject;       // what the list is
  std::string_view saveQuestion;  // before changes are lost; other windows ask as well when the program ends
  std::string_view nameMissing;   // asks for the name
  std::string_view csvHeading;    // over the names in a spreadsheet
  std::string_view loadTag;
  std::string_view addTag;
  std::string_view insertTag;
  std::string_view changeTag;
  std::string_view deleteTag;
  std::string_view clearTag;
  std::string_view exportTag;
  std::string_view csvImportTag;
  std::string_view csvExportTag;
  std::string_view printTag;
  std::string_view printHeading;  // the date follows
  std::string_view timerTag;
  std::string_view saveTag;
};

/// All of it outlives the wiring.
struct PriceTable {
  PriceTableWindow& window;
  const PriceTableKind& kind;
  CsvImportWindow& csvImport;
  const settings::Paths& paths;
  const settings::Rates& rates;
  base::Platform& platform;
  errors::Reporter& reporter;
  std::function<void()> rowChosen = {};  // follows every selection
};

void wirePriceTable(base::Wiring& wiring, const PriceTable& table);

/// Fills the lists from the file and starts in the state of inserting; a failure is reported. To be called before the
/// window is shown. With the bytes of `recovered` rows those take the place of the stored ones, and are not saved.
void openPriceTable(const PriceTable& table, const std::string& recovered = {});

/// There are rows that were neither saved nor let go.
bool holdsUnsavedRows(const PriceTableWindow& window);
/// Grows with every change of the rows.
std::uint64_t revision(const PriceTableWindow& window);
/// The rows as the bytes of a price file that holds this list alone.
std::string rowsAsFile(const PriceTableWindow& window, const calc::PriceList& list);
/// Whether such a file holds rows of the list.
bool holdsRows(std::string_view file, const calc::PriceList& list);

/// The row selected, -1 where there is none.
int selectedRow(const PriceTableWindow& window);

}  // namespace pricelists
