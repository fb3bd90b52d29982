// What the windows of price lists share.
#include "pricelists/price_table.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "base/profile_file.h"
#include "base/text.h"
#include "editor/open_document.h"
#include "pricelists/price_rows.h"
#include "printing/output.h"
#include "printing/printouts.h"
#include "settings/ini.h"

namespace pricelists {
namespace {

using base::Event;
using calc::PriceRow;

constexpr int kRefreshMilliseconds = 250;
constexpr std::string_view kInsertCaption = "&Einfügen";
constexpr std::string_view kChangeCaption = "&Ändern";

void showPosition(PriceTableWindow& window) {
  window.Label3.text =
      "Eintrag: " + std::to_string(selectedRow(window) + 1) + "/" + std::to_string(window.List1.items.size());
}

void showState(PriceTableWindow& window) {
  const int row = selectedRow(window);
  window.lblZustand.text = "Neuer Eintrag";
  if (!window.isChanging) return;
  window.lblZustand.text = "Eintrag wird geändert: bitte eine Zeile auswählen";
  if (row >= 0)
    window.lblZustand.text = "Eintrag " + std::to_string(row + 1) + " wird geändert: " + window.List1.items[row];
}

void offerCommands(PriceTableWindow& window) {
  window.Command1.enabled = window.mnuEinfügen.enabled = selectedRow(window) >= 0;
  window.Command3.enabled = window.List1.items.size() >= 2;
  window.cmdAdd.enabled = window.mnuHinzufügen.enabled = !window.isChanging;
  window.cmdCsvImport.enabled = !window.isChanging;
  window.cmdCsvExport.enabled = !window.List1.items.empty();
  window.Command2.enabled = !window.isChanging && window.isWhole;
  window.Command1.text = window.mnuEinfügen.text = window.isChanging ? kChangeCaption : kInsertCaption;
}

// A table without a row has none to change.
void refresh(PriceTableWindow& window) {
  if (window.List1.items.empty()) window.isChanging = false;
  showPosition(window);
  showState(window);
  offerCommands(window);
}

void showHint(PriceTableWindow& window, std::string_view hint) {
  window.lblHinweis.text = hint;
  window.lblHinweis.visible = !hint.empty();
}

void refuse(const PriceTable& table, std::string_view hint) {
  table.platform.beep();
  showHint(table.window, hint);
}

void select(const PriceTable& table, int row) {
  table.window.List1.current = table.window.List2.current = row;
  refresh(table.window);
  if (table.rowChosen) table.rowChosen();
}

bool isFilled(const PriceTableWindow& window) {
  return !window.txtVersalie.text.empty() && !window.txtpreis.text.empty();
}

// Says what is missing; false when nothing is.
bool refusesFields(const PriceTable& table) {
  const PriceTableWindow& window = table.window;
  if (window.txtVersalie.text.empty() || leavesNoName(rowName(window.txtVersalie.text))) {
    return refuse(table, table.kind.nameMissing), true;
  }
  if (base::codePointCount(window.txtVersalie.text) > kLongestName) return refuse(table, kNameTooLong), true;
  if (window.txtpreis.text.empty()) return refuse(table, "Bitte einen Preis eingeben"), true;
  return false;
}

PriceRow typedRow(const PriceTableWindow& window) {
  return {rowName(window.txtVersalie.text), preparedPrice(window.txtpreis.text)};
}

void insertAt(PriceTableWindow& window, int row, PriceRow added) {
  window.List1.items.insert(row, std::move(added.name));
  window.List2.items.insert(row, std::move(added.price));
}

constexpr std::string_view kFull = "Die Liste ist voll";
constexpr std::string_view kNoRow = "Bitte eine Zeile auswählen";
constexpr std::string_view kNotSaved = "Noch nicht gespeichert";

void add(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  const int rows = window.List1.items.size();
  if (!hasRoom(rows)) return refuse(table, kFull);
  if (refusesFields(table)) return;
  insertAt(window, rows, typedRow(window));
  select(table, rows);
}

void insert(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  if (!hasRoom(window.List1.items.size())) return refuse(table, kFull);
  if (isFilled(window) && refusesFields(table)) return;
  const int row = selectedRow(window);
  insertAt(window, row, isFilled(window) ? typedRow(window) : freeRow());
  select(table, row);
}

void change(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  window.isChanging = false;
  refresh(window);
  if (refusesFields(table)) return;
  const int row = selectedRow(window);
  PriceRow changed = typedRow(window);
  window.List1.items.set(row, std::move(changed.name));
  window.List2.items.set(row, std::move(changed.price));
  select(table, row);
}

void insertOrChange(const PriceTable& table) {
  if (selectedRow(table.window) < 0) return refuse(table, kNoRow);
  table.window.isChanging ? change(table) : insert(table);
}

void beginChange(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  const int row = selectedRow(window);
  if (row < 0) return refuse(table, kNoRow);
  window.txtpreis.text = typedPrice(window.List2.items[row], table.platform.numberFormat());
  window.txtVersalie.text = window.List1.items[row];
  window.txtVersalie.wantsSelectAll = window.txtVersalie.wantsFocus = true;
  window.isChanging = true;
  refresh(window);
}

void removeSelected(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  const int row = selectedRow(window);
  if (row < 0) return refuse(table, kNoRow);
  window.List1.items.removeAt(row);
  window.List2.items.removeAt(row);
  select(table, row - 1);
}

void clearRows(PriceTableWindow& window) {
  window.List1.clear();
  window.List2.clear();
}

void clearAll(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  if (window.List1.items.empty()) return;
  table.platform.beep();
  const auto answer = table.platform.messageBox({.text = "Sind Sie sicher das Sie alle Werte entfernen möchten?",
                                                 .title = "Alle Preise löschen",
                                                 .icon = base::MessageIcon::question,
                                                 .buttons = base::MessageButtons::yesNo});
  if (answer != base::MessageAnswer::yes) return;
  clearRows(window);
  select(table, -1);
}

// Long work with a bar in the window itself, from here to the end of its lifetime.
class Exporting {
 public:
  Exporting(base::ProgressBar& bar, base::Platform& platform, int lastRow) : bar_(bar), platform_(platform) {
    bar.visible = true;
    bar.minimum = bar.value = 0;
    bar.maximum = lastRow;
    platform.setHourglass(base::Hourglass::on);
  }
  ~Exporting() {
    bar_.visible = false;
    platform_.setHourglass(base::Hourglass::off);
  }
  Exporting(const Exporting&) = delete;
  Exporting& operator=(const Exporting&) = delete;

