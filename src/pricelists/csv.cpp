// Price lists as the text of a spreadsheet.
#include "pricelists/csv.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/currency.h"
#include "base/failure.h"
#include "base/number.h"
#include "base/profile_lines.h"
#include "base/text.h"
#include "pricelists/price_rows.h"

namespace pricelists {
namespace {

using base::ErrorNumber;
using base::Failure;
using calc::PriceRow;

constexpr std::size_t kMostRefusals = 10'000;
constexpr std::string_view kOrdinarySeparator = ";";
constexpr std::size_t kColumns = 2;

struct Record {
  int line = 0;
  std::vector<std::string> fields;  // behind those of the columns one of all that follows
  bool isClosed = true;             // false when a quotation lasts up to the end of the text
  std::string_view text;

  [[nodiscard]] std::string field(std::size_t index) const {
    return index < fields.size() ? std::string(base::withoutOuterBlanks(fields[index])) : std::string();
  }
};

int lineEnds(std::string_view text) {
  int count = 0;
  for (std::size_t at = text.find_first_of("\r\n"); at < text.size(); at = text.find_first_of("\r\n", at + 1)) {
    if (!text.substr(at).starts_with(base::kLineBreak)) ++count;
  }
  return count;
}

class Records {
 public:
  Records(std::string_view text, char separator) : rest_(text), separator_(separator), ends_{separator, '\r', '\n'} {}

  [[nodiscard]] bool atEnd() const { return rest_.empty(); }

  Record next() {
    const std::string_view from = rest_;
    const auto taken = [&] { return from.substr(0, from.size() - rest_.size()); };
    Record record{.line = line_, .fields = {}, .text = {}};
    do keep(record.fields, takeField(record.isClosed));
    while (takes({&separator_, 1}));
    record.text = taken();
    if (!takes(base::kLineBreak) && !atEnd()) rest_.remove_prefix(1);
    line_ += lineEnds(taken());
    return record;
  }

 private:
  static void keep(std::vector<std::string>& fields, std::string field) {
    if (fields.size() <= kColumns) return fields.push_back(std::move(field));
    fields.back() += field;
  }

  bool takes(std::string_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }

