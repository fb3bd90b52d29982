// The window that shows what will be read of a spreadsheet's file.
#include "pricelists/csv_import.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "base/encoding.h"
#include "base/file_replacement.h"
#include "base/files.h"
#include "editor/open_document.h"
#include "pricelists/price_rows.h"

namespace pricelists {
namespace {

using base::ErrorNumber;
using base::Event;
using base::Failure;

constexpr const char* kFilter = "CSV-Datei (*.csv)|*.csv|Alle Dateien (*.*)|*.*";
constexpr std::uintmax_t kLargestFile = 32U << 20U;

Failure unreadable(std::string_view sentence, const std::string& path) {
  constexpr auto kNumber = ErrorNumber::badFormat;
  return Failure(kNumber, base::withPlace(sentence, path, kNumber));
}

std::string readText(const std::string& path) {
  std::error_code isNoFile;  // which reading it tells better
  const std::uintmax_t size = std::filesystem::file_size(path, isNoFile);
  if (!isNoFile && size > kLargestFile) {
    throw unreadable("Die Datei ist zu groß für eine Preisliste, höchstens 32 MB werden gelesen.", path);
  }
  std::optional<std::string> bytes = base::readFile(path);
  if (!bytes) throw base::fileFailure(ErrorNumber::fileNotFound, path);
  std::string text = base::decoded(std::move(*bytes));
  if (text.find('\0') == std::string::npos) return text;
  throw unreadable("Die Datei ist kein Text. Bitte in der Tabellenkalkulation als CSV speichern.", path);
}

std::string entries(int count) {
  if (count == 0) return "Kein Eintrag";
  return count == 1 ? "1 Eintrag" : std::to_string(count) + " Einträge";
}

std::string refusedLines(std::size_t count) {
  if (count == 0) return "Keine Zeile wird abgewiesen";
  return count == 1 ? "1 Zeile wird abgewiesen:" : std::to_string(count) + " Zeilen werden abgewiesen:";
}

int rowsAfter(const CsvImportWindow& window) {
  return window.List1.items.size() + (window.optAnhängen.checked ? window.presentRows : 0);
}

// The last row of all was added to a list that had room for it.
void checkRoom(CsvImportWindow& window) {
  std::string& hint = window.lblHinweis.text;
  hint.clear();
  if (window.List1.items.empty()) hint = "In der Datei steht nichts, was in die Liste kann";
  if (!hasRoom(rowsAfter(window) - 1)) hint = "So viele Einträge haben in der Liste keinen Platz";
  window.lblHinweis.visible = !hint.empty();
  window.cmdÜbernehmen.enabled = hint.empty();
}

void showRows(CsvImportWindow& window, CsvTable& table) {
  window.List1.clear(), window.List2.clear();
  window.List1.items.assign(std::move(table.names));
  window.List2.items.assign(std::move(table.prices));
  window.lblZeilen.text = entries(window.List1.items.size()) + " aus der Datei";
  if (!table.heading.empty()) window.lblZeilen.text += ", unter der Überschrift „" + table.heading + "“";
}

void showRefusals(CsvImportWindow& window, const std::vector<CsvRefusal>& refusals) {
  window.lblAbgewiesen.text = refusedLines(refusals.size());
  std::vector<std::string> rows;
  rows.reserve(refusals.size());
  for (const auto& [line, text, reason] : refusals) {
    rows.push_back("Zeile " + std::to_string(line) + ": " + reason + "  " + text);
  }
  window.lstAbgewiesen.clear();
  window.lstAbgewiesen.items.assign(std::move(rows));
}

// Replacing is what brings an edited list back; it costs nothing before the list is saved.
void offerChoice(CsvImportWindow& window) {
  window.optErsetzen.checked = true;
  window.optAnhängen.checked = false;
  window.optAnhängen.enabled = window.presentRows > 0;
  window.optErsetzen.text = "Liste &ersetzen";
  window.optAnhängen.text = "An die Liste a&nhängen";
  if (window.presentRows == 0) return;
  window.optErsetzen.text +=
      " (" + entries(window.presentRows) + (window.presentRows == 1 ? " entfällt)" : " entfallen)");
  window.optAnhängen.text += " (danach " + entries(window.presentRows + window.List1.items.size()) + ")";
}

void open(CsvImportWindow& window, const CsvTarget& target, const std::string& path, CsvTable table) {
  window.isTaken = false;
  window.presentRows = target.rows;
  window.lblDatei.text = std::string(target.subject) + "\r\nDatei: " + std::filesystem::path(path).filename().string();
  window.lblDatei.toolTip = path;
  showRows(window, table);
  showRefusals(window, table.refusals);
  offerChoice(window);
  checkRoom(window);
  window.optErsetzen.wantsFocus = true;
}

}  // namespace

void wireCsvImport(base::Wiring& wiring, CsvImportWindow& window, base::Platform& platform) {
  for (const base::OptionButton* const choice : {&window.optErsetzen, &window.optAnhängen}) {
    wiring.on(*choice, Event::click, [&window] { checkRoom(window); });
  }
  for (base::ListBox* const list : {&window.List1, &window.List2}) {
    wiring.on(*list, Event::selected, [&window, list] { window.List1.current = window.List2.current = list->current; });
  }
  wiring.rowTip(window.lstAbgewiesen, [&window](int row) { return window.lstAbgewiesen.items[row]; });
  wiring.on(window.cmdÜbernehmen, Event::click, [&window, &platform] {
    window.isTaken = true;
    platform.close(window);
  });
  wiring.on(window.cmdAbbrechen, Event::click, [&window, &platform] { platform.close(window); });
}

std::optional<CsvRows> importByDialog(CsvImportWindow& window, const CsvTarget& target, base::Platform& platform) {
  const std::string path = platform.askOpenFile({.title = "Preise importieren", .filter = kFilter, .suggestion = {}});
  open(window, target, path, readCsv(readText(path)));
  platform.showModal(window);
  if (!window.isTaken) return std::nullopt;
  const auto rowsOf = [](const base::ListBox& list) {
    return std::vector<std::string>(list.items.begin(), list.items.end());
  };
  return CsvRows{window.optErsetzen.checked, rowsOf(window.List1), rowsOf(window.List2)};
}

void exportByDialog(const std::string& name, const std::string& table, base::Platform& platform) {
  const std::string path = editor::askForTarget(
      {.title = "Preise exportieren", .filter = kFilter, .suggestion = name + ".csv"}, ".csv", platform);
  base::replaceFile(path, base::encoded(table, base::Encoding::markedUtf8));
}

}  // namespace pricelists
