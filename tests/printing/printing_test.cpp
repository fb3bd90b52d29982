// What stands on printouts, and where they go.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <variant>
#include <vector>

#include "printing/offer.h"
#include "printing/output.h"
#include "printing/printouts.h"
#include "support/session.h"

namespace {

using base::Event;
using base::PrintJob;
using Lines = std::vector<std::string>;

// As the page shows it from top to bottom: texts with "|" for line ends, rows as "label: value", "=" before totals.
Lines shown(const PrintJob& job) {
  Lines result = {job.title + " / " + job.heading};
  for (const base::PrintPart& part : job.parts) {
    if (const auto* const text = std::get_if<base::Document>(&part)) {
      std::string line;
      for (const base::Paragraph& paragraph : text->paragraphs) line += paragraph.text + "|";
      result.push_back(line);
    }
    if (const auto* const table = std::get_if<base::PrintTable>(&part)) {
      for (const base::PrintRow& row : table->rows) {
        result.push_back((row.isTotal ? "=" : "") + row.label + ": " + row.value);
      }
    }
  }
  return result;
}

struct Printing : testing::Test {
  Printing() {
    desk.offerHeights({{"50", "1.25"}});
    desk.write("ABCDE FGHIJ\r\nKL");
    desk.type(desk.window.txtStück, "300");
  }
  PrintJob lastOf(const base::Control& command) {
    desk.click(command);
    return desk.platform.printed.empty() ? PrintJob() : desk.platform.printed.back();
  }