  std::string_view takeUpTo(std::size_t end) {
    const std::string_view taken = rest_.substr(0, end);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  // A quote that does not begin the field is a character like any other, as in 20" of a pipe.
  std::string takeField(bool& isClosed) {
    std::string field;
    if (takes("\"")) isClosed = takeQuoted(field);
    return field.append(takeUpTo(rest_.find_first_of({ends_.data(), ends_.size()})));
  }

  bool takeQuoted(std::string& field) {
    while (true) {
      field += takeUpTo(rest_.find('"'));
      if (!takes("\"")) return false;
      if (!takes("\"")) return true;
      field += '"';
    }
  }

  std::string_view rest_;
  char separator_;
  std::array<char, 3> ends_;
  int line_ = 1;
};

Failure refused(std::string reason) { return Failure(ErrorNumber::typeMismatch, std::move(reason)); }

std::string reasonOf(const Failure& refusal) { return refusal.text().substr(0, refusal.text().find('\n')); }

std::string_view withoutCurrency(std::string_view price) {
  for (const std::string_view sign : {"\u00A0", "€", "EUR", "\u00A0", "\u202F"}) {
    price = base::withoutOuterBlanks(price);
    if (price.starts_with(sign)) price.remove_prefix(sign.size());
    if (price.ends_with(sign)) price.remove_suffix(sign.size());
  }
  return base::withoutOuterBlanks(price);
}

// Whether points part thousands in the whole of `digits`: "1.250.000".
bool isGrouped(std::string_view digits) {
  const std::size_t first = digits.find('.');
  if (first == 0 || first > 3 || digits.starts_with('0') || (digits.size() - first) % 4 != 0) return false;
  for (std::size_t at = first; at < digits.size(); at += 4) {
    if (digits[at] != '.' || digits.substr(at + 1, 3).find('.') != std::string_view::npos) return false;
  }
  return true;
}

// As the price field takes it. Points without a comma may stand before decimals too, as when typed; where they may mean
// either, a price that is wrong by a thousand times is worse than none.
std::string typedForm(std::string_view price) {
  if (price.empty()) throw refused("Der Preis fehlt.");
  if (price.starts_with('-')) throw refused("Der Preis ist negativ.");
  const std::string_view whole = price.substr(0, price.find(','));
  const auto points = std::count(price.begin(), price.end(), '.');
  const bool hasComma = whole.size() < price.size();
  if (points == 0 || price.find_first_not_of("0123456789.,") != std::string_view::npos) return std::string(price);
  if (!isGrouped(whole)) return std::string(price);
  if (points == 1 && !hasComma) {
    throw refused("Tausender- oder Dezimalpunkt? Bitte mit Komma schreiben.");
  }
  return base::replaceAll(price, ".", "");
}

PriceRow rowOf(const Record& record) {
  if (!record.isClosed) throw refused("Das Anführungszeichen wird nicht geschlossen, alles dahinter fehlt.");
  if (!record.field(kColumns).empty()) throw refused("Mehr als zwei Spalten.");
  PriceRow row = {std::string(base::withoutOuterBlanks(rowName(record.field(0)))), {}};
  if (leavesNoName(row.name)) throw refused("In der ersten Spalte steht nichts.");
  if (base::codePointCount(row.name) > kLongestName) throw refused(std::string(kNameTooLong));
  const std::string price = record.field(1);
  if (row.name == freeRow().name && (price.empty() || price == row.name)) return freeRow();
  row.price = preparedPrice(typedForm(withoutCurrency(price)));
  return row;
}

bool isBlank(const Record& record) {
  return std::all_of(record.fields.begin(), record.fields.end(),
                     [](const std::string& field) { return base::withoutOuterBlanks(field).empty(); });
}

// A word where the prices stand.
bool mayBeHeading(const Record& record) {
  const std::string price = record.field(1);
  return record.isClosed && !price.empty() && std::string_view("0123456789+-.,").find(price[0]) == std::string::npos;
}

std::string inOneLine(std::string_view text) {
  constexpr std::size_t kShown = 80;
  const std::string_view shown = base::firstCodePoints(text, kShown);
  return rowName(shown).append(shown.size() < text.size() ? "…" : "");
}

void refuse(CsvTable& table, const Record& record, std::string reason) {
  table.refusals.push_back({record.line, inOneLine(record.text), std::move(reason)});
}

void take(CsvTable& table, const Record& record, bool isFirst) {
  try {
    PriceRow row = rowOf(record);
    table.names.push_back(std::move(row.name));
    table.prices.push_back(std::move(row.price));
  } catch (const Failure& refusal) {
    if (isFirst && mayBeHeading(record)) {
      table.heading = inOneLine(record.text);
    } else {
      refuse(table, record, reasonOf(refusal));
    }
  }
}

// Why nothing more is read; null while there is no reason.
const char* endOf(const CsvTable& table) {
  if (!hasRoom(static_cast<int>(table.names.size()))) return "Ab hier nicht mehr gelesen: die Liste ist voll.";
  if (table.refusals.size() >= kMostRefusals) return "Ab hier nicht mehr gelesen: zu viele abgewiesene Zeilen.";
  return nullptr;
}

char separatorOf(std::string_view text) {
  for (const char separator : {';', '\t'}) {
    if (text.find(separator) != std::string_view::npos) return separator;
  }
  throw Failure(ErrorNumber::badFormat,
                "In der Datei steht kein Semikolon zwischen Name und Preis.\nBitte in der Tabellenkalkulation als CSV "
                "mit dem Semikolon als Feldtrenner speichern.");
}

std::string quoted(std::string_view field) {
  const bool isPlain =
      field.find_first_of(";\"\r\n\t") == std::string_view::npos && base::withoutOuterBlanks(field) == field;
  return isPlain ? std::string(field) : "\"" + base::replaceAll(field, "\"", "\"\"") + "\"";
}

std::string cellOf(std::string_view price) {
  std::string cell = trimmedPrice(price);
  std::string_view number = cell;
  if (number.ends_with(base::kEuroSuffix)) number.remove_suffix(base::kEuroSuffix.size());
  return base::isTypedNumber(number) ? base::replaceAll(number, ".", ",") : cell;
}

std::string lineOf(std::string_view name, std::string_view price) {
  return quoted(name).append(kOrdinarySeparator).append(quoted(price)).append(base::kLineBreak);
}

}  // namespace

CsvTable readCsv(std::string_view text) {
  CsvTable table;
  bool isFirst = true;
  for (Records records(text, separatorOf(text)); !records.atEnd();) {
    const Record record = records.next();
    if (isBlank(record)) continue;
    if (const char* const reason = endOf(table)) return refuse(table, record, reason), table;
    take(table, record, std::exchange(isFirst, false));
  }
  return table;
}

std::string writeCsv(std::string_view nameHeading, const base::ItemList& names, const base::ItemList& prices) {
  std::string text = lineOf(nameHeading, "Preis");
  for (int row = 0; row < names.size(); ++row) text += lineOf(names[row], cellOf(prices[row]));
  return text;
}

}  // namespace pricelists
