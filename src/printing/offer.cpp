// The offer that a customer gets.
#include "printing/offer.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "base/money.h"
#include "base/number.h"
#include "base/text.h"
#include "calc/price_database.h"
#include "calc/pricing.h"
#include "editor/document_builder.h"

namespace printing {
namespace {

using base::PrintRow;
using std::string;

// In points.
constexpr double kBody = 11;
constexpr double kSmall = 9;
constexpr double kLarge = 15;

base::CharFormat plain(double points) { return {.points = points}; }
base::CharFormat bold(double points) { return {.points = points, .bold = true}; }

class Letter {
 public:
  /// Lines of `text`; none when it is empty.
  Letter& write(std::string_view text, const base::CharFormat& format,
                base::Alignment alignment = base::Alignment::left) {
    if (text.empty()) return *this;
    const base::Document document = base::plainDocument(text, format);
    for (const base::Paragraph& paragraph : document.paragraphs) {
      const std::uint32_t index = builder_.indexOf(format);
      builder_.append(paragraph.text, index);
      builder_.endParagraph(index, alignment);
    }
    return *this;
  }
  Letter& space() { return write("\n", plain(kBody)); }
  base::Document take() { return builder_.take(); }

 private:
  editor::DocumentBuilder builder_;
};

string lastEndOff(std::string_view text) {
  const std::size_t end = text.find_last_not_of(" \t\r\n");
  return string(text.substr(0, end == std::string_view::npos ? 0 : end + 1));
}

std::pair<string, string> firstLineAndRest(const string& text) {
  const std::size_t end = text.find_first_of("\r\n");
  if (end == string::npos) return {text, ""};
  const std::size_t rest = text.find_first_not_of("\r\n", end);
  return {text.substr(0, end), rest == string::npos ? string() : text.substr(rest)};
}

/// "-1234,50" as "-1.234,50".
string grouped(string number) {
  constexpr std::size_t kGroup = 3;
  const std::size_t first = number.starts_with('-') ? 1 : 0;
  for (std::size_t at = std::min(number.find(','), number.size()); at > first + kGroup;) {
    at -= kGroup;
    number.insert(at, ".");
  }
  return number;
}

template <typename Amount>
string euro(Amount amount) {
  return grouped(base::twoDecimals(amount, ",")).append(base::kEuroSuffix);
}

template <typename Amount>
string marks(Amount amount) {
  return grouped(base::twoDecimals(amount, ",")).append(base::kMarkSuffix);
}

base::Document letterHead(const string& company, const string& address) {
  return Letter().write(company, bold(kLarge)).write(address, plain(kSmall)).take();
}

base::Document opening(const OfferWording& wording, const base::DateTime& moment) {
  Letter letter;
  letter.space().write(lastEndOff(wording.customer), plain(kBody));
  letter.write(base::dateText(moment), plain(kBody), base::Alignment::right);
  letter.space().write("Angebot", bold(kLarge)).write("\n", plain(kSmall / 2));
  const string comment = lastEndOff(wording.comment);
  if (!comment.empty()) letter.write(comment, plain(kBody)).space();
  return letter.write("Beschriftung", bold(kBody)).write("\n", plain(1)).take();
}

base::Document lettering(const base::RichText& text, bool ownFormats) {
  const bool ofSelection = text.selection().length > 0;
  if (ownFormats) return ofSelection ? text.selectedDocument() : text.document();
  return base::plainDocument(ofSelection ? text.selectedText() : text.plainText(), plain(kBody));
}

std::vector<PrintRow> jobRows(const PricedLettering& priced, const OfferSwitches& told) {
  const frame::MainWindow& window = priced.window;
  std::vector<PrintRow> rows = {{"Texthöhe", window.lbltexthöhe.text + " " + priced.rates.unit}};
  if (told.textLength) {
    rows.push_back({"Textlänge", grouped(std::to_string(priced.results.TextLength)) + " Zeichen"});
  }
  rows.push_back({"Stückzahl", base::replaceAll(window.txtStück.text, ".", ",")});
  return rows;
}

const char* nameOf(base::Currency adjustment) {
  if (adjustment == base::Currency()) return "Aufpreis/Rabatt";
  return adjustment.tenThousandths() < 0 ? "Rabatt" : "Aufpreis";
}

std::vector<PrintRow> priceRows(const PricedLettering& priced, const OfferSwitches& told) {
  const frame::CalcResults& results = priced.results;
  std::vector<PrintRow> rows;
  if (told.pricePerCharacter) {
    const double price = calc::priceAt(priced.window, priced.window.cboBuchstabenhöhe.selected);
    rows.push_back({"Preis je Zeichen, netto", euro(price)});
  }
  if (told.adjustment) {
    rows.push_back({"Preis, netto", euro(results.NetPrice)});
    rows.push_back({nameOf(results.SurchargeBalance), euro(results.SurchargeBalance)});
  }
  return rows;
}

std::vector<PrintRow> totalRows(const PricedLettering& priced, const OfferSwitches& told) {
  const base::Currency net = priced.results.NetTotal;
  const int vat = priced.rates.vatPercent;
  std::vector<PrintRow> rows;
  if (told.netTotal) rows.push_back({"Netto gesamt", euro(net), /*isTotal=*/!told.vatAndGross});
  if (told.vatAndGross) {
    rows.push_back({"Mwst. " + std::to_string(vat) + " %", euro(calc::vatAmount(net, vat))});
    rows.push_back({"Brutto gesamt", euro(calc::grossTotal(net, vat)), /*isTotal=*/true});
  }
  if (told.marks) {
    const base::Currency markNet = calc::markNet(net);
    rows.push_back({"Netto gesamt in DM", marks(markNet)});
    rows.push_back({"Brutto gesamt in DM", marks(calc::markGross(markNet, vat))});
  }
  return rows;
}

base::PrintTable result(const PricedLettering& priced, const OfferSwitches& told) {
  base::PrintTable table;
  for (const auto& rows : {jobRows(priced, told), priceRows(priced, told), totalRows(priced, told)}) {
    table.rows.insert(table.rows.end(), rows.begin(), rows.end());
  }
  return table;
}

string keyOf(std::size_t number) { return "S" + std::to_string(number + 1); }

}  // namespace

OfferWording storedWording(const base::Platform& platform) {
  OfferWording wording;
  wording.customer = platform.userSetting("Kunde").value_or("");
  wording.comment = platform.userSetting("Kommentar").value_or("");
  for (std::size_t i = 0; i < kOfferSwitches.size(); ++i) {
    if (const auto value = platform.userSetting(keyOf(i))) wording.switches.*kOfferSwitches[i] = *value == "1";
  }
  return wording;
}

void storeWording(const OfferWording& wording, base::Platform& platform) {
  std::vector<base::UserSetting> values = {{"Kunde", wording.customer}, {"Kommentar", wording.comment}};
  for (std::size_t i = 0; i < kOfferSwitches.size(); ++i) {
    values.push_back({keyOf(i), wording.switches.*kOfferSwitches[i] ? "1" : "0"});
  }
  platform.saveUserSettings(values);
}

base::PrintJob offer(const PricedLettering& priced, const OfferWording& wording, const string& companyAddress,
                     const base::DateTime& moment) {
  const auto [company, address] = firstLineAndRest(lastEndOff(companyAddress));
  base::PrintJob job{.title = "Angebot vom " + base::dateText(moment),
                     .heading = company,
                     .headingOn = base::HeadingOn::followingPages,
                     .parts = {}};
  if (!company.empty()) {
    job.parts.emplace_back(letterHead(company, address));
    job.parts.emplace_back(base::PrintRule());
  }
  job.parts.emplace_back(opening(wording, moment));
  job.parts.emplace_back(lettering(priced.window.rtfText, wording.switches.ownFormats));
  job.parts.emplace_back(result(priced, wording.switches));
  return job;
}

}  // namespace printing