  support::TemporaryDirectory directory;
  support::Session session{directory};
  support::Desk& desk = session;
  editor::ContainerWindow& container = desk.program.windows.container;
};

TEST_F(Printing, AnOfferTellsWhatItsSwitchesSay) {
  const printing::PricedLettering priced{desk.window, desk.program.results, desk.program.settings.rates};
  const std::string address = "Schilder Öz\nHauptstr. 1\n";
  desk.type(desk.window.txtRabattDM, "1000");
  const Lines letter = {"Angebot vom 21.11.2026 / Schilder Öz", "Schilder Öz|Hauptstr. 1|"};
  const auto offer = [&](printing::OfferSwitches switches) {
    return shown(printing::offer(priced, {"Frau Maß", "Gern.\n\nBis bald\n", switches}, address, desk.platform.moment));
  };
  printing::OfferSwitches all;
  for (const auto each : printing::kOfferSwitches) all.*each = true;
  EXPECT_EQ(offer({}),
            (Lines{letter[0], letter[1], "||Frau Maß|21.11.2026|||Angebot|||Gern.||Bis bald|||Beschriftung|||",
                   "ABCDE FGHIJ|KL|", "Texthöhe: 50 mm", "Stückzahl: 300", "Netto gesamt: 3.875,00 EUR",
                   "Mwst. 16 %: 620,00 EUR", "=Brutto gesamt: 4.495,00 EUR"}));
  desk.document.select({.start = 0, .length = 3});
  desk.program.wiring.fire(desk.document, Event::selected);
  const Lines told = offer(all);
  EXPECT_EQ(
      Lines(told.begin() + 3, told.end()),
      (Lines{"ABC|", "Texthöhe: 50 mm", "Textlänge: 3 Zeichen", "Stückzahl: 300", "Preis je Zeichen, netto: 1,25 EUR",
             "Preis, netto: 1.125,00 EUR", "Rabatt: -1.000,00 EUR", "Netto gesamt: 125,00 EUR", "Mwst. 16 %: 20,00 EUR",
             "=Brutto gesamt: 145,00 EUR", "Netto gesamt in DM: 244,48 DM", "Brutto gesamt in DM: 283,60 DM"}));
}

TEST_F(Printing, TheOfferDialogKeepsWhatWasEntered) {
  auto& window = desk.program.windows.offer;
  desk.platform.printers = 0;  // a preview needs none, nor does a file
  desk.platform.userSettings = {{"Kunde", "Alt"}, {"S1", "1"}, {"S4", "0"}};
  desk.platform.expectModal("frmAngebot", [&](base::Window&) {
    EXPECT_TRUE(window.txtKunde.text == "Alt" && window.chkS1.checked && !window.chkS4.checked && window.chkS5.checked);
    EXPECT_EQ(window.lblAngebot.text, "Angebot über 13 Zeichen, 50 mm hoch, 300 Stück, netto 4875,00 EUR");
    const std::pair<base::CheckBox*, std::string> switches[] = {
        {&window.chkS1, "Preis je Zeichen"}, {&window.chkS2, "Textlänge"}, {&window.chkS3, "Preis, netto"},
        {&window.chkS4, "=Netto gesamt:"},   {&window.chkS5, "=Brutto"},   {&window.chkS6, "gesamt in DM"}};
    for (const auto& [only, row] : switches) {
      for (const auto& [each, told] : switches) each->checked = each == only;
      const std::string preview = testing::PrintToString(shown(lastOf(window.cmdVorschau)));
      for (const auto& [each, told] : switches) EXPECT_EQ(preview.find(told) != preview.npos, each == only) << told;
    }
    window.chkS1.checked = window.chkS5.checked = true, window.chkS6.checked = false;
    window.txtKunde.text = "Neu";
    window.chkS7.checked = true;
    desk.platform.expectFileDialog("PDF-Dokument (*.pdf)|*.pdf", directory.path("fehlt/Angebot"));
    session.expectFailure("Das Verzeichnis wurde nicht gefunden.", directory.path("fehlt/Angebot.pdf"), 76);
    desk.click(window.cmdPDF);
    desk.platform.expectFileDialog("PDF-Dokument (*.pdf)|*.pdf", directory.path("Angebot"));
    desk.click(window.cmdPDF);
    setenv("TMPDIR", directory.path("").c_str(), /*overwrite=*/1);
    desk.click(window.cmdMail);
    unsetenv("TMPDIR");
    desk.program.wiring.fire(window, Event::closing);
    desk.platform.close(window);
  });
  desk.click(desk.window.mnuAngebot);
  EXPECT_EQ(directory.read("Angebot.pdf"), "Angebot vom 21.11.2026");
  EXPECT_TRUE(desk.platform.log.front().starts_with("Angebot vom 21.11.2026: " + directory.path("tessik-")));
  auto& kept = desk.platform.userSettings;
  EXPECT_EQ(kept["Kunde"] + kept["Kommentar"] + kept["S1"] + kept["S4"] + kept["S5"] + kept["S7"], "Neu1011");
}

TEST_F(Printing, DocumentAndContainerAreHeadedByTheMoment) {
  for (const auto& [file, name, pdf] :
       {std::array{"", "Dokument", "Dokument.pdf"}, {"/texte/Brief.neu.rtf", "Brief.neu.rtf", "Brief.neu.pdf"}}) {
    desk.program.document.file = file;
    EXPECT_EQ(
        shown(lastOf(desk.window.mnuPrint)),
        (Lines{std::string("Tessik 1.4 / ") + name + " - Ausdruck vom 21.11.2026 um 09:05:00", "ABCDE FGHIJ|KL|"}));
    EXPECT_EQ(printing::pdfNameOf(file, "Dokument"), pdf);
  }
  container.rtfTextC.setDocument(base::plainDocument("eins\nzwei", {.points = 20, .bold = true, .colour = 0xFF0000}));
  const std::string heading = "Tessik 1.4 / Container - Ausdruck vom 21.11.2026 um 09:05:00";
  const PrintJob whole = lastOf(container.mnuPrint);
  EXPECT_EQ(shown(whole), (Lines{heading, "eins|zwei|"}));
  EXPECT_EQ(std::get<base::Document>(whole.parts.front()).formats,
            (std::vector<base::CharFormat>{{.family = "Arial", .points = 8, .colour = 0x000000}}));
  container.rtfTextC.select({.start = 1, .length = 2});
  EXPECT_EQ(shown(lastOf(container.Command2)), (Lines{heading, "|in|" + std::string(125, '-') + "|"}));
}

TEST_F(Printing, PriceListsArePrintedAsTheyAreExported) {
  auto& goods = desk.program.windows.rollGoods;
  goods.List1.items.add("Matt");
  goods.List2.items.add("       12.00 EUR");
  EXPECT_EQ(shown(lastOf(goods.Command5)), (Lines{"Tessik 1.4 / Preisliste Folien - Stand: 21.11.2026",
                                                  "||Versalienhöhe" + std::string(45, ' ') + "Preis:|in mm||Matt" +
                                                      std::string(52, ' ') + "12.00 EUR||"}));
}

TEST_F(Printing, OfTheAppointmentsThoseOnTopArePrinted) {
  planner::PlannerWindow& window = desk.program.windows.planner;
  window.Liste.items.assign({"01.02.2030   09:00       Zahnarzt", "02.01.2030   08:00       Müller"});
  window.List1.items.assign({"03.02.2004   10:00       alt"});
  const std::string moment = " - Ausdruck vom 21.11.2026 um 09:05:00";
  EXPECT_EQ(
      shown(lastOf(window.cmdPrint)),
      (Lines{"Tessik 1.4 / Termine" + moment, "01.02.2030   09:00       Zahnarzt|02.01.2030   08:00       Müller||"}));
  window.SSTab1.current = 1;
  EXPECT_EQ(shown(lastOf(window.cmdVorschau)),
            (Lines{"Tessik 1.4 / Alte Termine" + moment, "03.02.2004   10:00       alt||"}));
  EXPECT_EQ(desk.platform.log, Lines{"print"});
}

TEST_F(Printing, WithoutAPrinterItIsSaid) {
  desk.platform.printers = 0;
  for (const base::Control* const command : {static_cast<const base::Control*>(&desk.window.mnuPrint),
                                             static_cast<const base::Control*>(&container.mnuPrint),
                                             static_cast<const base::Control*>(&container.mnuPrinterConfig)}) {
    desk.platform.expectMessage({.text = "Fehler: Kein Drucker installiert!", .icon = base::MessageIcon::exclamation});
    desk.click(*command);
  }
  EXPECT_TRUE(desk.platform.printed.empty());
}

}  // namespace
