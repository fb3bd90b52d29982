// The calculation as the person before the screen sees it: lettering and inputs in, labels out.
#include "calc/calc.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calc/pricing.h"
#include "support/desk.h"

namespace {

using base::Currency;
using frame::MainWindow;
using support::Desk;

TEST(Calc, TheWholeOrderInEveryLabel) {
  Desk desk;
  desk.offerHeights({{"50", "1,25"}});
  desk.type(desk.window.txtStück, "3");
  desk.write("ABCDE\nFGHIJ");
  struct Row {
    base::Label MainWindow::*label;
    std::string text;
    std::string toolTip;
  };
  const Row rows[] = {
      {&MainWindow::lblTextlenBox, "10", "Textlänge in Zeichen: 10"},
      {&MainWindow::lblEinzelpreisZeichen, "1,25 EUR", "Einzelpreis pro Zeichen netto: 1,25 EUR"},
      {&MainWindow::lblTH, "Texthöhe in mm:", ""},
      {&MainWindow::lblPreisNetto, "37,50 EUR", "Nettopreis: 37,50 EUR"},
      {&MainWindow::lblStückp, "12,50 EUR", "Preis pro Stück: 12,50 EUR"},
      {&MainWindow::lblPNettoAuf, "37,50 EUR", "Nettopreis Gesamt:37,50 EUR"},
      {&MainWindow::lblPreisNettoGesamt, "37,50 EUR", ""},
      {&MainWindow::lblBruttoGesamt, "43,50 EUR", ""},
      {&MainWindow::lblEURO, "73,34 DM", "Nettopreis in DM: 73,34 DM"},
      {&MainWindow::lblEURObrutto, "85,08 DM", "Bruttopreis in DM: 85,08 DM"},
      {&MainWindow::lblMwstAnteil, "6,00 EUR", "Mwst. Anteil: 6,00 EUR"},
      {&MainWindow::lblMwstG, "6,00 EUR", ""},
      {&MainWindow::lblMwstSatz, "16 %", "16 % Mwst."},
      {&MainWindow::lblMwstG1, "Mwst. 16 %", ""},
      {&MainWindow::lblAufpreisSolo, "0,00 EUR", "Aufpreis/Rabatt: 0,00 EUR"},
      {&MainWindow::lblEinzelBrutto, "1,45 EUR", "Einzelpreis pro Zeichen brutto: 1,45 EUR"},
      {&MainWindow::lbltexthöhe, "50", "Texthöhe in mm: 50"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ((desk.window.*row.label).text, row.text);
    EXPECT_EQ((desk.window.*row.label).toolTip, row.toolTip);
  }
  EXPECT_EQ(desk.window.lblZeile.text, "Font: Arial / Größe: 8 (S/S/S) / Ze, Pos: 1, 1");
  EXPECT_EQ(desk.program.results.SelectedHeightIndex, 0);
}

TEST(Calc, CountsWhatTheFoilNeeds) {
  struct Row {
    std::string lettering;
    int withBlanks;
    int withoutBlanks;
  };
  const Row rows[] = {
      {"AB CD\n", 5, 4}, {"", 0, 0},         {"\n\n\n", 0, 0}, {"a\tb", 3, 3},
      {"Größe 😀", 7, 6}, {"a\u00A0b", 3, 3}, {"  ", 2, 0},     {"a\u2028b", 2, 2},
  };
  for (const Row& row : rows) {
    Desk desk;
    desk.offerHeights({{"10", "1"}});
    desk.write(row.lettering);
    EXPECT_EQ(desk.program.results.TextLength, row.withBlanks) << row.lettering;
    desk.program.settings.rates.countBlanks = 0;
    desk.write(row.lettering);
    EXPECT_EQ(desk.program.results.TextLength, row.withoutBlanks) << row.lettering;
  }
}

TEST(Calc, PricesTheSelectionButNotALoneLineEnd) {
  Desk desk;
  desk.offerHeights({{"10", "1"}});
  desk.write("abcdef\nghi");
  EXPECT_FALSE(desk.window.lblMarkierung.visible);
  desk.document.select({.start = 1, .length = 3});
  desk.program.wiring.fire(desk.document, base::Event::released);
  EXPECT_EQ(desk.window.lblTextlenBox.text, "3");
  EXPECT_TRUE(desk.window.lblMarkierung.visible && desk.window.lblMarkierungZeichen.visible);
  desk.document.select({.start = 6, .length = 2});
  desk.window.txtStück.text = "9";
  desk.program.wiring.fire(desk.document, base::Event::selected);
  EXPECT_EQ(desk.window.lblTextlenBox.text, "3");
  EXPECT_EQ(desk.window.lblPreisNetto.text, "3,00 EUR");
}

// A price of 1 and 100 characters: the net price is 100.
TEST(Calc, ListEntriesTakeTheirShareOfTheNetPrice) {
  struct Row {
    std::string surcharge;
    std::string discount;
    std::string total;
    std::string balance;
  };
  const Row rows[] = {
      {"10 %", "5.00 EUR", "105,00 EUR", "5,00 EUR"},         {"10%", "0.00 EUR", "110,00 EUR", "10,00 EUR"},
      {"10 Prozent", "5 %", "95,00 EUR", "5,00 EUR"},         {"10 %", "10 %", "100,00 EUR", "0,00 EUR"},
      {"0.00 EUR", "150.50 EUR", "-50,50 EUR", "150,50 EUR"}, {"7,5 %", "", "107,00 EUR", "7,00 EUR"},
  };
  for (const Row& row : rows) {
    Desk desk;
    desk.offerHeights({{"50", "1"}});
    desk.write(std::string(100, 'x'));
    desk.window.cboAufpreis.items.assign({row.surcharge});
    desk.window.cboRabatt.items.assign({row.discount});
    desk.choose(desk.window.cboAufpreis, 0);
    desk.choose(desk.window.cboRabatt, 0);
    EXPECT_EQ(desk.window.lblPreisNettoGesamt.text, row.total) << row.surcharge << " / " << row.discount;
    EXPECT_EQ(desk.window.lblAufpreisSolo.text, row.balance) << row.surcharge << " / " << row.discount;
  }
}

// The sign is read from the text on display: with a decimal comma −0,50 reads as zero, with a point it does not.
TEST(Calc, ColoursTheTotalsByTheSignOnDisplay) {
  struct Row {
    std::string discount;
    std::string separator;
    base::Rgb colour;
  };
  const Row rows[] = {{"100.50", ",", frame::kPositiveTotal},
                      {"101.00", ",", frame::kNegativeTotal},
                      {"100.50", ".", frame::kNegativeTotal},
                      {"100.00", ".", frame::kPositiveTotal}};
  for (const Row& row : rows) {
    Desk desk;
    desk.platform.format.decimalSeparator = row.separator;
    desk.offerHeights({{"50", "1"}});
    desk.write(std::string(100, 'x'));
    desk.type(desk.window.txtRabattDM, row.discount);
    for (const base::Label* label : {&desk.window.lblPreisNettoGesamt, &desk.window.lblMwstG, &desk.window.lblNettoDM,
                                     &desk.window.lblBruttoGesamt, &desk.window.lblMwstG1, &desk.window.lblBruttoDM}) {
      EXPECT_EQ(label->colour, row.colour) << row.discount << row.separator;
    }
  }
}

TEST(Calc, AdjustmentsAreOpenOnlyWhenThereIsAPriceAndAText) {
  struct Row {
    std::string price;
    std::string lettering;
    bool enabled;
  };
  for (const Row& row : {Row{"1", "a", true}, Row{"1", "\n", false}, Row{"0", "a", false}, Row{"-1", "a", false}}) {
    Desk desk;
    desk.offerHeights({{"50", row.price}});
    desk.write(row.lettering);
    EXPECT_EQ(desk.window.txtProzent.enabled, row.enabled) << row.price;
    EXPECT_EQ(desk.window.cboRabatt.enabled, row.enabled) << row.price;
    EXPECT_EQ(desk.window.cmdAufpreisListe.enabled, row.enabled) << row.price;
    EXPECT_EQ(desk.window.lbltexthöhe.text, row.price == "1" ? "50" : "0");
  }
}

TEST(Calc, AnOverflowIsReportedAndLeavesWhatWasWritten) {
  Desk desk;
  desk.offerHeights({{"50", "9999999999999999"}});
  desk.platform.expectMessage(
      {.text = "Überlauf: Die Zahl ist zu groß", .title = "Fehler", .icon = base::MessageIcon::stop});
  desk.write("abc");
  EXPECT_EQ(desk.window.lblTextlenBox.text, "3");
  EXPECT_EQ(desk.window.lblPreisNetto.text, "0,00 EUR");
}

TEST(Pricing, RoundsToCurrencyOnceForThePieceAndOnceForTheOrder) {
  const Currency none;
  EXPECT_EQ(calc::netPrice(0.00003, 5, 10, none).tenThousandths(), 15);
  EXPECT_EQ(calc::netPrice(0.00003, 5, 10, Currency::fromDouble(1)).tenThousandths(), 100020);
  EXPECT_EQ(calc::markNet(Currency::fromTenThousandths(50)).tenThousandths(), 196);
}

}  // namespace