  void reach(int row) {
    bar_.value = row;
    platform_.refresh();
  }

 private:
  base::ProgressBar& bar_;
  base::Platform& platform_;
};

std::string listed(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  const int rows = window.List1.items.size();
  Exporting exporting(window.Progress1, table.platform, rows - 1);
  std::string listing = listingHead(table.rates.unit);
  for (int row = 0; row < rows; ++row) {
    exporting.reach(row);
    listing += listingLine(window.List1.items[row], window.List2.items[row]);
  }
  return listing;
}

void exportToClipboard(const PriceTable& table) { table.platform.setClipboardText(listed(table)); }

std::vector<std::string> joined(const base::ItemList& items, std::vector<std::string> more) {
  std::vector<std::string> all(items.begin(), items.end());
  std::move(more.begin(), more.end(), std::back_inserter(all));
  return all;
}

// Into the window alone: only saving makes it last.
void importCsv(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  auto read = importByDialog(table.csvImport, {table.kind.subject, window.List1.items.size()}, table.platform);
  table.platform.show(window);  // or the main window has the keys, which the preview belonged to
  if (!read) return;
  const int first = read->replacesList ? 0 : window.List1.items.size();
  if (read->replacesList) clearRows(window);
  window.List1.items.assign(joined(window.List1.items, std::move(read->names)));
  window.List2.items.assign(joined(window.List2.items, std::move(read->prices)));
  select(table, first);
  showHint(window, kNotSaved);
}

void exportCsv(const PriceTable& table) {
  const PriceTableWindow& window = table.window;
  exportByDialog(std::string(table.kind.list.names),
                 writeCsv(table.kind.csvHeading, window.List1.items, window.List2.items), table.platform);
}

base::PrintJob printout(const PriceTable& table) {
  return printing::listing(std::string(table.kind.printHeading) + base::dateText(table.platform.now()), listed(table));
}

void print(const PriceTable& table) { printing::print(printout(table), table.platform); }

void preview(const PriceTable& table) { table.platform.printPreview(printout(table)); }

void savePdf(const PriceTable& table) { printing::saveAsPdf(printout(table), "Preisliste.pdf", table.platform); }

// A name that a hand has put into the file in quotes may be blank without them, and would end the list there.
std::string storedName(const std::string& name) { return leavesNoName(name) ? "\"" + name + "\"" : name; }

template <typename Stored>
void replaceSection(base::ProfileFile& file, std::string_view section, const base::ItemList& items, Stored stored) {
  std::vector<std::string> lines;
  lines.reserve(static_cast<std::size_t>(items.size()));
  for (int row = 0; row < items.size(); ++row) lines.push_back(std::to_string(row) + "=" + stored(items[row]));
  settings::replaceArray(file, section, lines);
}

void storeRows(base::ProfileFile& file, const PriceTableWindow& window, const calc::PriceList& list) {
  replaceSection(file, list.names, window.List1.items, storedName);
  replaceSection(file, list.prices, window.List2.items, trimmedPrice);
}

void save(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  const std::string path = table.paths.priceDatabase();
  base::ProfileFile file = base::ProfileFile::load(path);
  storeRows(file, window, table.kind.list);
  calc::unmarkAsSamples(file, table.kind.list);
  file.save(path);
  window.isSaved = true;
  window.savedRevision = revision(window);
}

void saveAndClose(const PriceTable& table) {
  save(table);
  table.platform.close(table.window);
}

void fill(const PriceTable& table, const base::ProfileFile& file, const std::string& path) {
  for (PriceRow& row : calc::storedRows(file, table.kind.list)) {
    std::string price = calc::alignedPrice(row, table.kind.list, path);
    insertAt(table.window, table.window.List1.items.size(), {std::move(row.name), std::move(price)});
  }
}

void load(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  const std::string path = table.paths.priceDatabase();
  const base::ProfileFile file = base::ProfileFile::load(path);
  window.lblListe.text = table.kind.subject;
  if (calc::areSamples(file, table.kind.list)) window.lblListe.text.append("\r\n").append(calc::kSamplesHint);
  fill(table, file, path);
}

// They were whole, whatever the file has come to.
void takeRecovered(const PriceTable& table, const std::string& rows) {
  clearRows(table.window);
  fill(table, base::ProfileFile::parse(rows), {});
  table.window.isWhole = true;
  showHint(table.window, kNotSaved);
}

bool hasUnsaved(const PriceTableWindow& window) { return window.isWhole && revision(window) != window.savedRevision; }

void close(const PriceTable& table) {
  PriceTableWindow& window = table.window;
  window.keepsOpen = true;
  errors::reporting(table.reporter, table.kind.saveTag, [&] {
    if (window.mayAsk && hasUnsaved(window)) {
      editor::settleChanges(
          table.platform, [&] { save(table); }, table.kind.saveQuestion);
    }
    window.keepsOpen = false;
  });
  window.Timer1.running = window.keepsOpen;
  window.isLeft = !window.mayAsk;
}

using Procedure = void (*)(const PriceTable& table);

// A person's command: what was refused before is past.
base::Wiring::Procedure command(const PriceTable& table, std::string_view tag, Procedure procedure) {
  return [table, tag, procedure] {
    showHint(table.window, "");
    errors::reporting(table.reporter, tag, [&] { procedure(table); });
  };
}

void wireCommands(base::Wiring& wiring, const PriceTable& table) {
  const PriceTableWindow& window = table.window;
  const PriceTableKind& kind = table.kind;
  const auto both = [&](const base::Control& button, const base::Control& entry, std::string_view tag, Procedure run) {
    wiring.on(button, Event::click, command(table, tag, run));
    wiring.on(entry, Event::click, command(table, tag, run));
  };
  both(window.cmdAdd, window.mnuHinzufügen, kind.addTag, add);
  both(window.Command1, window.mnuEinfügen, kind.insertTag, insertOrChange);
  both(window.cmdDelete, window.mnuLöschen, kind.deleteTag, removeSelected);
  both(window.cmdUpdate, window.mnuClearAll, kind.clearTag, clearAll);
  wiring.on(window.Command3, Event::click, command(table, kind.exportTag, exportToClipboard));
  wiring.on(window.cmdCsvImport, Event::click, command(table, kind.csvImportTag, importCsv));
  wiring.on(window.cmdCsvExport, Event::click, command(table, kind.csvExportTag, exportCsv));
  wiring.on(window.Command5, Event::click, command(table, kind.printTag, print));
  wiring.on(window.cmdVorschau, Event::click, command(table, kind.printTag, preview));
  wiring.on(window.cmdPDF, Event::click, command(table, kind.printTag, savePdf));
  wiring.on(window.Command2, Event::click, command(table, kind.saveTag, saveAndClose));
}

void wireLists(base::Wiring& wiring, const PriceTable& table) {
  PriceTableWindow& window = table.window;
  for (base::ListBox* const list : {&window.List1, &window.List2}) {
    const auto choose = [table, list] { select(table, list->current); };
    wiring.on(*list, Event::click, choose);
    wiring.on(*list, Event::selected, choose);
    for (const Event event : {Event::doubleClick, Event::keyEnter}) {
      wiring.on(*list, event, command(table, table.kind.changeTag, beginChange));
    }
    wiring.on(*list, Event::keyDelete, command(table, table.kind.deleteTag, removeSelected));
  }
  wiring.rowTip(window.List1,
                [&window](int row) { return window.List1.items[row] + " = " + trimmedPrice(window.List2.items[row]); });
}

// Enter goes from the name to the price and from there into the list.
void wireFields(base::Wiring& wiring, const PriceTable& table) {
  PriceTableWindow& window = table.window;
  wiring.filter(window.txtpreis, priceKey);
  wiring.on(window.txtVersalie, Event::keyEnter,
            [&window] { window.txtpreis.wantsFocus = window.txtpreis.wantsSelectAll = true; });
  wiring.on(window.txtpreis, Event::keyEnter, [table] {
    PriceTableWindow& fields = table.window;
    const bool isChanging = fields.isChanging;
    command(table, isChanging ? table.kind.insertTag : table.kind.addTag, isChanging ? insertOrChange : add)();
    fields.txtVersalie.wantsFocus = fields.txtVersalie.wantsSelectAll = true;
  });
}

}  // namespace

int selectedRow(const PriceTableWindow& window) {
  return window.List1.items.holds(window.List1.current) ? window.List1.current : -1;
}

std::uint64_t revision(const PriceTableWindow& window) {
  return window.List1.items.revision() + window.List2.items.revision();
}

bool holdsUnsavedRows(const PriceTableWindow& window) {
  return (window.isOpen || window.isLeft) && hasUnsaved(window) && !window.List1.items.empty();
}

std::string rowsAsFile(const PriceTableWindow& window, const calc::PriceList& list) {
  base::ProfileFile file = base::ProfileFile::parse({});
  storeRows(file, window, list);
  return file.bytes();
}

bool holdsRows(std::string_view file, const calc::PriceList& list) {
  return !calc::storedRows(base::ProfileFile::parse(std::string(file)), list).empty();
}

void openPriceTable(const PriceTable& table, const std::string& recovered) {
  PriceTableWindow& window = table.window;
  window.isChanging = window.isWhole = window.isSaved = false;
  clearRows(window);
  for (base::TextBox* const box : {&window.txtVersalie, &window.txtpreis}) box->text.clear();
  window.Progress1.visible = false;
  window.lblListe.text = table.kind.subject;
  showHint(window, "");
  errors::reporting(table.reporter, table.kind.loadTag, [&] {
    load(table);
    window.isWhole = true;
  });
  window.savedRevision = revision(window);
  if (!recovered.empty()) takeRecovered(table, recovered);
  if (!window.isWhole) window.lblListe.text += "\r\nNicht ganz gelesen: so kann die Liste nicht gespeichert werden";
  window.Timer1 = {.running = true, .intervalMilliseconds = kRefreshMilliseconds};
  refresh(window);
}

void wirePriceTable(base::Wiring& wiring, const PriceTable& table) {
  wireCommands(wiring, table);
  wireLists(wiring, table);
  wireFields(wiring, table);
  wiring.on(table.window.Timer1, Event::tick,
            [table] { errors::reporting(table.reporter, table.kind.timerTag, [&] { refresh(table.window); }); });
  wiring.on(table.window, Event::closing, [table] { close(table); });
}

}  // namespace pricelists
