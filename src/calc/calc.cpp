// The lettering calculation.
#include "calc/calc.h"

#include <limits>
#include <string>

#include "base/failure.h"
#include "base/money.h"
#include "base/number.h"
#include "base/text.h"
#include "calc/price_database.h"
#include "calc/pricing.h"

namespace calc {
namespace {

using base::Currency;
using base::euroText;
using base::markText;

// The values of one run, handed from step to step.
struct Run {
  const CalcParts& parts;
  frame::MainWindow& window;
  frame::CalcResults& results;

  double pricePerCharacter = 0;
  double surchargeAmount = 0;  // as typed
  double discountAmount = 0;
  Currency listSurcharge = {};
  Currency listDiscount = {};
};

void show(base::Label& label, std::string text) { label.text = std::move(text); }

void show(base::Label& label, std::string text, std::string_view toolTipStart) {
  label.toolTip = std::string(toolTipStart) + text;
  label.text = std::move(text);
}

bool selectionIsOneLineEnd(const base::RichText& document) {
  return document.countSelection() == base::TextCount{.characters = 0, .blanks = 0, .lineEnds = 1};
}

void countCharacters(Run& run) {
  const base::RichText& document = run.parts.document;
  const bool ofSelection = document.selection().length >= 1;
  const base::TextCount count = ofSelection ? document.countSelection() : document.countAll();
  const std::int64_t characters = run.parts.rates.countBlanks == 0 ? count.characters - count.blanks : count.characters;
  if (characters > std::numeric_limits<std::int32_t>::max()) throw base::Failure(base::ErrorNumber::overflow);
  run.results.TextLength = static_cast<std::int32_t>(characters);
  show(run.window.lblTextlenBox, std::to_string(characters), "Textlänge in Zeichen: ");
  run.window.lblMarkierung.visible = ofSelection;
  run.window.lblMarkierungZeichen.visible = ofSelection;
}

void lookUpPrice(Run& run) {
  run.pricePerCharacter = priceAt(run.window, run.window.cboBuchstabenhöhe.selected);
  show(run.window.lblEinzelpreisZeichen, euroText(run.pricePerCharacter, run.parts.format),
       "Einzelpreis pro Zeichen netto: ");
  run.results.NetPrice = {};
  run.results.NetTotal = {};
  run.results.SurchargeBalance = {};
  show(run.window.lblTH, "Texthöhe in " + run.parts.rates.unit + ":");
}

void priceThePieces(Run& run) {
  const double quantity = base::leadingNumber(run.window.txtStück.text);
  const Currency addition = run.results.pieceAddition;
  run.results.NetPrice = netPrice(run.pricePerCharacter, run.results.TextLength, quantity, addition);
  show(run.window.lblPreisNetto, euroText(run.results.NetPrice, run.parts.format), "Nettopreis: ");
  const Currency piece = piecePrice(run.pricePerCharacter, run.results.TextLength, addition);
  show(run.window.lblStückp, euroText(piece, run.parts.format), "Preis pro Stück: ");
}

void applyTypedAmounts(Run& run) {
  run.surchargeAmount = base::leadingNumber(run.window.txtProzentDM.text);
  run.discountAmount = base::leadingNumber(run.window.txtRabattDM.text);
  run.results.NetTotal =
      run.results.NetPrice + Currency::fromDouble(run.surchargeAmount) - Currency::fromDouble(run.discountAmount);
}

// Percentages before fixed amounts; the percentage of the discount comes first, its fixed amount last.
void applyListEntries(Run& run) {
  const std::string& surcharge = run.window.cboAufpreis.text;
  const std::string& discount = run.window.cboRabatt.text;
  Currency& total = run.results.NetTotal;
  run.listDiscount = listTerm(discount, run.results.NetPrice);
  if (isPercentage(discount)) total -= run.listDiscount;
  run.listSurcharge = listTerm(surcharge, run.results.NetPrice);
  total += run.listSurcharge;
  if (!isPercentage(discount)) total -= run.listDiscount;
}

void showTotals(Run& run) {
  const std::string net = euroText(run.results.NetTotal, run.parts.format);
  show(run.window.lblPNettoAuf, net, "Nettopreis Gesamt:");
  show(run.window.lblPreisNettoGesamt, net);
  const int vat = run.parts.rates.vatPercent;
  show(run.window.lblBruttoGesamt, euroText(grossTotal(run.results.NetTotal, vat), run.parts.format));
  const Currency mark = markNet(run.results.NetTotal);
  show(run.window.lblEURO, markText(mark, run.parts.format), "Nettopreis in DM: ");
  show(run.window.lblEURObrutto, markText(markGross(mark, vat), run.parts.format), "Bruttopreis in DM: ");
}

void showVat(Run& run) {
  const int vat = run.parts.rates.vatPercent;
  const std::string amount = euroText(vatAmount(run.results.NetTotal, vat), run.parts.format);
  show(run.window.lblMwstAnteil, amount, "Mwst. Anteil: ");
  show(run.window.lblMwstG, amount);
  const std::string rate = std::to_string(vat) + " %";
  run.window.lblMwstSatz.text = rate;
  run.window.lblMwstSatz.toolTip = rate + " Mwst.";
  show(run.window.lblMwstG1, "Mwst. " + rate);
}

void showBalance(Run& run) {
  run.results.SurchargeBalance =
      Currency::fromDouble(run.surchargeAmount - run.discountAmount) + (run.listSurcharge - run.listDiscount);
  std::string text = euroText(run.results.SurchargeBalance, run.parts.format);
  if (text.starts_with('-')) text = base::replaceAll(text, "-", "");
  show(run.window.lblAufpreisSolo, text, "Aufpreis/Rabatt: ");
}

// The sign is read from the text on display, so with a decimal comma −0,50 still counts as zero.
void colourTotals(Run& run) {
  frame::MainWindow& window = run.window;
  const bool negative = base::leadingNumber(window.lblPreisNettoGesamt.text) < 0;
  for (base::Label* label : {&window.lblPreisNettoGesamt, &window.lblMwstG, &window.lblBruttoGesamt, &window.lblNettoDM,
                             &window.lblMwstG1, &window.lblBruttoDM}) {
    label->colour = negative ? frame::kNegativeTotal : frame::kPositiveTotal;
  }
}

void showCharacterGrossAndHeight(Run& run) {
  frame::MainWindow& window = run.window;
  if (window.cboBuchstabenhöhe.selected > std::numeric_limits<std::int16_t>::max()) {
    throw base::Failure(base::ErrorNumber::overflow, "Überlauf: Höchstens 32.768 Buchstabenhöhen sind wählbar.");
  }
  run.results.SelectedHeightIndex = static_cast<std::int16_t>(window.cboBuchstabenhöhe.selected);
  show(window.lblEinzelBrutto,
       euroText(grossPerCharacter(run.pricePerCharacter, run.parts.rates.vatPercent), run.parts.format),
       "Einzelpreis pro Zeichen brutto: ");
  show(window.lbltexthöhe, run.pricePerCharacter > 0 ? window.cboBuchstabenhöhe.text : "0",
       "Texthöhe in " + run.parts.rates.unit + ": ");
}

void enable(std::initializer_list<base::Control*> controls, bool enabled) {
  for (base::Control* const control : controls) control->enabled = enabled;
}

void enableInputs(Run& run) {
  frame::MainWindow& w = run.window;
  const bool hasText = run.results.TextLength >= 1;
  enable({&w.txtProzent, &w.txtRabatt, &w.txtProzentDM, &w.txtRabattDM, &w.cboAufpreis, &w.cboRabatt,
          &w.cmdAufpreisListe, &w.cmdRabatteListe},
         hasText && run.pricePerCharacter > 0);
  enable({&w.mnuSave, &w.cmdSave, &w.mnuCut, &w.mnuCopy, &w.mnuCopyAll, &w.mnuDelete, &w.mnuMarkAll, &w.mnuSort,
          &w.mnuSuchen, &w.mnuErsetzen, &w.mnuRechtschreibung, &w.mnuNotiz, &w.cmdNotiz, &w.mnuPrint, &w.mnuVorschau,
          &w.mnuPDF, &w.mnuAngebot},
         hasText);
  // Blank lines cost nothing, and neither does a blank that was found.
  enable({&w.mnuLeerzeilen, &w.mnuWeitersuchen, &w.mnuZurücksuchen},
         run.parts.document.countAll() != base::TextCount{});
}

}  // namespace

std::string attributeLine(const base::CharFormat& format) {
  return "Font: " + format.family + " / Größe: " + base::pointsText(format.points) + " (" + (format.bold ? "F" : "S") +
         "/" + (format.italic ? "K" : "S") + "/" + (format.underline ? "U" : "S") + ")";
}

void showStatus(const CalcParts& parts) {
  const base::Caret caret = parts.document.caret();
  parts.window.lblZeile.text = attributeLine(parts.document.format()) + " / Ze, Pos: " + std::to_string(caret.line) +
                               ", " + std::to_string(caret.column);
  const bool adds = parts.results.pieceAddition != Currency();
  parts.window.lblZusatz.visible = adds;
  parts.window.lblZusatz.text =
      adds ? "Zusatz je Stück: " + euroText(parts.results.pieceAddition, parts.format) : std::string();
}

void Calc(const CalcParts& parts) {
  base::tagged(kCalcTag, [&parts] {
    if (selectionIsOneLineEnd(parts.document)) return;
    Run run{.parts = parts, .window = parts.window, .results = parts.results};
    countCharacters(run);
    lookUpPrice(run);
    priceThePieces(run);
    applyTypedAmounts(run);
    applyListEntries(run);
    showTotals(run);
    showVat(run);
    showBalance(run);
    colourTotals(run);
    showCharacterGrossAndHeight(run);
    enableInputs(run);
    showStatus(parts);
  });
}

}  // namespace calc
