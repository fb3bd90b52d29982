// Roll goods.
#include "pricelists/roll_goods.h"

#include <algorithm>

#include "base/number.h"
#include "base/text.h"
#include "calc/adjustments.h"
#include "calc/pricing.h"
#include "pricelists/price_rows.h"

namespace pricelists {
namespace {

using base::Currency;
using base::Event;

constexpr PriceTableKind kFoils{
    .list = kFoilList,
    .subject = "Nettopreis eines Quadratmeters jeder Folie",
    .saveQuestion = "Möchten Sie die Änderungen an der Folienliste speichern?",
    .nameMissing = "Bitte einen Foliennamen eingeben",
    .csvHeading = "Foliename",
    .loadTag = "VOLL-FormLoad",
    .addTag = "VOLL-cmdAdd",
    .insertTag = "VOLL-Einfügen",
    .changeTag = "VOLL-List1-DblClick",
    .deleteTag = "VOLL-cmdDelete",
    .clearTag = "VOLL-cmdUpdate",
    .exportTag = "VOLL-Zwischenablage",
    .csvImportTag = "VOLL-CsvImport",
    .csvExportTag = "VOLL-CsvExport",
    .printTag = "VOLL-cmdPrint",
    .printHeading = "Preisliste Folien - Stand: ",
    .timerTag = "VOLL-timer1",
    .saveTag = "VOLL-cmdOK",
};

std::string selectedOf(const PriceTableWindow& window, const base::ListBox& list) {
  const int row = selectedRow(window);
  return row < 0 ? std::string() : list.items[row];
}

void replaceZero(base::TextBox& box, std::string_view instead) {
  if (base::leadingNumber(box.text) == 0) box.text = instead;
}

void calculate(const RollGoods& goods) {
  RollGoodsWindow& window = goods.window;
  replaceZero(window.txtHöhe, "1.00");
  replaceZero(window.txtBreite, "1.00");
  replaceZero(window.txtStück, "1");
  window.Stückpreis =
      rollPiecePrice(base::leadingNumber(window.txtHöhe.text), base::leadingNumber(window.txtBreite.text),
                     window.Einheit, base::leadingNumber(selectedOf(window, window.List2)));
  window.Gesamtpreis = rollTotal(window.Stückpreis, base::leadingNumber(window.txtStück.text));
  const base::NumberFormat format = goods.platform.numberFormat();
  window.lblPreis.text = base::euroText(window.Gesamtpreis, format);
  window.lblPBrutto.text = base::euroText(calc::grossTotal(window.Gesamtpreis, goods.rates.vatPercent), format);
}

// An emptied field is selected, so that the next key replaces what it holds now; 0 may be the beginning of "0.5".
void calculateTyped(const RollGoods& goods, base::TextBox& field) {
  const bool isEmptied = field.text.empty();
  if (isEmptied || base::leadingNumber(field.text) != 0) calculate(goods);
  field.wantsSelectAll = isEmptied;
}

template <typename Run>
void reporting(const RollGoods& goods, Run run) {
  errors::reporting(goods.reporter, "VOLL-calc", run);
}

base::Wiring::Procedure calculation(const RollGoods& goods) {
  return [goods] { reporting(goods, [&] { calculate(goods); }); };
}

PriceTable foilTable(const RollGoods& goods) {
  return {goods.window, kFoils,         goods.csvImport, goods.paths,
          goods.rates,  goods.platform, goods.reporter,  calculation(goods)};
}

void wireInputs(base::Wiring& wiring, const RollGoods& goods) {
  RollGoodsWindow& window = goods.window;
  const auto run = calculation(goods);
  for (base::TextBox* const box : {&window.txtHöhe, &window.txtBreite, &window.txtStück}) {
    wiring.filter(*box, calc::amountKey);
    wiring.on(*box, Event::changed, [goods, box] { reporting(goods, [&] { calculateTyped(goods, *box); }); });
    wiring.on(*box, Event::leaving, run);
  }
}

void wireUnits(base::Wiring& wiring, const RollGoods& goods) {
  struct Choice {
    const base::OptionButton& button;
    std::string_view unit;
  };
  RollGoodsWindow& window = goods.window;
  for (const Choice& choice : {Choice{window.Option1, "mm"}, {window.Option2, "cm"}, {window.Option3, "m"}}) {
    wiring.on(choice.button, Event::click, [&window, unit = choice.unit, run = calculation(goods)] {
      window.Einheit = unit;
      run();
    });
  }
}

void resetInputs(RollGoodsWindow& window) {
  window.txtHöhe.text = window.txtBreite.text = "1.00";
  window.txtStück.text = "1";
  window.Option1.checked = window.Option2.checked = false;
  window.Option3.checked = true;
  window.Einheit = "m";
}

std::string line(std::string_view label, std::size_t tabs, std::string_view value) {
  return std::string(label).append(tabs, '\t').append(value).append(base::kLineBreak);
}

}  // namespace

Currency rollPiecePrice(double length, double width, std::string_view unit, double pricePerSquareMetre) {
  const double perMetre = unit == "mm" ? 1000 : unit == "cm" ? 100 : 1;
  return Currency::fromDouble(length / perMetre * (width / perMetre) * pricePerSquareMetre);
}

Currency rollTotal(Currency piece, double pieces) { return Currency::fromDouble(piece.toDouble() * pieces); }

std::string rollGoodsNote(const RollGoodsWindow& window, const settings::Rates& rates,
                          const base::NumberFormat& format) {
  constexpr std::size_t kRuleLength = 125;
  const std::string end(base::kLineBreak);
  const std::string foil = selectedOf(window, window.List1);
  const std::string price = trimmedPrice(selectedOf(window, window.List2));
  const std::string& unit = window.Einheit;
  const std::string sides = window.txtHöhe.text + " * " + window.txtBreite.text + " " + unit;
  const auto euro = [&](auto amount) { return base::euroText(amount, format); };
  const double net = window.Gesamtpreis.toDouble() / base::kDeutscheMarkPerEuro;
  const double gross = calc::grossTotal(window.Gesamtpreis, rates.vatPercent) / base::kDeutscheMarkPerEuro;
  std::string note = end + "Folien-Rollenware: " + end + end;
  note += line("Folie: ", 4, foil);
  note += line("Preis pro qm: ", 3, price) + end;
  note += line("Stückzahl: ", 3, window.txtStück.text);
  note += line("Länge * Breite in " + unit + ":   ", 2, sides);
  note += line("Stückpreis Netto:      ", 2, euro(window.Stückpreis));
  note += line("Gesamtpreis Netto:   ", 2, euro(window.Gesamtpreis));
  note += line("Mwst. in %: ", 3, std::to_string(rates.vatPercent) + " %");
  note += line("Gesamtpreis Brutto: ", 2, window.lblPBrutto.text) + end + end;
  note += "Zur Information -  entspricht in EURO:" + end + end;
  note += line("Nettopreis in EURO: ", 2, euro(net));
  note += line("Bruttopreis in EURO: ", 2, euro(gross));
  return note + end + std::string(kRuleLength, '-') + end + end;
}

void readRollGoodsAgain(const RollGoods& goods) {
  RollGoodsWindow& window = goods.window;
  if (!window.isOpen) return;
  const std::string former = selectedOf(window, window.List1);
  openPriceTable(foilTable(goods));
  const base::ItemList& foils = window.List1.items;
  const auto row = static_cast<int>(std::find(foils.begin(), foils.end(), former) - foils.begin());
  window.List1.current = window.List2.current = foils.holds(row) ? row : -1;
  calculation(goods)();
}

void followRates(const RollGoods& goods) {
  if (goods.window.isOpen) calculation(goods)();
}

void showRollGoods(const RollGoods& goods, const std::string& recovered) {
  if (!goods.window.isOpen) {
    resetInputs(goods.window);
    openPriceTable(foilTable(goods), recovered);
    calculation(goods)();
    const bool isEmpty = goods.window.List1.items.empty();
    (isEmpty ? static_cast<base::Control&>(goods.window.txtVersalie) : goods.window.List1).wantsFocus = true;
  }
  goods.platform.show(goods.window);
}

void wireRollGoods(base::Wiring& wiring, const RollGoods& goods) {
  wirePriceTable(wiring, foilTable(goods));
  wireInputs(wiring, goods);
  wireUnits(wiring, goods);
}

}  // namespace pricelists
